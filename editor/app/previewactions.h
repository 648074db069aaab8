#pragma once

#include "widgets/documentchange.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

class CPreviewSession;
class CTamloDoc;
class CTamloView;
class CVariablesDock;
class QAction;

// "View > Preview" (F5): shows the active window with the values of the Variables dock, played
// on a clock that moves the generators while the preview runs, until F5 or Escape (Leave)
// returns to editing. One window is previewed at a time; a change of its document (by a
// project-wide command) or another active window ends the preview.
class CPreviewActions : public QObject, private CDocumentObserver {
    Q_OBJECT
public:
    using ActiveView = std::function<CTamloView*()>;

    CPreviewActions(CVariablesDock& dock, ActiveView activeView, QObject* parent = nullptr);
    ~CPreviewActions() override;

    QAction* PreviewAction() const { return m_action; }
    bool IsRunning() const { return m_session != nullptr; }
    CTamloView* PreviewedView() const { return m_view; }
    // The dock's variables follow the project in GetProjectPath(); a preview that runs on the
    // old values ends.
    void FollowProject();
    void Start(CTamloView& view);
    void Leave();
    // Moves the clock, as its timer does every tick.
    void AdvanceTo(std::int64_t timeMs);

signals:
    void runningChanged(bool running);
    // Tells the user something about the preview, for the status bar.
    void message(const QString& text);

private:
    void Toggle();
    void Tick();
    // Tells the click script of the widget that a click at the point meets.
    void ShowClick(const QPoint& point);
    void DocumentChanged(const CDocumentChange& change) override;
    void DocumentDestroyed() override;

    CVariablesDock& m_dock;
    ActiveView m_activeView;
    QAction* m_action;
    QTimer m_clock;
    QElapsedTimer m_elapsed;
    std::unique_ptr<CPreviewSession> m_session;
    QPointer<CTamloView> m_view;
    CTamloDoc* m_document = nullptr; // the previewed one
};
