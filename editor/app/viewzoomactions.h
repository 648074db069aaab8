#pragma once

#include <QMetaObject>
#include <QObject>

class CCanvasZoomer;
class CChildFrame;
class QAction;
class QLabel;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QStatusBar;

// The view zoom commands of the active window's canvas: Zoom In (Ctrl+plus, Ctrl+=), Zoom Out
// (Ctrl+minus), Zoom 100% (Ctrl+0) and Fit Window, in the View menu and the canvas context
// menu, and the active canvas's zoom in the status bar. They change what the user sees only;
// "Zoom..." of the Format commands is the one that rescales widgets.
class CViewZoomActions : public QObject {
    Q_OBJECT
public:
    // The shortcuts work wherever the focus is inside the area.
    CViewZoomActions(QMdiArea& area, QStatusBar& statusBar, QObject* parent = nullptr);

    void AddToViewMenu(QMenu& menu) const;
    // Puts the commands at the top of the menu, before what it holds already.
    void AddToContextMenu(QMenu& menu) const;

private:
    QAction* AddAction(const char* objectName, const QString& label, const QString& statusText,
                       void (CCanvasZoomer::*command)());
    CChildFrame* ActiveChild() const;
    // Follows the active canvas: its zoom in the label, the commands greyed without one.
    void FollowActiveChild(QMdiSubWindow* window);
    void ShowPercent(int percent);

    QMdiArea& m_area;
    QLabel* m_percent;
    QList<QAction*> m_actions;
    QMetaObject::Connection m_followed;
};
