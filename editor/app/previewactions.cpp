#include "previewactions.h"

#include "tamloview.h"

#include "editor/model/previewsession.h"
#include "editor/preview/variablesdock.h"
#include "editor/projectdialogs/modeltext.h"
#include "project/projectpath.h"
#include "widgets/tamlodoc.h"

#include <QAction>

#include <algorithm>

namespace {

// How often the generators move and flashing widgets turn while a preview runs.
constexpr int kClockTickMs = 50;

} // namespace

CPreviewActions::CPreviewActions(CVariablesDock& dock, ActiveView activeView, QObject* parent)
    : QObject(parent), m_dock(dock), m_activeView(std::move(activeView)), m_action(new QAction(this))
{
    m_action->setObjectName(QStringLiteral("actionPreview"));
    m_action->setText(tr("&Preview"));
    m_action->setStatusTip(tr("Show the window with the values of the Variables dock (F5 or Esc returns)"));
    m_action->setShortcut(Qt::Key_F5);
    m_action->setCheckable(true);
    connect(m_action, &QAction::triggered, this, &CPreviewActions::Toggle);
    m_clock.setInterval(kClockTickMs);
    connect(&m_clock, &QTimer::timeout, this, &CPreviewActions::Tick);
}

CPreviewActions::~CPreviewActions()
{
    Leave();
}

void CPreviewActions::FollowProject()
{
    if (m_dock.Values() && m_dock.ProjectFolder() == GetProjectPath())
        return;
    Leave();
    m_dock.LoadProject(GetProjectPath());
}

void CPreviewActions::Toggle()
{
    if (IsRunning())
        return Leave();
    if (CTamloView* view = m_activeView())
        Start(*view);
    m_action->setChecked(IsRunning());
}

void CPreviewActions::Start(CTamloView& view)
{
    Leave();
    FollowProject();
    m_view = &view;
    m_session = std::make_unique<CPreviewSession>(view.Document(), *m_dock.Values(),
                                                  [this](std::span<const HmiRect> areas) {
                                                      if (m_view && m_session) // not while it starts
                                                          m_view->InvalidatePreview(areas);
                                                      if (m_session)
                                                          m_dock.ShowProblems(m_session->Scene().Problems());
                                                  });
    m_document = &view.Document();
    m_document->AddObserver(this);
    view.SetPreview(m_session.get());
    m_dock.ShowProblems(m_session->Scene().Problems());
    connect(&view, &CTamloView::previewClicked, this, &CPreviewActions::ShowClick);
    m_elapsed.start();
    m_clock.start();
    m_action->setChecked(true);
    emit runningChanged(true);
}

void CPreviewActions::Leave()
{
    if (!m_session)
        return;
    m_clock.stop();
    if (m_view) {
        m_view->disconnect(this);
        m_view->SetPreview(nullptr);
    }
    m_document->RemoveObserver(this); // the document outlives its view
    m_document = nullptr;
    m_session.reset();
    m_view = nullptr;
    m_dock.ShowProblems({});
    m_action->setChecked(false);
    emit runningChanged(false);
}

void CPreviewActions::Tick()
{
    AdvanceTo(m_elapsed.elapsed());
}

void CPreviewActions::AdvanceTo(std::int64_t timeMs)
{
    if (m_session)
        m_session->AdvanceTo(timeMs);
}

void CPreviewActions::ShowClick(const QPoint& point)
{
    const CHmiWidget* widget = m_session->Scene().WidgetAt({point.x(), point.y()}, m_session->TimeMs());
    if (!widget)
        return emit message(QString());
    const auto& events = widget->GetEvents();
    const auto click = std::find_if(events.begin(), events.end(), [](const CHmiWidgetEvent& event) {
        return event.name == "click" && !event.code.empty();
    });
    const QString name = FromModel(widget->GetWidgetName());
    emit message(click == events.end() ? tr("%1 has no click script").arg(name)
                                       : tr("%1 would run on click: %2")
                                             .arg(name, FromModel(click->code).simplified()));
}

void CPreviewActions::DocumentChanged(const CDocumentChange& change)
{
    // The scene stands for the window as it was; a save only clears the modified mark.
    if (!change.widgets.empty() || change.Has(DocChange::Reloaded))
        Leave();
}

void CPreviewActions::DocumentDestroyed()
{
    Leave();
}
