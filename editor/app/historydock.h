#pragma once

#include <QDockWidget>

class CChildFrame;
class QLabel;
class QUndoGroup;
class QUndoView;

// The "History" dock: the undo entries of the active window, oldest first; clicking an entry
// undoes or redoes up to it. A window's stack joins the dock's group while the window keeps an
// unlimited history; with the one-step preference the dock says how to get one.
class CHistoryDock : public QDockWidget {
    Q_OBJECT
public:
    explicit CHistoryDock(QWidget* parent = nullptr);

    QUndoGroup& Group() const { return *m_group; }
    QUndoView& View() const { return *m_view; }
    // Follows the window's history as it starts and goes.
    void Watch(CChildFrame& child);
    // Shows the history of the active window, or none.
    void ShowChild(CChildFrame* child);

private:
    QUndoGroup* m_group;
    QUndoView* m_view;
    QLabel* m_oneStepNote;
    CChildFrame* m_shown = nullptr;
};
