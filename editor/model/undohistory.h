#pragma once

#include "historyentry.h"

#include "widgets/tamlodoc.h"

#include <QUndoStack>

#include <unordered_map>
#include <vector>

class CCanvasSelection;

// The unlimited undo history of one document. It needs no help from the commands: every change
// the document tells (one per command, since the document collects a command's changes) becomes
// one entry of a QUndoStack, holding the states of the changed widgets before and after, the
// drawing order when that changed, and the selection before and after. To have the state before
// a change at hand, the history keeps each widget's state as it last saw it. Widgets that leave
// the document stay alive in their entries, out of the document's list, and come back as the
// same objects. The stack is clean when the document was last saved, and the document's
// modified mark follows it.
class CUndoHistory : public CDocumentHistory {
public:
    enum class Direction { Undo, Redo };

    // The history starts empty, from the document as it stands.
    CUndoHistory(CTamloDoc& document, CCanvasSelection& selection);
    ~CUndoHistory() override;
    CUndoHistory(const CUndoHistory&) = delete;
    CUndoHistory& operator=(const CUndoHistory&) = delete;

    QUndoStack& Stack() { return m_stack; }
    // The entry of the command about to run is named with this verb ("Paste %1", %1 standing for
    // the widgets) instead of the one its change suggests. The name is forgotten once the
    // command has run.
    void NameNextEntry(const QString& verb);

    // Called when the selection changed. A change the user made is the selection the next
    // entry restores when it is undone; one a command makes while it changes the document
    // belongs to that command.
    void SelectionChanged();

    // CDocumentHistory
    void DocumentChanged(const CDocumentChange& change) override;
    void KeepRemovedWidget(HmiWidgetPtr widget) override;

    // Puts the document back as it was before the entry, or as it was after it, and selects
    // what was selected then.
    void Apply(HistoryEntry& entry, Direction direction);

private:
    // Sees every widget of the document afresh, with no entries.
    void TakeSnapshot();
    // Brings the widgets' states and the drawing order up to date with a change, and says
    // what the change did.
    HistoryEntry Observe(const CDocumentChange& change);
    WidgetSlotPtr SlotOf(const CHmiWidget* widget) const;
    std::vector<WidgetSlotPtr> SlotsOf(const std::vector<CHmiWidget*>& widgets) const;
    // The entry pushed last learns which widgets its command left selected.
    void CloseLastEntry();
    // Puts a widget in a state: in place for a move or a resize, else as a new object.
    void Restore(HistoryWidgetChange& change, const WidgetState& state);
    void Select(const std::vector<WidgetSlotPtr>& chosen);

    CTamloDoc& m_document;
    CCanvasSelection& m_selection;
    QUndoStack m_stack;
    QMetaObject::Connection m_followIndex; // the modified mark following the stack
    std::unordered_map<const CHmiWidget*, WidgetSlotPtr> m_slots; // the widgets in the document
    std::vector<CHmiWidget*> m_order;                             // the drawing order last seen
    std::vector<WidgetSlotPtr> m_userSelection; // as the user left it, before the next command
    CHistoryCommand* m_openEntry = nullptr; // pushed last, its selection after not yet known
    QString m_nextVerb;
    bool m_applying = false; // the changes told are the history's own
    bool m_telling = false;  // inside a notification, where the document must not be changed
};
