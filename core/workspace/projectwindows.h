#pragma once

#include <string>
#include <vector>

// The window files of a project folder: those its hmiwindow.xml lists, then the ones it leaves
// out (files of the folder whose root is a window file's), so that a check or a rename misses
// none. File names are in the editor's text form, as the window list holds them.

struct ProjectWindowFile {
    std::string file; // relative to the project folder
    std::string path; // where it is, for the file system
    bool listed;
    std::string name; // the window's name in the list; empty for a file it does not list
};

struct ListedWindowWithoutFile {
    std::string name;
    std::string file;
};

struct ProjectWindows {
    std::vector<ProjectWindowFile> files;
    std::vector<ListedWindowWithoutFile> missing;
};

// `folder` ends in "/".
ProjectWindows FindProjectWindows(const std::string& folder);

// The files of a project that are no window files, and the root element each must have.
struct ProjectFileKind {
    const char* name;
    const char* root;
    const char* olderRoot; // a root of an older form the editor still reads, or null
};
const std::vector<ProjectFileKind>& ProjectFileKinds();
