#include "viewzoomactions.h"

#include "canvaszoomer.h"
#include "childframe.h"
#include "tamloview.h"

#include <QAction>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QStatusBar>

CViewZoomActions::CViewZoomActions(QMdiArea& area, QStatusBar& statusBar, QObject* parent)
    : QObject(parent), m_area(area), m_percent(new QLabel(&statusBar))
{
    QAction* zoomIn = AddAction("actionViewZoomIn", tr("Zoom &In"),
                                tr("Show the window larger; the widgets keep their sizes"),
                                &CCanvasZoomer::ZoomIn);
    zoomIn->setShortcuts({QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)});
    AddAction("actionViewZoomOut", tr("Zoom &Out"),
              tr("Show the window smaller; the widgets keep their sizes"), &CCanvasZoomer::ZoomOut)
        ->setShortcut(QKeySequence::ZoomOut);
    AddAction("actionViewZoom100", tr("Zoom &100%"), tr("Show the window at its own size"),
              &CCanvasZoomer::ZoomToActualSize)
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    AddAction("actionFitWindow", tr("&Fit Window"),
              tr("Show the whole window in the space of its frame"), &CCanvasZoomer::FitWindow);
    m_percent->setObjectName(QStringLiteral("zoomPercent"));
    m_percent->setMinimumWidth(m_percent->fontMetrics().horizontalAdvance(QStringLiteral("0000 %")));
    m_percent->setToolTip(tr("View zoom: Ctrl+wheel, Ctrl+plus, Ctrl+minus"));
    statusBar.addPermanentWidget(m_percent);
    connect(&area, &QMdiArea::subWindowActivated, this, &CViewZoomActions::FollowActiveChild);
    FollowActiveChild(area.activeSubWindow());
}

QAction* CViewZoomActions::AddAction(const char* objectName, const QString& label, const QString& statusText,
                                     void (CCanvasZoomer::*command)())
{
    auto* action = new QAction(label, this);
    action->setObjectName(QString::fromLatin1(objectName));
    action->setStatusTip(statusText);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_area.addAction(action);
    connect(action, &QAction::triggered, this, [this, command] {
        if (CChildFrame* child = ActiveChild())
            (child->Zoomer().*command)();
    });
    m_actions.append(action);
    return action;
}

void CViewZoomActions::AddToViewMenu(QMenu& menu) const
{
    menu.addActions(m_actions);
}

void CViewZoomActions::AddToContextMenu(QMenu& menu) const
{
    QAction* first = menu.actions().value(0);
    menu.insertActions(first, m_actions);
    menu.insertSeparator(first);
}

CChildFrame* CViewZoomActions::ActiveChild() const
{
    return qobject_cast<CChildFrame*>(m_area.currentSubWindow());
}

void CViewZoomActions::FollowActiveChild(QMdiSubWindow* window)
{
    disconnect(m_followed);
    // The area tells of none while the main window is not active; its current window stays.
    auto* child = qobject_cast<CChildFrame*>(window ? window : m_area.currentSubWindow());
    for (QAction* action : m_actions)
        action->setEnabled(child != nullptr);
    m_percent->setVisible(child != nullptr);
    if (!child)
        return;
    m_followed = connect(&child->View(), &CTamloView::zoomChanged, this, &CViewZoomActions::ShowPercent);
    ShowPercent(child->View().Mapping().Percent());
}

void CViewZoomActions::ShowPercent(int percent)
{
    m_percent->setText(tr("%1 %").arg(percent));
}
