#include "projectcontents.h"

#include "fileio.h"
#include "namelists.h"
#include "projectpath.h"
#include "windowlist.h"
#include "xmldocument.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <iterator>
#include <set>

namespace {

// The project files other than the windows, relative to the project folder.
constexpr std::array kProjectFiles{"hmiwindow.xml", "rtdb.xml", "hmidb.xml", "history.xml", "datalog.xml"};
// The kinds of picture the picture widget shows.
constexpr std::array kPictureExtensions{".bmp", ".png", ".jpg", ".jpeg", ".gif"};

std::string LowerCase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return char(std::tolower(c)); });
    return text;
}

bool IsRegularFile(const std::filesystem::path& path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

// The names of the regular files in a folder, sorted; hidden files (a save's temporary among
// them) are left out.
std::vector<std::string> FileNames(const std::string& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        std::string name = entry->path().filename().string();
        if (!name.starts_with('.') && IsRegularFile(entry->path()))
            names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    return names;
}

// A window file is an XML file whose root is the window's.
bool IsWindowFile(const std::string& path)
{
    std::string bytes;
    return ReadWholeFile(path, bytes) && XmlChildStream(bytes).RootName() == "hmiwidget";
}

bool IsPicture(const std::string& name)
{
    const std::string extension = LowerCase(std::filesystem::path(name).extension().string());
    return std::find(kPictureExtensions.begin(), kPictureExtensions.end(), extension) != kPictureExtensions.end();
}

std::vector<std::string> ToVector(const std::string names[], int count)
{
    return std::vector<std::string>(names, names + count);
}

} // namespace

CProjectContents::CProjectContents()
    : m_folder(GetProjectPath())
{
    if (m_folder.empty())
        return;
    const std::vector<std::string> files = FileNames(m_folder);
    ReadWindows(files);
    m_variables.LoadProject(m_folder);
    std::string names[std::max(kMaxDataLogNames, kMaxHistoryDbNames)];
    int count = 0;
    GetHmiHistoryDbname(names, count);
    m_historyDatabases = ToVector(names, count);
    GetHmiLognameDesp(names, count);
    m_dataLogs = ToVector(names, count);
    std::copy_if(files.begin(), files.end(), std::back_inserter(m_pictures), IsPicture);
}

void CProjectContents::ReadWindows(const std::vector<std::string>& files)
{
    std::set<std::string> listed;
    ReadWindowList(m_folder + "hmiwindow.xml", [this, &listed](const HmiWindowEntry& entry) {
        listed.insert(entry.filename);
        const bool present = IsRegularFile(m_folder + entry.filename);
        m_windows.push_back({entry.name, entry.caption, entry.filename, true, present});
    });
    for (const std::string& name : files)
        if (!listed.contains(name) && LowerCase(name).ends_with(".xml") && IsWindowFile(m_folder + name))
            m_windows.push_back({{}, {}, name, false, true});
}

std::vector<std::string> CProjectContents::SourcePaths() const
{
    if (m_folder.empty())
        return {};
    std::vector<std::string> paths{m_folder};
    for (const char* file : kProjectFiles)
        paths.push_back(m_folder + file);
    return paths;
}
