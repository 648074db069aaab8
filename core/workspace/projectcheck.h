#pragma once

#include "widgettexts.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class CTamloDoc;

// The project check: what in a project's windows the panel would not find or not show as the
// editor does. One engine serves the command line and the editor's problem list alike.

enum class Severity { Warning, Error };

// A kind of finding. Its id is stable: scripts and code-scanning tools key on it.
struct CheckRule {
    const char* id;
    Severity severity;
    const char* summary;
};

// Every rule, in the order the check looks for them.
std::span<const CheckRule> CheckRules();

struct Finding {
    const CheckRule* rule;
    std::string file;   // relative to the project folder, as hmiwindow.xml names it
    std::string widget; // empty for what concerns the file as a whole
    WidgetPlace place;
    std::string message; // a sentence for the user; texts are in the editor's text form
};

// What the windows of a project are checked against: its variables and script functions, read
// once, and the picture files looked up so far.
class CProjectIndex {
public:
    // Reads the variables as the variable picker offers them and the functions of the folder's
    // hmifuncs.xml; `folder` ends in "/".
    explicit CProjectIndex(const std::string& folder);

    bool HasVariable(std::string_view reference) const;
    // Any name when the project has no hmifuncs.xml: then nothing tells what the panel offers.
    bool HasFunction(std::string_view name) const;
    // Whether a regular file is at the path (in the editor's text form); asked once per path.
    bool HasFile(const std::string& path) const;

private:
    std::unordered_set<std::string> m_variables;
    std::optional<std::unordered_set<std::string>> m_functions;
    mutable std::unordered_map<std::string, bool> m_files;
};

// Checks one window as its document holds it, open in the editor or just loaded: variable
// references, script calls, pictures, history and data-log names, classes, widget names,
// positions and texts. `file` names the window in the findings.
std::vector<Finding> CheckWindow(const CTamloDoc& document, const std::string& file, const CProjectIndex& index);

// Whether the finding is about what a window holds, as CheckWindow finds it, rather than about
// its file (missing, unlisted, unreadable) or the project's files.
bool IsWindowContentFinding(const Finding& finding);

// Checks the whole project in a folder: its project files, the windows of hmiwindow.xml and the
// window files it does not list. Sets the project path to the folder, since widgets read the
// project's names as they are made. `progress` hears after each window how many of how many
// are done.
std::vector<Finding> CheckProject(const std::string& folder,
                                  const std::function<void(std::size_t done, std::size_t total)>& progress = {});
