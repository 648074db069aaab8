#include "modulesfolder.h"

#include "project/openfile.h"
#include "project/trust.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace {

constexpr std::string_view kLibrarySuffix = ".so";

std::string TrustProblem(const OpenFile& file)
{
    struct stat info;
    if (::fstat(file.Fd(), &info) != 0)
        return std::strerror(errno);
    return TrustProblem(info);
}

std::string FolderTrustProblem(const std::string& folder)
{
    const OpenFile opened(::open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (!opened)
        return "its folder " + folder + " cannot be opened: " + std::strerror(errno);
    const std::string problem = TrustProblem(opened);
    return problem.empty() ? problem : "its folder " + folder + " is " + problem;
}

std::vector<std::string> LibraryNames(const OpenFile& folder)
{
    std::vector<std::string> names;
    // The listing gets a descriptor of its own; it reads the very folder that was checked.
    DIR* listing = ::fdopendir(::openat(folder.Fd(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!listing)
        return names;
    while (const dirent* entry = ::readdir(listing)) {
        const std::string_view name = entry->d_name;
        if (name.size() > kLibrarySuffix.size() && name.ends_with(kLibrarySuffix))
            names.emplace_back(name);
    }
    ::closedir(listing);
    std::sort(names.begin(), names.end());
    return names;
}

// Nothing for a name that leads to no regular file (a folder, a device, a link to nowhere).
std::optional<ModuleFile> CheckLibrary(const OpenFile& folder, const std::string& folderPath, const std::string& name)
{
    // O_PATH opens without reading, so that a device or a FIFO named like a library does nothing.
    const OpenFile file(::openat(folder.Fd(), name.c_str(), O_PATH | O_CLOEXEC));
    struct stat info;
    if (!file || ::fstat(file.Fd(), &info) != 0 || !S_ISREG(info.st_mode))
        return std::nullopt;
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(folderPath + "/" + name, error);
    if (error)
        return std::nullopt;
    std::string refusal = TrustProblem(info);
    if (refusal.empty())
        refusal = FolderTrustProblem(path.parent_path());
    return ModuleFile{name, path.string(), refusal};
}

} // namespace

std::vector<ModuleFile> ListModulesFolder(const std::string& folder)
{
    const OpenFile opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened) {
        if (errno == ENOENT || errno == ENOTDIR)
            return {};
        return {{folder, folder, std::string("cannot be opened: ") + std::strerror(errno)}};
    }
    if (std::string problem = TrustProblem(opened); !problem.empty())
        return {{folder, folder, problem}};
    std::vector<ModuleFile> files;
    for (const std::string& name : LibraryNames(opened))
        if (std::optional<ModuleFile> file = CheckLibrary(opened, folder, name))
            files.push_back(std::move(*file));
    return files;
}
