// kelvo-hmi: the editor's core on the command line, for people and scripts without a display.

#include "commands.h"
#include "drawing.h"

#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "libraries/widgetlibraryfolders.h"
#include "libraries/widgetlibraryloader.h"
#include "preview/previewscene.h"
#include "preview/valueset.h"
#include "widgets/tamlodoc.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Command {
    std::string_view name;
    std::string_view usage;
    std::string_view summary;
    int minArguments;
    int maxArguments;
    bool draws; // needs a QGuiApplication (fonts, images)
    std::function<int(Arguments args)> run; // args after the command name
};

// A window file's project is the folder it lies in, unless one is named: the widgets read the
// project's name lists (history databases, data logs) when they are made.
void UseProjectOf(const std::string& windowFile)
{
    const std::filesystem::path folder = std::filesystem::path(windowFile).parent_path();
    SetProjectPath(folder.empty() ? "./" : folder.string());
}

int Fail(const std::string& message)
{
    std::fprintf(stderr, "kelvo-hmi: %s\n", message.c_str());
    return 1;
}

// Loads a window file; false (having said why) when it cannot be read. What the reader noted
// about a file it read all the same goes to stderr too.
bool LoadWindow(CTamloDoc& document, const std::string& path)
{
    const FileResult loaded = document.Load(path);
    if (!loaded) {
        Fail(loaded.error);
        return false;
    }
    for (const std::string& notice : loaded.notices)
        std::fprintf(stderr, "kelvo-hmi: %s: note: %s\n", path.c_str(), notice.c_str());
    return true;
}

int List(Arguments args)
{
    UseProjectOf(args[0]);
    CTamloDoc document;
    if (!LoadWindow(document, args[0]))
        return 1;
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        const HmiRect& r = widget->GetWidgetRect();
        std::printf("%s\t%s\t%d\t%d\t%d\t%d\n", widget->GetWidgetName().c_str(),
                    widget->GetWidgetClassName().c_str(), r.left, r.top, r.right, r.bottom);
    }
    return 0;
}

int RoundTrip(Arguments args)
{
    UseProjectOf(args[0]);
    CTamloDoc document;
    if (!LoadWindow(document, args[0]))
        return 1;
    if (const FileResult saved = document.Save(args[1]); !saved)
        return Fail(saved.error);
    return 0;
}

// Every variable reference the project offers, as the variable picker gives them.
int Vars(Arguments args)
{
    std::error_code error;
    if (!std::filesystem::is_directory(args[0], error))
        return Fail(std::string("Cannot open the project folder ") + args[0]);
    SetProjectPath(args[0]);
    CHmiVariableDatabase database;
    database.LoadProject(GetProjectPath());
    for (const std::string& text : database.AllReferenceTexts())
        std::printf("%s\n", text.c_str());
    return 0;
}

// Tells on stderr why each binding of the window failed to evaluate.
void ReportBindingProblems(const std::string& window, const CPreviewScene& scene)
{
    for (const BindingProblem& problem : scene.Problems())
        std::fprintf(stderr, "kelvo-hmi: %s: note: %s: binding of %s: %s at %zu of '%s'\n", window.c_str(),
                     problem.widget->GetWidgetName().c_str(), problem.property.c_str(), problem.error.message.c_str(),
                     problem.error.position, problem.expression.c_str());
}

// render IN.xml OUT.png [--project DIR] [--values FILE]
int Render(Arguments args)
{
    const char* project = nullptr;
    const char* valueSet = nullptr;
    bool usage = args.size() % 2 != 0;
    for (std::size_t option = 2; !usage && option < args.size(); option += 2) {
        if (std::string_view(args[option]) == "--project")
            project = args[option + 1];
        else if (std::string_view(args[option]) == "--values")
            valueSet = args[option + 1];
        else
            usage = true;
    }
    if (usage) {
        std::fprintf(stderr, "Usage: kelvo-hmi render IN.xml OUT.png [--project DIR] [--values FILE]\n");
        return 2;
    }
    if (project)
        SetProjectPath(project);
    else
        UseProjectOf(args[0]);
    CTamloDoc document;
    if (!LoadWindow(document, args[0]))
        return 1;
    if (project)
        document.SetPictureFolder(project);
    FileResult saved;
    if (valueSet) {
        CHmiVariableDatabase database;
        database.LoadProject(GetProjectPath());
        CPreviewValues values(database);
        const FileResult loaded = LoadValueSet(values, valueSet);
        if (!loaded)
            return Fail(loaded.error);
        for (const std::string& notice : loaded.notices)
            std::fprintf(stderr, "kelvo-hmi: %s: note: %s\n", valueSet, notice.c_str());
        values.AdvanceTo(0);
        const CPreviewScene scene(document, values);
        ReportBindingProblems(args[0], scene);
        saved = DrawPreviewToPng(document, scene, args[1]);
    } else {
        saved = DrawWindowToPng(document, args[1]);
    }
    if (!saved)
        return Fail(saved.error);
    for (const std::string& notice : saved.notices)
        std::fprintf(stderr, "kelvo-hmi: %s\n", notice.c_str());
    return 0;
}

const Command kCommands[] = {
    {"list", "list WINDOW.xml", "one line per widget: name, class, left, top, right, bottom", 1, 1, false, List},
    {"roundtrip", "roundtrip IN.xml OUT.xml", "load a window file and save it as the editor does", 2, 2, true,
     RoundTrip},
    {"vars", "vars PROJECT", "every variable reference the project offers, one per line", 1, 1, false, Vars},
    {"render", "render IN.xml OUT.png [--project DIR] [--values FILE]",
     "draw the window as the canvas does (pictures from DIR, else beside IN.xml), or with the values of a value set",
     2, 6, true, Render},
    {"check", "check PROJECT [--format text|json|sarif] [--strict]",
     "check every window of the project; exit status 1 on errors (or warnings with --strict)", 1, 4, false,
     CheckCommand},
    {"rename-var", "rename-var PROJECT OLD NEW [--dry-run] [--declarations]",
     "rename a variable in every window (and where rtdb.xml / hmidb.xml declare it), printing each change", 3,
     5, false, RenameVarCommand},
    {"render-all", "render-all PROJECT OUTDIR", "draw every window of the project into OUTDIR/WINDOW.png, in parallel",
     2, 2, false, RenderAllCommand},
};

void PrintUsage(std::FILE* out)
{
    std::fprintf(out, "Usage: kelvo-hmi [--modules DIR] COMMAND [ARGS]\n\nCommands:\n");
    for (const Command& command : kCommands)
        std::fprintf(out, "  %-30.*s %.*s\n", int(command.usage.size()), command.usage.data(),
                     int(command.summary.size()), command.summary.data());
    std::fprintf(out, "\nOptions:\n  %-30s %s\n  %-30s %s\n  %-30s %s\n", "--modules DIR",
                 "load the widget libraries of DIR too, after those the editor loads (may be repeated)", "--help",
                 "show this help", "--version", "show the version");
}

// Registers the widget classes: the built-in ones, and those of the libraries the editor would
// load, and of the folders given. What went wrong with a library is told on stderr; the command
// runs all the same.
void RegisterWidgetClasses(const std::vector<std::string>& modules)
{
    // Without a state folder: a library that crashed the editor is skipped only by the editor.
    const WidgetLibraryLoadReport report = LoadWidgetLibraries(WidgetLibraryFolders(modules), {});
    for (const WidgetLibraryLoad& library : report.libraries)
        if (library.Failed())
            std::fprintf(stderr, "kelvo-hmi: note: widget library %s: %s: %s\n", library.file.c_str(),
                         OutcomeText(library.outcome), library.reason.c_str());
}

} // namespace

int main(int argc, char* argv[])
{
    // --modules DIR may stand anywhere, and more than once.
    std::vector<char*> arguments(argv + 1, argv + argc);
    std::vector<std::string> modules;
    for (auto option = std::find(arguments.begin(), arguments.end(), std::string_view("--modules"));
         option != arguments.end(); option = std::find(option, arguments.end(), std::string_view("--modules"))) {
        if (option + 1 == arguments.end()) {
            PrintUsage(stderr);
            return 2;
        }
        modules.emplace_back(*(option + 1));
        option = arguments.erase(option, option + 2);
    }
    const Arguments args(arguments);
    if (args.empty()) {
        PrintUsage(stderr);
        return 2;
    }
    const std::string_view first = args[0];
    if (first == "--help" || first == "-h") {
        PrintUsage(stdout);
        return 0;
    }
    if (first == "--version") {
        std::printf("kelvo-hmi %s\n", KELVO_VERSION);
        return 0;
    }
    for (const Command& command : kCommands) {
        if (command.name != first)
            continue;
        const int count = int(args.size()) - 1;
        if (count < command.minArguments || count > command.maxArguments) {
            std::fprintf(stderr, "Usage: kelvo-hmi %.*s\n", int(command.usage.size()), command.usage.data());
            return 2;
        }
        RegisterWidgetClasses(modules);
        if (!command.draws)
            return command.run(args.subspan(1));
        // Drawing needs fonts, hence an application object; no display is needed.
        PrepareOffscreenDrawing();
        QGuiApplication application(argc, argv);
        return command.run(args.subspan(1));
    }
    std::fprintf(stderr, "kelvo-hmi: unknown command '%s'\n\n", args[0]);
    PrintUsage(stderr);
    return 2;
}
