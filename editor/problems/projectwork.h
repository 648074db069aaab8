#pragma once

#include "project/fileio.h"
#include "workspace/variablerename.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class CTamloDoc;

// A window the editor has open: its window file and the document that holds it, perhaps with
// changes that are not saved yet. Work on the whole project takes such a window as it is in
// memory rather than as its file on disk says.
struct OpenWindow {
    std::string path;
    CTamloDoc* document;
};

// The name a window file has in the project's lists: relative to the project folder, in the
// editor's text form.
std::string ProjectFileName(const std::string& folder, const std::string& path);

// Every use of a variable reference in the project's windows, the open ones as they are in memory.
FileResult FindReferencesInProject(const std::string& folder, std::string_view reference,
                                   const std::vector<OpenWindow>& open, std::vector<ReferenceUse>& uses);

// A rename of a variable reference across the project, planned in full before anything changes.
// Window files that are open are renamed in memory, where the user sees the change and saves
// it with the window; the others are written together, all or none.
class CProjectRenameRun {
public:
    // Works the rename out without changing anything; on failure nothing is planned.
    FileResult Plan(const std::string& folder, std::string_view from, std::string_view to, bool declarations,
                    const std::vector<OpenWindow>& open);
    bool IsPlanned() const { return m_planned; }
    // What the rename changes, in the open windows first.
    const std::vector<ReferenceChange>& Changes() const { return m_changes; }
    // The files it writes, relative to the project folder.
    const std::vector<std::string>& FilesToWrite() const { return m_files.names; }

    // Writes the planned files; only when all of them were written are the open windows renamed.
    // A failure leaves every file and window as it was.
    FileResult Apply(std::vector<std::string>& written);

private:
    std::string m_folder, m_from, m_to;
    std::vector<OpenWindow> m_renamedInMemory;
    ProjectRename m_files;
    std::vector<ReferenceChange> m_changes;
    bool m_planned = false;
};
