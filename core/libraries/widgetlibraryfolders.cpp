#include "widgetlibraryfolders.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view kProgramFolderName = "kelvo-hmi-editor";

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

// An empty path when neither XDG_DATA_HOME nor HOME is set.
std::filesystem::path UserDataFolder()
{
    // A relative XDG_DATA_HOME is invalid and ignored, as the desktops do.
    if (const std::filesystem::path data = Environment("XDG_DATA_HOME"); data.is_absolute())
        return data;
    if (const std::string home = Environment("HOME"); !home.empty())
        return std::filesystem::path(home) / ".local/share";
    return {};
}

// Found from the running program, so that an installation works under any prefix.
std::filesystem::path InstalledModulesFolder()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        return {};
    return (program.parent_path() / KELVO_MODULES_FROM_PROGRAM).lexically_normal();
}

} // namespace

std::vector<std::string> WidgetLibraryFolders(const std::vector<std::string>& commandLineFolders)
{
    std::vector<std::string> folders{"modules"};
    if (const std::filesystem::path data = UserDataFolder(); !data.empty())
        folders.push_back((data / kProgramFolderName / "modules").string());
    if (const std::filesystem::path installed = InstalledModulesFolder(); !installed.empty())
        folders.push_back(installed.string());
    const std::string listed = Environment("KELVO_WIDGET_MODULES");
    for (std::size_t start = 0; start <= listed.size();) {
        const std::size_t end = std::min(listed.find(':', start), listed.size());
        if (end > start)
            folders.push_back(listed.substr(start, end - start));
        start = end + 1;
    }
    folders.insert(folders.end(), commandLineFolders.begin(), commandLineFolders.end());
    return folders;
}
