#include "projectwindows.h"

#include "base/textcodec.h"
#include "project/fileio.h"
#include "project/scriptfunctions.h"
#include "project/windowlist.h"
#include "project/xmldocument.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

bool IsRegularFile(const std::string& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

bool IsProjectFile(const std::string& name)
{
    const auto& kinds = ProjectFileKinds();
    return std::any_of(kinds.begin(), kinds.end(), [&](const ProjectFileKind& kind) { return name == kind.name; });
}

// The window files of the folder, by name, that the list leaves out. Only a file whose root is
// a window file's counts: the folder may hold other XML.
std::vector<std::string> UnlistedWindowFiles(const std::string& folder, const std::vector<std::string>& listed)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (entry.path().extension() != ".xml" || IsProjectFile(name) || !entry.is_regular_file(error) ||
            std::find(listed.begin(), listed.end(), name) != listed.end())
            continue;
        std::string bytes;
        if (ReadWholeFile(entry.path().string(), bytes) && XmlChildStream(bytes).RootName() == "hmiwidget")
            names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

const std::vector<ProjectFileKind>& ProjectFileKinds()
{
    static const std::vector<ProjectFileKind> kKinds = {
        {"hmiwindow.xml", "hmiwindow", nullptr}, {"rtdb.xml", "rtdbs", nullptr},
        {"hmidb.xml", "hmidb", nullptr},         {"history.xml", "zqhistory", "history"},
        {"datalog.xml", "datalog", nullptr},     {kScriptFunctionsFileName, "functions", nullptr},
    };
    return kKinds;
}

ProjectWindows FindProjectWindows(const std::string& folder)
{
    ProjectWindows windows;
    std::vector<std::string> listed; // file-system names
    ReadWindowList(folder + "hmiwindow.xml", [&](const HmiWindowEntry& entry) {
        const std::string name = fs::path(Gb2312ToUtf8OrKeep(entry.filename)).lexically_normal().string();
        if (entry.filename.empty() || !IsRegularFile(folder + name)) {
            windows.missing.push_back({entry.name, entry.filename});
            return;
        }
        if (std::find(listed.begin(), listed.end(), name) != listed.end())
            return; // two windows of one file: the file is checked and renamed once
        listed.push_back(name);
        windows.files.push_back({entry.filename, folder + name, true, entry.name});
    });
    for (const std::string& name : UnlistedWindowFiles(folder, listed))
        windows.files.push_back({Utf8ToGb2312OrKeep(name), folder + name, false, {}});
    return windows;
}
