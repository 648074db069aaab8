#pragma once

#include <functional>
#include <string>

// One HMI window of a project, as its window list (hmiwindow.xml) declares it.
struct HmiWindowEntry {
    std::string name;
    std::string caption;
    std::string filename; // the window file, relative to the project folder
};

// Hands every `window` entry of a window list to the receiver, in file order. Returns 1 when
// the file's root is `hmiwindow` (also without entries) and 0 when it cannot be read, is not
// XML or has another root.
int ReadWindowList(const std::string& path, const std::function<void(const HmiWindowEntry&)>& receiver);
