#pragma once

#include "editor/model/editorsession.h"
#include "editor/startup/singleinstance.h"

#include <QObject>
#include <QStringList>

#include <memory>

class CEditorPrompts;
class CMainFrame;
class CRecoveryKeeper;
class CTamloDoc;
class CTerminationSignals;
class QSettings;

// The editor application: starts up in a fixed order, owns the main frame, opens the files that
// later editor starts hand over, and keeps recovery copies of the unsaved windows. SIGTERM and
// SIGHUP end it without questions, once the copies are up to date.
class CTamloApp : public QObject {
    Q_OBJECT
public:
    enum class StartResult {
        Started,    // the main frame is shown
        HandedOver, // another editor runs and was given the file argument
        Failed,     // the file argument could not be opened
    };

    explicit CTamloApp(CEditorPrompts& prompts, const QString& instanceName = CInstanceGuard::ServerName());
    ~CTamloApp() override;

    // arguments as the application received them, the program first. A started editor opens
    // its window, tells what there is to know, and keeps recovery copies once its main frame
    // has painted; startFinished follows.
    StartResult Start(const QStringList& arguments);

    CMainFrame* MainFrame() const { return m_mainFrame.get(); }

    // The demo project that the editor opens when it is started without a file.
    static QString DemoProjectFolder();
    // The installed data (the demo project, hmifuncs.xml, the translations), found from the
    // program's folder as the installation lays them out, so that an installation works under
    // any prefix. The build tree lays out the translations alike.
    static QString InstalledDataFolder();
    // The editor's settings: recent files, window layout, preferences.
    static std::unique_ptr<QSettings> OpenSettings();

signals:
    void startFinished();

private:
    // The start's steps that wait for the main frame's first paint; notes are what to know
    // about the window file that was read.
    void FinishStart(const QString& notes, CInstanceGuard::ListenResult listening);
    bool HandOverToRunningEditor(const QString& fileArgument) const;
    // Sets the project folder that the file argument names (by default the demo project) and
    // returns the window file to open; empty for a new window.
    QString ApplyProjectArgument(const QString& fileArgument);
    // Starts keeping recovery copies and offers the windows that editors which are gone left.
    void StartRecovery();
    void EndWithoutQuestions();

    CEditorPrompts& m_prompts;
    CInstanceGuard m_guard;
    std::unique_ptr<QSettings> m_settings;
    CEditorSession m_session;
    std::unique_ptr<CMainFrame> m_mainFrame;
    std::unique_ptr<CRecoveryKeeper> m_recovery;
    std::unique_ptr<CTerminationSignals> m_termination;
    std::unique_ptr<CTamloDoc> m_startDocument; // read, shown once the main frame has painted
};
