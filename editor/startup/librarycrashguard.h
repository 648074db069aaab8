#pragma once

#include "project/fileio.h"

#include <string>
#include <vector>

// Keeps a widget library that crashes the editor while it is loaded from crashing every later
// start. Two files in the editor's state folder hold what that takes:
//
//   loading-widget-library    a symbolic link to the library being loaded and initialised,
//                             there only while that is under way
//   crashed-widget-libraries  the canonical paths of the libraries that ended a start, each
//                             followed by a zero byte (which no path holds)
//
// A start that finds the link left behind knows which library ended the editor, and adds it to
// the list. The libraries on the list are skipped until the user asks for one to be loaded again.
// Without a usable state folder there is no guard, and loading goes on as ever.
class CLibraryCrashGuard {
public:
    // Takes over the link that a crashed start left behind.
    explicit CLibraryCrashGuard(std::string stateFolder);

    bool CrashedBefore(const std::string& library) const;

    // Blames a crash on the library for as long as it lives. A symbolic link is written in one
    // system call, so a crash never leaves half a name, and costs no more than that call.
    class CLoading {
    public:
        CLoading(const CLibraryCrashGuard& guard, const std::string& library);
        ~CLoading();
        CLoading(const CLoading&) = delete;
        CLoading& operator=(const CLoading&) = delete;

    private:
        std::string m_link; // empty when it could not be written
    };

    static std::vector<std::string> CrashedLibraries(const std::string& stateFolder);
    // Takes the library off the list, so that the next start loads it again.
    static FileResult LoadAgainAtNextStart(const std::string& stateFolder, const std::string& library);

private:
    std::string m_stateFolder;
    std::vector<std::string> m_crashed;
};
