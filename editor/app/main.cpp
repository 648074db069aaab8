#include "editorcommandline.h"
#include "editorlanguage.h"
#include "editorprompts.h"
#include "firstpaintexit.h"
#include "tamloapp.h"

#include "editor/preferences/editorpreferences.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>

#include <cstdio>
#include <optional>

namespace {

// The exit status when the command line asks for help or the version, or is malformed; these
// are answered without a display. A start that asks for none of them does not wait for an
// application object made only to tell; the answers come from one, whose help text names the
// program as the application knows it.
std::optional<int> AnsweredOnTheCommandLine(int& argc, char* argv[])
{
    QStringList arguments; // decoded as the application decodes them
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (EditorCommandLine::Parse(arguments).request == EditorCommandLine::Request::Start)
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    const EditorCommandLine commandLine = EditorCommandLine::Parse(QCoreApplication::arguments());
    const bool malformed = commandLine.request == EditorCommandLine::Request::Malformed;
    std::fputs(commandLine.text.toLocal8Bit().constData(), malformed ? stderr : stdout);
    return malformed ? 2 : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    if (const std::optional<int> status = AnsweredOnTheCommandLine(argc, argv))
        return *status;
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kelvo HMI Editor"));
    CFirstPaintExit::InstallWhenAsked(application);
    // Before any window is built, so that every text is created in the chosen language.
    const QString preferredLanguage = CEditorPreferences(*CTamloApp::OpenSettings()).Get().language;
    const CEditorLanguage language(preferredLanguage, QLocale::system().uiLanguages(),
                                   CTamloApp::InstalledDataFolder() + QStringLiteral("/translations"));
    CEditorPrompts prompts;
    CTamloApp editor(prompts);
    switch (editor.Start(QApplication::arguments())) {
    case CTamloApp::StartResult::Started:
        return QApplication::exec();
    case CTamloApp::StartResult::HandedOver:
        return 0;
    case CTamloApp::StartResult::Failed:
        break;
    }
    return 1;
}
