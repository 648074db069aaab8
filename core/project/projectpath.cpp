#include "projectpath.h"

namespace {

std::string& ProjectPath()
{
    static std::string path;
    return path;
}

} // namespace

const std::string& GetProjectPath()
{
    return ProjectPath();
}

void SetProjectPath(const std::string& folder)
{
    ProjectPath() = folder;
    if (!folder.empty() && folder.back() != '/')
        ProjectPath() += '/';
}

std::optional<std::string> TakeProjectArgument(std::string& argument)
{
    if (argument.empty() || argument[0] != '*')
        return std::nullopt;
    const std::size_t second = argument.find('*', 1);
    if (second == std::string::npos)
        return std::nullopt;
    if (second == 1) {
        argument.erase(0, 2);
        return std::string("./");
    }
    std::string folder = argument.substr(1, second - 1);
    argument = folder + "/" + argument.substr(second + 1);
    return folder;
}
