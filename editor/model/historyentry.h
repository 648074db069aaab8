#pragma once

#include "widgets/documentchange.h"
#include "widgets/hmiwidget.h"

#include <QString>
#include <QUndoCommand>

#include <memory>
#include <string>
#include <vector>

class CUndoHistory;

// A widget as the history saw it: a window file that holds the one widget, as the window-file
// writer writes it (properties, bindings and events), and its rectangle. Moves and resizes
// change the rectangle alone, so they share the text of the state before them.
struct WidgetState {
    std::shared_ptr<const std::string> text;
    HmiRect rect;
};

// One widget across its life in the history: the object that stands for it now, in the document
// or kept by the history while it is out of it, and its state as last seen. Entries name widgets
// by their slots, since undoing an edit of properties puts a new object in the old one's place.
struct WidgetSlot {
    CHmiWidget* widget = nullptr;
    HmiWidgetPtr kept; // while the widget is out of the document
    WidgetState seen;
};
using WidgetSlotPtr = std::shared_ptr<WidgetSlot>;

// What one change did to one widget.
struct HistoryWidgetChange {
    WidgetSlotPtr slot;
    DocChange what;
    WidgetState before; // for a change of the widget itself, not for an addition or a removal
    WidgetState after;
    std::size_t index = 0; // in the drawing order: before a removal, after an addition

    // Moves and resizes are put back in place, on the same object.
    bool IsGeometryOnly() const
    {
        return !HasAny(what, DocChange::Properties | DocChange::Bindings | DocChange::Events);
    }
};

// One change of the document, as an undo entry.
struct HistoryEntry {
    std::vector<HistoryWidgetChange> widgets; // added, removed and changed widgets
    std::vector<WidgetSlotPtr> orderBefore;   // the whole drawing order, when it changed
    std::vector<WidgetSlotPtr> orderAfter;
    std::vector<WidgetSlotPtr> reordered; // the widgets told as moved in the order
    std::vector<WidgetSlotPtr> selectionBefore;
    std::vector<WidgetSlotPtr> selectionAfter;
};

// What the entry did, for the Edit menu and the History dock: "Move 3 widgets", "Change Fill
// color of rect2", "Delete 2 widgets", "Move to Top". A verb given ("Paste %1") replaces the one
// the change suggests; %1 stands for the widgets.
QString DescribeEntry(const HistoryEntry& entry, const QString& verb = {});

// An entry on the undo stack. It is pushed once its change has happened, so its first redo does
// nothing; later ones ask the history to apply it again.
class CHistoryCommand : public QUndoCommand {
public:
    CHistoryCommand(CUndoHistory& history, HistoryEntry entry, const QString& text);

    void undo() override;
    void redo() override;
    HistoryEntry& Entry() { return m_entry; }

private:
    CUndoHistory& m_history;
    HistoryEntry m_entry;
    bool m_done = true;
};
