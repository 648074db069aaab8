#include "widgetlibraryloader.h"

#include "librarycrashguard.h"
#include "modulesfolder.h"

#include "catalogue/builtinwidgets.h"
#include "widgets/hmiwidget.h"
#include "widgets/widgetlibrary.h"

#include <cstddef>
#include <dlfcn.h>
#include <exception>
#include <filesystem>
#include <optional>
#include <system_error>

namespace {

using WidgetsLibInitFunction = int (*)();

// A library may register classes and still decline. Its class records and library record point
// into code that dlclose unmaps, and creating a widget of such a class would crash the editor,
// so whatever its initialisation added to the registry is taken back before it is unloaded.
void WithdrawRegistrationsSince(std::size_t classCount, std::size_t libraryCount)
{
    auto& classes = CHmiWidget::WidgetClassList;
    if (classCount < classes.size())
        classes.erase(classes.begin() + std::ptrdiff_t(classCount), classes.end());
    TruncateRegisteredWidgetLibs(libraryCount);
}

// The dynamic loader's message without the path it starts with, which the report names anyway.
std::string LoaderError(const std::string& path)
{
    const char* error = dlerror();
    std::string message = error ? error : "unknown error";
    const std::string prefix = path + ": ";
    if (message.starts_with(prefix))
        message.erase(0, prefix.size());
    return message;
}

// The entry point's answer; 0 with the message kept when it throws, so that no library can end
// the editor with an exception.
int CallEntryPoint(WidgetsLibInitFunction init, std::optional<std::string>& thrown)
{
    try {
        return init();
    } catch (const std::exception& exception) {
        thrown = exception.what();
    } catch (...) {
        thrown = "an exception that is no std::exception";
    }
    return 0;
}

std::string ClassCountText(std::size_t count)
{
    return "registered " + std::to_string(count) + (count == 1 ? " widget class" : " widget classes");
}

WidgetLibraryLoad Load(const ModuleFile& file, const CLibraryCrashGuard& guard)
{
    const auto outcome = [&file](LibraryOutcome what, std::string reason) {
        return WidgetLibraryLoad{file.name, file.path, what, std::move(reason)};
    };
    // Loading runs the library's own constructors, so a crash is blamed on it from here on.
    const CLibraryCrashGuard::CLoading loading(guard, file.path);
    void* handle = dlopen(file.path.c_str(), RTLD_NOW);
    if (!handle)
        return outcome(LibraryOutcome::NotLoaded, LoaderError(file.path));
    // Accepted libraries, and those without an entry point, stay loaded until the process
    // ends: their handles are dropped on purpose, as their code may be running any time.
    const auto init = reinterpret_cast<WidgetsLibInitFunction>(dlsym(handle, "WidgetsLibInit"));
    if (!init)
        return outcome(LibraryOutcome::NoEntryPoint, "it stays loaded but adds no widget classes");
    const std::size_t classCount = CHmiWidget::WidgetClassList.size();
    const std::size_t libraryCount = RegisteredWidgetLibs().size();
    std::optional<std::string> thrown;
    if (CallEntryPoint(init, thrown) != 0)
        return outcome(LibraryOutcome::Loaded, ClassCountText(CHmiWidget::WidgetClassList.size() - classCount));
    WithdrawRegistrationsSince(classCount, libraryCount);
    dlclose(handle);
    if (thrown)
        return outcome(LibraryOutcome::Threw, *thrown);
    return outcome(LibraryOutcome::Declined, "WidgetsLibInit returned 0");
}

} // namespace

bool WidgetLibraryLoad::Failed() const
{
    return outcome != LibraryOutcome::Loaded && outcome != LibraryOutcome::NoEntryPoint &&
           outcome != LibraryOutcome::Declined;
}

WidgetLibraryLoadReport LoadWidgetLibraries(const std::string& folder, const std::string& stateFolder)
{
    // Built-ins first: the first class registered under a key wins, so no library can replace one.
    RegisterBuiltinWidgetClasses();

    std::error_code error;
    WidgetLibraryLoadReport report{std::filesystem::absolute(folder, error).string(), stateFolder, {}};
    const CLibraryCrashGuard guard(stateFolder);
    for (const ModuleFile& file : ListModulesFolder(report.folder)) {
        if (!file.refusal.empty())
            report.libraries.push_back({file.name, file.path, LibraryOutcome::Refused, file.refusal});
        else if (guard.CrashedBefore(file.path))
            report.libraries.push_back({file.name, file.path, LibraryOutcome::SkippedAfterCrash,
                                        "it ended the editor while it was being loaded at an earlier start"});
        else
            report.libraries.push_back(Load(file, guard));
    }
    return report;
}
