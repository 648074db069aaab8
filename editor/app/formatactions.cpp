#include "formatactions.h"

#include "editorprompts.h"
#include "tamloview.h"

#include "editor/model/formatcommands.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QMenu>

#include <array>

namespace {

struct AlignItem {
    const char* objectName;
    const char* label;
    const char* statusText;
    AlignCommand command;
};

constexpr std::array<AlignItem, 9> kAlignItems = {{
    {"actionAlignLeft", QT_TRANSLATE_NOOP("CFormatActions", "Align Left"),
     QT_TRANSLATE_NOOP("CFormatActions", "Set Align Left\nAlign Left"), AlignCommand::Left},
    {"actionCenterHorizontal", QT_TRANSLATE_NOOP("CFormatActions", "Center Horizontal"),
     QT_TRANSLATE_NOOP("CFormatActions", "Set Align Horizontal\nAlign Horizontal"), AlignCommand::CenterHorizontal},
    {"actionAlignRight", QT_TRANSLATE_NOOP("CFormatActions", "Align Right"),
     QT_TRANSLATE_NOOP("CFormatActions", "Set Align Right\nAlign Right"), AlignCommand::Right},
    {"actionAlignTop", QT_TRANSLATE_NOOP("CFormatActions", "Align Top"),
     QT_TRANSLATE_NOOP("CFormatActions", "Set Align Top\nAlign Top"), AlignCommand::Top},
    {"actionCenterVertical", QT_TRANSLATE_NOOP("CFormatActions", "Center Vertical"),
     QT_TRANSLATE_NOOP("CFormatActions", "Set Center Vertical\nCenter Vertical"), AlignCommand::CenterVertical},
    {"actionAlignBottom", QT_TRANSLATE_NOOP("CFormatActions", "Align Bottom"),
     QT_TRANSLATE_NOOP("CFormatActions", "Set Align Bottom\nAlign Bottom"), AlignCommand::Bottom},
    {"actionSameWidth", QT_TRANSLATE_NOOP("CFormatActions", "Make Same Width"),
     QT_TRANSLATE_NOOP("CFormatActions", "Make Same Width\nSame Width"), AlignCommand::SameWidth},
    {"actionSameHeight", QT_TRANSLATE_NOOP("CFormatActions", "Make Same Height"),
     QT_TRANSLATE_NOOP("CFormatActions", "Make Same Height\nSame Height"), AlignCommand::SameHeight},
    {"actionSameSize", QT_TRANSLATE_NOOP("CFormatActions", "Make Same Size"),
     QT_TRANSLATE_NOOP("CFormatActions", "Make Same Size\nSame Size"), AlignCommand::SameSize},
}};

constexpr int kHorizontalAlignCount = 3;
constexpr int kFirstSizeItem = 6;

} // namespace

CFormatActions::CFormatActions(CEditorPrompts& prompts, ActiveView activeView, QObject* parent)
    : QObject(parent)
    , m_prompts(prompts)
    , m_activeView(std::move(activeView))
{
    for (const AlignItem& item : kAlignItems) {
        const AlignCommand command = item.command;
        m_alignActions.push_back(AddAction(item.objectName, item.label, item.statusText, [command](CTamloView& view) {
            AlignWidgets(view.Document(), view.Selection().Widgets(), command);
        }));
    }
    const auto spaceHorizontally = [](CTamloView& view) {
        SpaceWidgets(view.Document(), view.Selection().Widgets(), SpacingDirection::LeftToRight);
    };
    const auto spaceVertically = [](CTamloView& view) {
        SpaceWidgets(view.Document(), view.Selection().Widgets(), SpacingDirection::TopToBottom);
    };
    // The context menu labels the two spacing commands the other way round.
    m_spaceHorizontal = AddAction("actionSpaceHorizontal", QT_TR_NOOP("Space Down"),
                                  QT_TR_NOOP("Set Space Down\nSpace Down"), spaceHorizontally);
    m_spaceVertical = AddAction("actionSpaceVertical", QT_TR_NOOP("Space Across"),
                                QT_TR_NOOP("Set Space Across\nSpace Across"), spaceVertically);
    m_contextSpaceHorizontal = AddAction("contextSpaceHorizontal", QT_TR_NOOP("Space Across"),
                                         QT_TR_NOOP("Set Space Down\nSpace Down"), spaceHorizontally);
    m_contextSpaceVertical = AddAction("contextSpaceVertical", QT_TR_NOOP("Space Down"),
                                       QT_TR_NOOP("Set Space Across\nSpace Across"), spaceVertically);

    m_lock = AddAction("actionLockControl", QT_TR_NOOP("Lock Control"), QT_TR_NOOP("Lock Controls\nLock Controls"),
                       [](CTamloView& view) { view.SetLocked(!view.IsLocked()); });
    m_lock->setCheckable(true);
    m_moveToTop = AddAction("actionMoveToTop", QT_TR_NOOP("Move to Top"), QT_TR_NOOP("Move to Top\nMove to Top"),
                            [](CTamloView& view) { MoveWidgetToTop(view.Document(), view.Selection().Widgets()); });
    m_moveToBottom = AddAction("actionMoveToBottom", QT_TR_NOOP("Move to Bottom"),
                               QT_TR_NOOP("Move to Bottom\nMove to Bottom"), [](CTamloView& view) {
                                   MoveWidgetToBottom(view.Document(), view.Selection().Widgets());
                               });
    m_zoom = AddAction("actionZoom", QT_TR_NOOP("Zoom..."), QT_TR_NOOP("Zoom Widget of  Selected"),
                       [this](CTamloView& view) {
                           if (const std::optional<int> percent = m_prompts.AskZoomPercent(&view))
                               ZoomWidgets(view.Document(), view.Selection().Widgets(), *percent);
                       });
    // Not the view zoom of the View menu: this one changes the widgets themselves.
    m_zoom->setToolTip(tr("Rescale the selected widgets: their sizes and positions change, unlike the view zoom"));
    SyncWithActiveView();
}

QAction* CFormatActions::AddAction(const char* objectName, const char* label, const char* statusText,
                                   std::function<void(CTamloView&)> command)
{
    auto* action = new QAction(tr(label), this);
    action->setObjectName(QString::fromLatin1(objectName));
    // The status text is "prompt\ntip": the status bar shows the prompt, the tool tip the rest.
    const QStringList parts = tr(statusText).split(QLatin1Char('\n'));
    action->setStatusTip(parts.first());
    action->setToolTip(parts.last());
    connect(action, &QAction::triggered, this, [this, command = std::move(command)] { Run(command); });
    return action;
}

bool CFormatActions::event(QEvent* event)
{
    if (event->type() != QEvent::StatusTip || !parent())
        return QObject::event(event);
    return QCoreApplication::sendEvent(parent(), event);
}

void CFormatActions::Run(const std::function<void(CTamloView&)>& command)
{
    CTamloView* view = m_activeView();
    if (!view)
        return;
    command(*view);
    SyncWithActiveView();
    emit documentEdited();
}

void CFormatActions::SyncWithActiveView()
{
    const CTamloView* view = m_activeView();
    for (QAction* action : findChildren<QAction*>())
        action->setEnabled(view && !view->Preview());
    m_lock->setChecked(view && view->IsLocked());
}

void CFormatActions::AddCommonItems(QMenu& menu, QAction* firstSpacing, QAction* secondSpacing)
{
    QMenu* align = menu.addMenu(tr("Align(&A)"));
    for (int i = 0; i < kFirstSizeItem; ++i) {
        if (i == kHorizontalAlignCount)
            align->addSeparator();
        align->addAction(m_alignActions[i]);
    }
    QMenu* sameSize = menu.addMenu(tr("Make Same Size"));
    for (std::size_t i = kFirstSizeItem; i < m_alignActions.size(); ++i)
        sameSize->addAction(m_alignActions[i]);
    menu.addAction(firstSpacing);
    menu.addAction(secondSpacing);
    menu.addAction(m_lock);
    QMenu* sequence = menu.addMenu(tr("Sequence"));
    sequence->addAction(m_moveToTop);
    sequence->addAction(m_moveToBottom);
}

QMenu* CFormatActions::CreateFormatMenu(QWidget* parent)
{
    auto* menu = new QMenu(tr("F&ormat"), parent);
    AddCommonItems(*menu, m_spaceHorizontal, m_spaceVertical);
    return menu;
}

QMenu* CFormatActions::CreateContextMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    AddCommonItems(*menu, m_contextSpaceHorizontal, m_contextSpaceVertical);
    menu->addAction(m_zoom);
    return menu;
}
