#include "librarycrashguard.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace {

std::string LinkPath(const std::string& stateFolder)
{
    return stateFolder + "/loading-widget-library";
}

std::string ListPath(const std::string& stateFolder)
{
    return stateFolder + "/crashed-widget-libraries";
}

FileResult WriteList(const std::string& stateFolder, const std::vector<std::string>& libraries)
{
    std::string bytes;
    for (const std::string& library : libraries)
        bytes.append(library).push_back('\0');
    return WriteFileAtomically(ListPath(stateFolder), bytes);
}

} // namespace

CLibraryCrashGuard::CLibraryCrashGuard(std::string stateFolder)
    : m_stateFolder(std::move(stateFolder))
    , m_crashed(CrashedLibraries(m_stateFolder))
{
    const std::string link = LinkPath(m_stateFolder);
    std::error_code error;
    const std::string crashed = std::filesystem::read_symlink(link, error).string();
    if (error)
        return;
    if (!CrashedBefore(crashed)) {
        m_crashed.push_back(crashed);
        WriteList(m_stateFolder, m_crashed);
    }
    ::unlink(link.c_str());
}

bool CLibraryCrashGuard::CrashedBefore(const std::string& library) const
{
    return std::find(m_crashed.begin(), m_crashed.end(), library) != m_crashed.end();
}

CLibraryCrashGuard::CLoading::CLoading(const CLibraryCrashGuard& guard, const std::string& library)
    : m_link(LinkPath(guard.m_stateFolder))
{
    if (::symlink(library.c_str(), m_link.c_str()) != 0)
        m_link.clear();
}

CLibraryCrashGuard::CLoading::~CLoading()
{
    if (!m_link.empty())
        ::unlink(m_link.c_str());
}

std::vector<std::string> CLibraryCrashGuard::CrashedLibraries(const std::string& stateFolder)
{
    std::vector<std::string> libraries;
    std::string bytes;
    if (!ReadWholeFile(ListPath(stateFolder), bytes))
        return libraries;
    for (std::size_t start = 0, end; (end = bytes.find('\0', start)) != std::string::npos; start = end + 1)
        libraries.push_back(bytes.substr(start, end - start));
    return libraries;
}

FileResult CLibraryCrashGuard::LoadAgainAtNextStart(const std::string& stateFolder, const std::string& library)
{
    std::vector<std::string> libraries = CrashedLibraries(stateFolder);
    std::erase(libraries, library);
    return WriteList(stateFolder, libraries);
}
