#include "variablerename.h"

#include "dictionaryrename.h"
#include "projectwindows.h"

#include "dynamics/expressiontext.h"
#include "project/projectpath.h"
#include "widgets/tamlodoc.h"

#include <algorithm>

namespace {

std::size_t CountReferences(std::string_view text, std::string_view reference)
{
    const std::vector<TextToken> tokens = FindVariableReferences(text);
    return std::size_t(std::count_if(tokens.begin(), tokens.end(), [&](const TextToken& token) {
        return text.substr(token.offset, token.length) == reference;
    }));
}

// Loads each window file of the project in turn; stops at the first that cannot be read.
FileResult ForEachProjectWindow(const std::string& folder,
                                const std::function<FileResult(CTamloDoc&, const ProjectWindowFile&)>& visit,
                                const std::function<bool(const std::string& path)>& isOpen = {})
{
    SetProjectPath(folder);
    for (const ProjectWindowFile& window : FindProjectWindows(GetProjectPath()).files) {
        if (isOpen && isOpen(window.path))
            continue;
        CTamloDoc document;
        if (FileResult loaded = document.Load(window.path); !loaded)
            return loaded;
        if (FileResult visited = visit(document, window); !visited)
            return visited;
    }
    return FileResult::Success();
}

} // namespace

std::vector<ReferenceUse> FindReferences(const CTamloDoc& document, const std::string& file,
                                         std::string_view reference)
{
    std::vector<ReferenceUse> uses;
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        if (document.IsWidgetDeleted(widget.get()))
            continue;
        ForEachVariableText(*widget, [&](const WidgetPlace& place, const std::string& text) {
            const std::size_t count = CountReferences(text, reference);
            if (count == 0)
                return;
            if (!uses.empty() && uses.back().widget == widget->GetWidgetName() && uses.back().place == place)
                uses.back().count += count; // a binding's type repeats its runtime expression
            else
                uses.push_back({file, widget->GetWidgetName(), place, count});
        });
    }
    return uses;
}

std::vector<ReferenceChange> RenameReference(CTamloDoc& document, const std::string& file, std::string_view from,
                                             std::string_view to)
{
    std::vector<ReferenceChange> changes;
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        if (document.IsWidgetDeleted(widget.get()))
            continue;
        const DocChange changed = EditVariableTexts(*widget, [&](const WidgetPlace& place, std::string& text) {
            std::string before = text;
            const std::size_t count = ReplaceVariableReference(text, from, to);
            if (count == 0)
                return false;
            if (!changes.empty() && changes.back().use.widget == widget->GetWidgetName() &&
                changes.back().use.place == place)
                changes.back().use.count += count;
            else
                changes.push_back({{file, widget->GetWidgetName(), place, count}, std::move(before), text});
            return true;
        });
        if (changed != DocChange::None)
            document.WidgetChanged(*widget, changed);
    }
    return changes;
}

FileResult PlanProjectRename(const std::string& folder, std::string_view from, std::string_view to,
                             bool declarations, ProjectRename& plan,
                             const std::function<bool(const std::string& path)>& isOpen)
{
    plan = {};
    ProjectRename planned;
    FileResult result = ForEachProjectWindow(folder, [&](CTamloDoc& document, const ProjectWindowFile& window) {
        std::vector<ReferenceChange> changes = RenameReference(document, window.file, from, to);
        if (changes.empty())
            return FileResult::Success();
        std::string text;
        if (FileResult checked = document.SerializeChecked(text); !checked)
            return checked;
        std::move(changes.begin(), changes.end(), std::back_inserter(planned.changes));
        planned.files.push_back({window.path, std::move(text)});
        planned.names.push_back(window.file);
        return FileResult::Success();
    }, isOpen);
    if (result && declarations) {
        std::vector<FileContent> files;
        std::vector<std::string> names;
        result = RenameDeclaredVariable(GetProjectPath(), from, to, files, names);
        std::move(files.begin(), files.end(), std::back_inserter(planned.files));
        std::move(names.begin(), names.end(), std::back_inserter(planned.names));
    }
    if (result)
        plan = std::move(planned);
    return result;
}

FileResult FindProjectReferences(const std::string& folder, std::string_view reference,
                                 std::vector<ReferenceUse>& uses)
{
    uses.clear();
    return ForEachProjectWindow(folder, [&](CTamloDoc& document, const ProjectWindowFile& window) {
        std::vector<ReferenceUse> found = FindReferences(document, window.file, reference);
        std::move(found.begin(), found.end(), std::back_inserter(uses));
        return FileResult::Success();
    });
}

FileResult ApplyProjectRename(const ProjectRename& plan, std::vector<std::string>& written)
{
    std::size_t replaced = 0;
    FileResult result = WriteFilesAtomically(plan.files, replaced);
    written.assign(plan.names.begin(), plan.names.begin() + std::ptrdiff_t(replaced));
    return result;
}
