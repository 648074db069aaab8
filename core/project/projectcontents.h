#pragma once

#include "variabledatabase.h"

#include <string>
#include <vector>

// A window of the project: one that the window list names, or a window file that lies in the
// project folder without the list naming it.
struct ProjectWindow {
    std::string name;     // empty for a window the list lacks
    std::string caption;
    std::string filename; // relative to the project folder
    bool listed = true;   // the window list names it
    bool present = true;  // its file is in the folder
};

// What the current project folder holds, as the project explorer shows it: the windows, the
// variables the picker offers, the history-database and data-log names and the picture files.
// It is read once, when it is made; a change on disk needs a new one.
class CProjectContents {
public:
    // Reads the project at GetProjectPath(); without a project everything stays empty and no
    // file is touched.
    CProjectContents();

    const std::string& Folder() const { return m_folder; }
    // The listed windows in the list's order, then the unlisted ones by file name.
    const std::vector<ProjectWindow>& Windows() const { return m_windows; }
    const CHmiVariableDatabase& Variables() const { return m_variables; }
    const std::vector<std::string>& HistoryDatabases() const { return m_historyDatabases; }
    const std::vector<std::string>& DataLogs() const { return m_dataLogs; }
    // The picture files of the folder, by name.
    const std::vector<std::string>& Pictures() const { return m_pictures; }

    // The folder and the project files that these contents come from: a change to any of them
    // may change the contents.
    std::vector<std::string> SourcePaths() const;

private:
    // The listed windows, then the window files among the folder's files that the list lacks.
    void ReadWindows(const std::vector<std::string>& files);

    std::string m_folder;
    std::vector<ProjectWindow> m_windows;
    CHmiVariableDatabase m_variables;
    std::vector<std::string> m_historyDatabases;
    std::vector<std::string> m_dataLogs;
    std::vector<std::string> m_pictures;
};
