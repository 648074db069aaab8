#pragma once

#include "base/hmitypes.h"

class CHmiWidget;
class CTamloDoc;

// What an undo entry says happened to its widget.
enum class UndoOperation : int { Changed = 0, Deleted = 1, Added = 2 };

// One widget of the document's undo step, with its rectangle before the operation.
struct HmiUndoEntry {
    UndoOperation operation;
    HmiRect rectBefore;
    CHmiWidget* widget;
};

// Opens a new undo step of a document for the length of one command and closes it again, so
// that no early return leaves a step open. Opening the step discards the previous one.
class CUndoStepGuard {
public:
    explicit CUndoStepGuard(CTamloDoc& document);
    ~CUndoStepGuard();
    CUndoStepGuard(const CUndoStepGuard&) = delete;
    CUndoStepGuard& operator=(const CUndoStepGuard&) = delete;

    void Record(UndoOperation operation, CHmiWidget* widget);

private:
    CTamloDoc& m_document;
};
