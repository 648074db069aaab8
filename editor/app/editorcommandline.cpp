#include "editorcommandline.h"

#include <QCommandLineParser>

EditorCommandLine EditorCommandLine::Parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Edits the windows of an operator-panel project."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption modules(QStringLiteral("modules"),
                                     QStringLiteral("Load the widget libraries of <dir> too, after those of ./modules, "
                                                    "the user's and the installed ones (may be repeated)."),
                                     QStringLiteral("dir"));
    parser.addOption(modules);
    parser.addPositionalArgument(QStringLiteral("file"),
                                 QStringLiteral("The window file to open, or the project folder to work in."),
                                 QStringLiteral("[file]"));

    EditorCommandLine commandLine;
    if (!parser.parse(arguments) && parser.unknownOptionNames().isEmpty())
        commandLine.Answer(Request::Malformed, parser.errorText() + QLatin1Char('\n'));
    else if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all")))
        commandLine.Answer(Request::Help, parser.helpText());
    else if (parser.isSet(version))
        commandLine.Answer(Request::Version, QStringLiteral("kelvo-hmi-editor " KELVO_VERSION "\n"));
    if (!parser.positionalArguments().isEmpty())
        commandLine.file = parser.positionalArguments().front();
    commandLine.modulesFolders = parser.values(modules);
    return commandLine;
}
