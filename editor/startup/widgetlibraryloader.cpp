#include "widgetlibraryloader.h"

#include "widgets/catalogue/builtinwidgets.h"
#include "widgets/core/hmiwidget.h"
#include "widgets/core/widgetlibrary.h"

#include <algorithm>
#include <cstddef>
#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace {

using WidgetsLibInitFunction = int (*)();

std::vector<std::filesystem::path> SharedObjectsIn(const std::string& folder)
{
    std::vector<std::filesystem::path> paths;
    std::error_code error;
    // Made absolute so that dlopen takes the file itself and never searches the library path.
    const std::filesystem::path root = std::filesystem::absolute(folder, error);
    for (std::filesystem::directory_iterator it(root, error), end; !error && it != end; it.increment(error)) {
        if (it->path().extension() == ".so" && it->is_regular_file(error))
            paths.push_back(it->path());
    }
    std::sort(paths.begin(), paths.end(),
              [](const auto& a, const auto& b) { return a.filename() < b.filename(); });
    return paths;
}

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

} // namespace

WidgetLibraryLoadReport LoadWidgetLibraries(const std::string& folder)
{
    // Built-ins first: the first class registered under a key wins, so no library can replace one.
    RegisterBuiltinWidgetClasses();

    WidgetLibraryLoadReport report;
    for (const std::filesystem::path& path : SharedObjectsIn(folder)) {
        const std::string name = path.filename().string();
        void* handle = dlopen(path.c_str(), RTLD_NOW);
        if (!handle) {
            report.skipped.push_back(name);
            continue;
        }
        // Accepted libraries, and those without an entry point, stay loaded until the process
        // ends: their handles are dropped on purpose, as their code may be running any time.
        const auto init = reinterpret_cast<WidgetsLibInitFunction>(dlsym(handle, "WidgetsLibInit"));
        if (!init) {
            report.kept.push_back(name);
            continue;
        }
        const std::size_t classCount = CHmiWidget::WidgetClassList.size();
        const std::size_t libraryCount = RegisteredWidgetLibs().size();
        if (init() != 0) {
            report.kept.push_back(name);
            continue;
        }
        WithdrawRegistrationsSince(classCount, libraryCount);
        dlclose(handle);
        report.declined.push_back(name);
    }
    return report;
}
