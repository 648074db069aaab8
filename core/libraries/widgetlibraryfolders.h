#pragma once

#include <string>
#include <vector>

// The folders both programs look for widget libraries in, in the order they are loaded (so that
// of two libraries with a class of the same key, the one in the earlier folder counts):
//
//   1. ./modules, in the current directory
//   2. the user's own: $XDG_DATA_HOME/kelvo-hmi-editor/modules (~/.local/share/... by default)
//   3. the installation's: lib/kelvo-hmi-editor/modules beside the program's own folder
//   4. the folders that KELVO_WIDGET_MODULES names, separated by colons
//   5. the folders given on the command line (--modules DIR), in their order
//
// Folders that do not exist are simply passed over when loading.
std::vector<std::string> WidgetLibraryFolders(const std::vector<std::string>& commandLineFolders);
