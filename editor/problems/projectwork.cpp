#include "projectwork.h"

#include "base/textcodec.h"
#include "project/projectpath.h"

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// Answers the project walk's question whether a window file is open, and keeps the open windows
// it met, which are the project's.
class COpenWindowMatch {
public:
    explicit COpenWindowMatch(const std::vector<OpenWindow>& open) : m_open(open) {}

    std::function<bool(const std::string&)> Question()
    {
        return [this](const std::string& path) {
            for (const OpenWindow& window : m_open) {
                std::error_code error;
                if (fs::equivalent(window.path, path, error)) {
                    m_met.push_back({path, window.document});
                    return true;
                }
            }
            return false;
        };
    }
    // The open windows of the project, under the paths the project gives them.
    const std::vector<OpenWindow>& Met() const { return m_met; }

private:
    const std::vector<OpenWindow>& m_open;
    std::vector<OpenWindow> m_met;
};

} // namespace

std::string ProjectFileName(const std::string& folder, const std::string& path)
{
    return Utf8ToGb2312OrKeep(fs::path(path).lexically_relative(folder).generic_string());
}

FileResult FindReferencesInProject(const std::string& folder, std::string_view reference,
                                   const std::vector<OpenWindow>& open, std::vector<ReferenceUse>& uses)
{
    COpenWindowMatch match(open);
    std::vector<ReferenceUse> fromFiles;
    FileResult result = FindProjectReferences(folder, reference, fromFiles, match.Question());
    uses.clear();
    if (!result)
        return result;
    for (const OpenWindow& window : match.Met()) {
        std::vector<ReferenceUse> found =
            FindReferences(*window.document, ProjectFileName(GetProjectPath(), window.path), reference);
        std::move(found.begin(), found.end(), std::back_inserter(uses));
    }
    std::move(fromFiles.begin(), fromFiles.end(), std::back_inserter(uses));
    return result;
}

FileResult CProjectRenameRun::Plan(const std::string& folder, std::string_view from, std::string_view to,
                                   bool declarations, const std::vector<OpenWindow>& open)
{
    *this = {};
    COpenWindowMatch match(open);
    ProjectRename files;
    if (FileResult planned = PlanProjectRename(folder, from, to, declarations, files, match.Question()); !planned)
        return planned;
    m_folder = GetProjectPath();
    m_from = from;
    m_to = to;
    m_renamedInMemory = match.Met();
    for (const OpenWindow& window : m_renamedInMemory) {
        std::vector<ReferenceChange> changes =
            PreviewRenameReference(*window.document, ProjectFileName(m_folder, window.path), from, to);
        std::move(changes.begin(), changes.end(), std::back_inserter(m_changes));
    }
    std::move(files.changes.begin(), files.changes.end(), std::back_inserter(m_changes));
    m_files = std::move(files);
    m_planned = true;
    return FileResult::Success();
}

FileResult CProjectRenameRun::Apply(std::vector<std::string>& written)
{
    written.clear();
    if (!m_planned)
        return FileResult::Failure("Nothing is planned to be renamed.");
    if (FileResult applied = ApplyProjectRename(m_files, written); !applied)
        return applied;
    for (const OpenWindow& window : m_renamedInMemory)
        RenameReference(*window.document, ProjectFileName(m_folder, window.path), m_from, m_to);
    m_planned = false;
    return FileResult::Success();
}
