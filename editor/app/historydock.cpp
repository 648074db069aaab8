#include "historydock.h"

#include "childframe.h"

#include "editor/model/undohistory.h"

#include <QLabel>
#include <QStyle>
#include <QUndoGroup>
#include <QUndoView>
#include <QVBoxLayout>

CHistoryDock::CHistoryDock(QWidget* parent)
    : QDockWidget(tr("History"), parent)
    , m_group(new QUndoGroup(this))
    , m_view(new QUndoView(m_group))
    , m_oneStepNote(new QLabel(tr("Undo takes back the last edit only. Choose an unlimited undo history in "
                                  "Tools > Preferences to list every edit here.")))
{
    setObjectName(QStringLiteral("historyDock"));
    m_view->setEmptyLabel(tr("<opened>"));
    // The icon marks where the window was saved; it is read from the style's images when the
    // list is first seen, since the dock starts behind the property pane.
    connect(this, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        if (visible && m_view->cleanIcon().isNull())
            m_view->setCleanIcon(style()->standardIcon(QStyle::SP_DialogSaveButton));
    });
    m_oneStepNote->setWordWrap(true);
    m_oneStepNote->setMargin(6);
    m_oneStepNote->hide();
    auto* body = new QWidget;
    auto* layout = new QVBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_oneStepNote);
    layout->addWidget(m_view, 1);
    setWidget(body);
}

void CHistoryDock::Watch(CChildFrame& child)
{
    const auto follow = [this, &child] {
        if (CUndoHistory* history = child.History())
            m_group->addStack(&history->Stack());
        if (&child == m_shown)
            ShowChild(&child);
    };
    follow();
    connect(&child, &CChildFrame::historyChanged, this, follow);
    connect(&child, &QObject::destroyed, this, [this, &child] {
        if (m_shown == &child)
            ShowChild(nullptr);
    });
}

void CHistoryDock::ShowChild(CChildFrame* child)
{
    m_shown = child;
    CUndoHistory* history = child ? child->History() : nullptr;
    m_group->setActiveStack(history ? &history->Stack() : nullptr);
    m_oneStepNote->setVisible(child && !history);
}
