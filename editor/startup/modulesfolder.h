#pragma once

#include <string>
#include <vector>

// A shared object of the modules folder, checked before any of its code runs.
struct ModuleFile {
    std::string name;    // the file name; the folder's path when the folder itself is refused
    std::string path;    // the canonical path: what is loaded, and what a crash is blamed on
    std::string refusal; // why it must not be loaded; empty when it may
};

// The regular files named `*.so` in the folder (an absolute path), in file-name order.
//
// A library runs as the user who starts the editor, so whoever may put a file into the folder
// or change one there decides what runs. A file, or the folder that holds it (the folder a link
// leads into included), that belongs to another user than this one and root, or that its group
// or others may write, is refused with the reason. A folder that is refused is one entry that
// names it, and none of its files is looked at. The checks are made on open descriptors (fstat),
// and a trusted folder lets nobody else swap a checked file for another before it is loaded.
// A missing folder gives no entry.
std::vector<ModuleFile> ListModulesFolder(const std::string& folder);
