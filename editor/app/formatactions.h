#pragma once

#include <QObject>

#include <functional>
#include <vector>

class CEditorPrompts;
class CTamloView;
class QAction;
class QMenu;
class QWidget;

// The Format commands as actions: the main frame's Format menu and the canvas context menu,
// which shows the same commands with the two spacing labels the other way round and adds
// "Zoom...". Every command works on the canvas of the active window.
class CFormatActions : public QObject {
    Q_OBJECT
public:
    using ActiveView = std::function<CTamloView*()>;

    CFormatActions(CEditorPrompts& prompts, ActiveView activeView, QObject* parent = nullptr);

    // Both menus are created on demand and owned by their parent.
    QMenu* CreateFormatMenu(QWidget* parent);
    QMenu* CreateContextMenu(QWidget* parent);
    // Shows the active canvas's lock in the check mark; greys everything while no window is open
    // or the active one shows a preview.
    void SyncWithActiveView();
    QAction* LockAction() const { return m_lock; }

signals:
    // A command changed the active canvas's document.
    void documentEdited();

protected:
    // A menu that pops up on its own, as the context menu does, sends the status texts of its
    // items to their actions' parent, this object: they go on to its parent, the main window.
    bool event(QEvent* event) override;

private:
    QAction* AddAction(const char* objectName, const char* label, const char* statusText,
                       std::function<void(CTamloView&)> command);
    void AddCommonItems(QMenu& menu, QAction* firstSpacing, QAction* secondSpacing);
    void Run(const std::function<void(CTamloView&)>& command);

    CEditorPrompts& m_prompts;
    ActiveView m_activeView;
    std::vector<QAction*> m_alignActions; // in command order, left to same size
    QAction* m_spaceHorizontal = nullptr; // labelled as in the main menu
    QAction* m_spaceVertical = nullptr;
    QAction* m_contextSpaceHorizontal = nullptr; // labelled as in the context menu
    QAction* m_contextSpaceVertical = nullptr;
    QAction* m_lock = nullptr;
    QAction* m_moveToTop = nullptr;
    QAction* m_moveToBottom = nullptr;
    QAction* m_zoom = nullptr;
};
