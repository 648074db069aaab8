#pragma once

#include <string>
#include <vector>

// What became of each shared object in the modules folder, by file name in loading order.
struct WidgetLibraryLoadReport {
    std::vector<std::string> kept;     // loaded and left loaded: accepted, or without an entry point
    std::vector<std::string> declined; // WidgetsLibInit returned 0: unloaded again
    std::vector<std::string> skipped;  // could not be loaded at all
};

// Registers the built-in widget classes, then loads every `*.so` file of the folder in file-name
// order and lets each register its classes through `extern "C" int WidgetsLibInit()`.
// A relative folder is taken from the current directory; a missing one leaves just the
// built-ins. Nothing is reported to the user: the editor shows the returned report, if anything.
WidgetLibraryLoadReport LoadWidgetLibraries(const std::string& folder);
