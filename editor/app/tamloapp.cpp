#include "tamloapp.h"

#include "childframe.h"
#include "dialogsizes.h"
#include "editorcommandline.h"
#include "editorprompts.h"
#include "handoverqueue.h"
#include "mainframe.h"
#include "pathtext.h"
#include "recoverykeeper.h"
#include "recoveryoffer.h"

#include "editor/canvascontrols/controlkinds.h"
#include "project/scriptfunctions.h"
#include "editor/projectdialogs/widgetitemdialogs.h"
#include "editor/recovery/recoverystore.h"
#include "editor/recovery/terminationsignals.h"
#include "libraries/widgetlibraryfolders.h"
#include "project/projectpath.h"
#include "widgets/tamlodoc.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

const QString kDemoStartWindow = QStringLiteral("main.xml");

} // namespace

CTamloApp::CTamloApp(CEditorPrompts& prompts, const QString& instanceName)
    : m_prompts(prompts)
    , m_guard(instanceName)
{
}

// The main frame goes first: its children's widgets may come from the loaded libraries.
CTamloApp::~CTamloApp()
{
    m_mainFrame.reset();
}

QString CTamloApp::InstalledDataFolder()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                           QStringLiteral(KELVO_DATA_FROM_PROGRAM));
}

std::unique_ptr<QSettings> CTamloApp::OpenSettings()
{
    return std::make_unique<QSettings>(QStringLiteral("Quenzil"), QStringLiteral("Kelvo HMI Editor"));
}

QString CTamloApp::DemoProjectFolder()
{
    // In the installed data folder, or in the source tree for a program run from its build folder.
    const QString buildTreeDemo = QCoreApplication::applicationDirPath() + QStringLiteral("/../../examples/demo");
    for (const QString& candidate : {InstalledDataFolder() + QStringLiteral("/demo"), buildTreeDemo}) {
        const QString folder = QDir::cleanPath(candidate);
        if (QFileInfo::exists(folder + QLatin1Char('/') + kDemoStartWindow))
            return folder;
    }
    return {};
}

CTamloApp::StartResult CTamloApp::Start(const QStringList& arguments)
{
    const EditorCommandLine commandLine = EditorCommandLine::Parse(arguments);
    const QString& fileArgument = commandLine.file;
    const CInstanceGuard::ListenResult listening = m_guard.Listen();
    if (listening == CInstanceGuard::ListenResult::AnotherListens && HandOverToRunningEditor(fileArgument))
        return StartResult::HandedOver;

    // Without its state folder the editor only loses the guard against libraries that crash it.
    const QString stateFolder = EditorStateFolder();
    MakePrivateFolder(stateFolder);
    // The editor's own kinds first, so that no library can replace their controls and dialogs.
    RegisterBuiltinCanvasControls();
    RegisterBuiltinRowDialogs();
    std::vector<std::string> modulesFolders;
    for (const QString& folder : commandLine.modulesFolders)
        modulesFolders.push_back(ToModelPath(folder));
    WidgetLibraryLoadReport libraries =
        LoadWidgetLibraries(WidgetLibraryFolders(modulesFolders), ToModelPath(stateFolder));

    m_settings = OpenSettings();
    m_prompts.projectDialogs.runDialog = RememberingDialogSizes(*m_settings, m_prompts.projectDialogs.runDialog);
    m_mainFrame = std::make_unique<CMainFrame>(m_prompts, *m_settings, m_session);
    m_mainFrame->SetWidgetLibraries(std::move(libraries));
    auto* handedOver = new CHandOverQueue(*m_mainFrame, m_prompts);
    // A file handed over before the frame has painted opens after the start's own window.
    connect(&m_guard, &CInstanceGuard::openFileRequested, handedOver, [this, handedOver](const QString& path) {
        m_mainFrame->AfterFirstPaint([handedOver, path] { handedOver->Add(path); });
    });
    connect(&m_guard, &CInstanceGuard::raiseRequested, m_mainFrame.get(), &CMainFrame::RaiseAndRestore);
    connect(&m_guard, &CInstanceGuard::beepRequested, this, [] { QApplication::beep(); });

    // A window file that cannot be read ends the start before the frame shows; the window
    // opens once the frame has painted, as the explorer reads the project then.
    const QString documentPath = ApplyProjectArgument(fileArgument);
    QString notes;
    if (!documentPath.isEmpty()) {
        m_startDocument = m_mainFrame->LoadDocument(documentPath, notes);
        if (!m_startDocument) {
            m_prompts.ShowError(m_mainFrame.get(), notes);
            return StartResult::Failed;
        }
    }
    m_mainFrame->show();
    m_mainFrame->AfterFirstPaint([this, notes, listening] { FinishStart(notes, listening); });
    return StartResult::Started;
}

void CTamloApp::FinishStart(const QString& notes, CInstanceGuard::ListenResult listening)
{
    if (m_startDocument)
        m_mainFrame->AddChild(std::move(m_startDocument));
    else
        m_mainFrame->NewDocument();
    if (!notes.isEmpty())
        m_prompts.ShowInformation(m_mainFrame.get(), notes);
    const std::string programFolder = ToModelPath(QCoreApplication::applicationDirPath());
    m_mainFrame->SetScriptFunctions(LoadScriptFunctions(
        FindScriptFunctionsFile({GetProjectPath(), ToModelPath(InstalledDataFolder()), programFolder})));
    if (listening == CInstanceGuard::ListenResult::Failed)
        m_prompts.ShowError(m_mainFrame.get(), tr("Later starts of the editor cannot hand their files "
                                                  "to this one:\n%1").arg(m_guard.FailureReason()));
    StartRecovery();
    emit startFinished();
}

void CTamloApp::StartRecovery()
{
    const QString root = RecoveryRoot();
    FileResult result;
    std::unique_ptr<CRecoverySession> session = CRecoverySession::Create(root, result);
    if (!session) {
        m_prompts.ShowError(m_mainFrame.get(), tr("Unsaved changes cannot be kept for recovery:\n%1")
                                                   .arg(QString::fromStdString(result.error)));
        return;
    }
    m_recovery = std::make_unique<CRecoveryKeeper>(*m_mainFrame, std::move(session));
    m_termination = std::make_unique<CTerminationSignals>();
    connect(m_termination.get(), &CTerminationSignals::terminationRequested, this, &CTamloApp::EndWithoutQuestions);
    OfferAbandonedWindows(root, *m_mainFrame, *m_recovery, m_prompts);
}

void CTamloApp::EndWithoutQuestions()
{
    m_recovery->KeepCopies();
    // Leaves every event loop, a dialog's included.
    QCoreApplication::exit(0);
}

bool CTamloApp::HandOverToRunningEditor(const QString& fileArgument) const
{
    // Only the path travels, so a relative one is made whole here, where it was meant.
    std::string argument = ToModelPath(fileArgument);
    TakeProjectArgument(argument);
    const QString path = argument.empty() ? QString() : QFileInfo(ToQtPath(argument)).absoluteFilePath();
    return CInstanceGuard::HandOver(m_guard.Name(), QByteArray::fromStdString(ToModelPath(path)));
}

QString CTamloApp::ApplyProjectArgument(const QString& fileArgument)
{
    if (fileArgument.isEmpty()) {
        const QString demo = DemoProjectFolder();
        if (demo.isEmpty())
            return {};
        SetProjectPath(ToModelPath(demo));
        return demo + QLatin1Char('/') + kDemoStartWindow;
    }
    std::string argument = ToModelPath(fileArgument);
    if (const std::optional<std::string> project = TakeProjectArgument(argument))
        SetProjectPath(*project);
    return ToQtPath(argument);
}
