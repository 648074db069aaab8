#pragma once

#include "widgettexts.h"

#include "project/fileio.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class CTamloDoc;

// Finding and renaming a variable reference ("$plc.level", "$setpoint") across the windows of a
// project: in variable properties, bindings (runtime expressions and the texts of their types)
// and event scripts. Only whole references match (expressiontext.h).

// Where a reference is used, and how often there.
struct ReferenceUse {
    std::string file;
    std::string widget;
    WidgetPlace place;
    std::size_t count;
};

// A text that a rename changes. A binding tells its runtime expression; `count` covers the
// texts of its type as well.
struct ReferenceChange {
    ReferenceUse use;
    std::string before;
    std::string after;
};

std::vector<ReferenceUse> FindReferences(const CTamloDoc& document, const std::string& file,
                                         std::string_view reference);

// Renames the reference in a document in memory, as the editor does for its open windows: each
// changed widget is told to the observers and the document is marked modified.
std::vector<ReferenceChange> RenameReference(CTamloDoc& document, const std::string& file, std::string_view from,
                                             std::string_view to);

// The changes RenameReference would make, leaving the document as it is.
std::vector<ReferenceChange> PreviewRenameReference(const CTamloDoc& document, const std::string& file,
                                                    std::string_view from, std::string_view to);

// A rename over a project's window files, worked out before anything is written.
struct ProjectRename {
    std::vector<ReferenceChange> changes;
    std::vector<FileContent> files; // the new content of each window file that changes
    std::vector<std::string> names; // those files relative to the project folder, in the same order
};

// Works out the rename in every window file of the project folder (projectwindows.h) but those
// `isOpen` claims, which the caller renames in memory, and with `declarations` in rtdb.xml and
// hmidb.xml too (dictionaryrename.h). Fails, planning nothing, when a file cannot be read, when
// the declarations cannot be renamed, or when a window's renamed content would not read back as
// it stands. Sets the project path to the folder, as widgets read the project's names when they
// are made.
FileResult PlanProjectRename(const std::string& folder, std::string_view from, std::string_view to,
                             bool declarations, ProjectRename& plan,
                             const std::function<bool(const std::string& path)>& isOpen = {});

// Every use of the reference in the project's window files but those `isOpen` claims; fails as
// PlanProjectRename does.
FileResult FindProjectReferences(const std::string& folder, std::string_view reference,
                                 std::vector<ReferenceUse>& uses,
                                 const std::function<bool(const std::string& path)>& isOpen = {});

// Writes the planned files together (WriteFilesAtomically): when one cannot be written, none
// changes. `written` names the files that were replaced.
FileResult ApplyProjectRename(const ProjectRename& plan, std::vector<std::string>& written);
