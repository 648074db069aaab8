#pragma once

#include "editor/startup/singleinstance.h"
#include "editor/startup/widgetlibraryloader.h"

#include <QObject>
#include <QStringList>

#include <memory>

class CEditorPrompts;
class CMainFrame;
class QSettings;

// The editor application: starts up in a fixed order, owns the main frame, and opens the
// files that later editor starts hand over.
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

    // arguments as the application received them, the program first.
    StartResult Start(const QStringList& arguments);

    CMainFrame* MainFrame() const { return m_mainFrame.get(); }
    const WidgetLibraryLoadReport& Libraries() const { return m_libraries; }

    // The demo project that the editor opens when it is started without a file.
    static QString DemoProjectFolder();

private:
    bool HandOverToRunningEditor(const QString& fileArgument) const;
    // Sets the project folder that the file argument names (by default the demo project) and
    // returns the window file to open; empty for a new window.
    QString ApplyProjectArgument(const QString& fileArgument);

    CEditorPrompts& m_prompts;
    CInstanceGuard m_guard;
    WidgetLibraryLoadReport m_libraries;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<CMainFrame> m_mainFrame;
};
