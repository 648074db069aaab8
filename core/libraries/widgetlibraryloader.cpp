#include "widgetlibraryloader.h"

#include "librarycrashguard.h"
#include "modulesfolder.h"

#include "base/logcategories.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/hmiwidget.h"
#include "widgets/widgetlibrary.h"

#include <cstddef>
#include <dlfcn.h>
#include <exception>
#include <filesystem>
#include <optional>
#include <set>
#include <system_error>

namespace {

using WidgetsLibInitFunction = int (*)();

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

// Why a library that states the version (null when it states none) cannot be used; empty when it can.
std::string InterfaceMismatch(const int* version)
{
    const std::string expected = std::to_string(kWidgetLibraryInterfaceVersion);
    if (!version)
        return "it states no widget-library interface version; this program needs version " + expected;
    if (*version != kWidgetLibraryInterfaceVersion)
        return "it was built for widget-library interface version " + std::to_string(*version) +
               "; this program needs version " + expected;
    return {};
}

WidgetLibraryLoad Load(const ModuleFile& file, const std::string& folder, const CLibraryCrashGuard& guard)
{
    int version = 0;
    const auto outcome = [&](LibraryOutcome what, std::string reason) {
        return WidgetLibraryLoad{file.name, file.path, folder, version, what, std::move(reason)};
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
    // Read before the entry point runs: code built against another layout of the widget classes
    // would go wrong in ways nothing could report.
    const auto* stated = static_cast<const int*>(dlsym(handle, kWidgetLibraryInterfaceSymbol));
    version = stated ? *stated : 0;
    if (std::string mismatch = InterfaceMismatch(stated); !mismatch.empty()) {
        dlclose(handle);
        return outcome(LibraryOutcome::Incompatible, std::move(mismatch));
    }
    const CWidgetLibRegistrations before;
    std::optional<std::string> thrown;
    if (CallEntryPoint(init, thrown) != 0)
        return outcome(LibraryOutcome::Loaded, ClassCountText(before.AddedClassCount()));
    // A library may register classes and still decline. What it registered points into code
    // that dlclose unmaps, and creating a widget of such a class would crash the program, so it
    // is taken back before the library is unloaded.
    before.WithdrawAdded();
    dlclose(handle);
    if (thrown)
        return outcome(LibraryOutcome::Threw, *thrown);
    return outcome(LibraryOutcome::Declined, "WidgetsLibInit returned 0");
}

void LogOutcome(const WidgetLibraryLoad& library)
{
    qCDebug(lcLibraries, "%s: %s: %s", library.path.c_str(), OutcomeText(library.outcome), library.reason.c_str());
}

} // namespace

const char* OutcomeText(LibraryOutcome outcome)
{
    switch (outcome) {
    case LibraryOutcome::Loaded: return "loaded";
    case LibraryOutcome::NoEntryPoint: return "no entry point";
    case LibraryOutcome::Declined: return "declined";
    case LibraryOutcome::NotLoaded: return "cannot be loaded";
    case LibraryOutcome::Threw: return "threw";
    case LibraryOutcome::Refused: return "refused";
    case LibraryOutcome::Incompatible: return "incompatible";
    case LibraryOutcome::SkippedAfterCrash: break;
    }
    return "skipped after a crash";
}

bool WidgetLibraryLoad::Failed() const
{
    return outcome != LibraryOutcome::Loaded && outcome != LibraryOutcome::NoEntryPoint &&
           outcome != LibraryOutcome::Declined;
}

WidgetLibraryLoadReport LoadWidgetLibraries(const std::vector<std::string>& folders, const std::string& stateFolder)
{
    RegisterBuiltinWidgetClasses();

    WidgetLibraryLoadReport report{{}, stateFolder, {}};
    const CLibraryCrashGuard guard(stateFolder);
    std::set<std::string> seen;
    for (const std::string& given : folders) {
        std::error_code error;
        const std::string folder = std::filesystem::absolute(given, error).string();
        report.folders.push_back(folder);
        qCDebug(lcLibraries, "looking for widget libraries in %s%s", folder.c_str(),
                std::filesystem::is_directory(folder, error) ? "" : " (no such folder)");
        for (const ModuleFile& file : ListModulesFolder(folder)) {
            if (!seen.insert(file.path).second) {
                qCDebug(lcLibraries, "%s: already loaded from an earlier folder", file.path.c_str());
                continue;
            }
            const auto unloaded = [&](LibraryOutcome outcome, std::string reason) {
                report.libraries.push_back({file.name, file.path, folder, 0, outcome, std::move(reason)});
            };
            if (!file.refusal.empty())
                unloaded(LibraryOutcome::Refused, file.refusal);
            else if (guard.CrashedBefore(file.path))
                unloaded(LibraryOutcome::SkippedAfterCrash,
                         "it ended the editor while it was being loaded at an earlier start");
            else
                report.libraries.push_back(Load(file, folder, guard));
            LogOutcome(report.libraries.back());
        }
    }
    return report;
}
