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
    Incompatible,      // built for another interface version, or states none: unloaded unused
    SkippedAfterCrash, // it ended an earlier start while it was loaded: not loaded until asked for
};

// The outcome in a few words, as both programs report it ("loaded", "refused", ...).
const char* OutcomeText(LibraryOutcome outcome);

struct WidgetLibraryLoad {
    std::string file;   // the file name; the folder's path when the folder itself is refused
    std::string path;   // the canonical path
    std::string folder; // the folder of the search path it was found in, absolute
    int interfaceVersion; // as the library states it; 0 when it states none or was not read
    LibraryOutcome outcome;
    std::string reason; // the details: classes registered, the loader's or the exception's message, ...

    // Something went wrong that the user should look at; declining is the library's own choice.
    bool Failed() const;
};

struct WidgetLibraryLoadReport {
    std::vector<std::string> folders; // the folders looked in, absolute, in order
    std::string stateFolder; // where the libraries that crashed a start are remembered
    std::vector<WidgetLibraryLoad> libraries; // in loading order
};

// Registers the built-in widget classes (the first class registered under a key wins, so no
// library can replace one), then loads every `*.so` file of each folder in turn, in file-name
// order, and lets each register its classes through `extern "C" int WidgetsLibInit()`. Relative
// folders are taken from the current directory; missing ones are passed over, and a library
// file that an earlier folder already led to is not loaded twice.
//
// A library with an entry point must state the interface version it was built for
// (HMI_WIDGET_LIBRARY_INTERFACE); one that states another, or none, is unloaded before its
// entry point runs.
//
// A library that declines or throws is unloaded with every registration it made, and none of
// them can stop the loading of the others. Files and folders that another user controls are
// refused (see ListModulesFolder), and a library that crashed an earlier start is skipped (see
// CLibraryCrashGuard, which keeps its files in stateFolder). Nothing is shown to the user: the
// report says what became of each library and why.
WidgetLibraryLoadReport LoadWidgetLibraries(const std::vector<std::string>& folders, const std::string& stateFolder);
