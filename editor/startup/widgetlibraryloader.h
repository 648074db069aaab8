#pragma once

#include <string>
#include <vector>

// What became of a shared object of the modules folder.
enum class LibraryOutcome {
    Loaded,            // WidgetsLibInit accepted: the library stays loaded with its classes
    NoEntryPoint,      // stays loaded, but has no WidgetsLibInit and so registers nothing
    Declined,          // WidgetsLibInit returned 0: unloaded again
    NotLoaded,         // the dynamic loader could not load it
    Threw,             // WidgetsLibInit threw: unloaded again, as if it had declined
    Refused,           // another user could have put it there or changed it: never loaded
    SkippedAfterCrash, // it ended an earlier start while it was loaded: not loaded until asked for
};

struct WidgetLibraryLoad {
    std::string file; // the file name; the folder's path when the folder itself is refused
    std::string path; // the canonical path
    LibraryOutcome outcome;
    std::string reason; // the details: classes registered, the loader's or the exception's message, ...

    // Something went wrong that the user should look at; declining is the library's own choice.
    bool Failed() const;
};

struct WidgetLibraryLoadReport {
    std::string folder;      // the modules folder, absolute
    std::string stateFolder; // where the libraries that crashed a start are remembered
    std::vector<WidgetLibraryLoad> libraries; // in loading order
};

// Registers the built-in widget classes, then loads every `*.so` file of the folder in file-name
// order and lets each register its classes through `extern "C" int WidgetsLibInit()`. A relative
// folder is taken from the current directory; a missing one leaves just the built-ins.
//
// A library that declines or throws is unloaded with every registration it made, and none of
// them can stop the loading of the others. Files and folders that another user controls are
// refused (see ListModulesFolder), and a library that crashed an earlier start is skipped (see
// CLibraryCrashGuard, which keeps its files in stateFolder). Nothing is shown to the user: the
// report says what became of each library and why.
WidgetLibraryLoadReport LoadWidgetLibraries(const std::string& folder, const std::string& stateFolder);
