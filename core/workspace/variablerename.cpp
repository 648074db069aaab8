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

// Whether a use continues the last one: a binding's type repeats its runtime expression, and
// its references count with it.
bool SamePlace(const ReferenceUse& last, const ReferenceUse& use)
{
    return last.widget == use.widget && last.place == use.place;
}

// Renames the reference in one text of the use's place and records the change; returns whether
// the text changed.
bool RenameText(std::vector<ReferenceChange>& changes, ReferenceUse use, std::string& text, std::string_view from,
                std::string_view to)
{
    std::string before = text;
    use.count = ReplaceVariableReference(text, from, to);
    if (use.count == 0)
        return false;
    if (!changes.empty() && SamePlace(changes.back().use, use))
        changes.back().use.count += use.count;
    else
        changes.push_back({std::move(use), std::move(before), text});
    return true;
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
            const ReferenceUse use{file, widget->GetWidgetName(), place, CountReferences(text, reference)};
            if (use.count == 0)
                return;
            if (!uses.empty() && SamePlace(uses.back(), use))
                uses.back().count += use.count;
            else
                uses.push_back(use);
        });
    }
    return uses;
}

std::vector<ReferenceChange> RenameReference(CTamloDoc& document, const std::string& file, std::string_view from,
                                             std::string_view to)
{
    std::vector<ReferenceChange> changes;
    const CTamloDoc::CChangeBatch batch(document); // the window's observers hear of one rename
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        if (document.IsWidgetDeleted(widget.get()))
            continue;
        const DocChange changed = EditVariableTexts(*widget, [&](const WidgetPlace& place, std::string& text) {
            return RenameText(changes, {file, widget->GetWidgetName(), place, 0}, text, from, to);
        });
        if (changed != DocChange::None)
            document.WidgetChanged(*widget, changed);
    }
    return changes;
}

std::vector<ReferenceChange> PreviewRenameReference(const CTamloDoc& document, const std::string& file,
                                                    std::string_view from, std::string_view to)
{
    std::vector<ReferenceChange> changes;
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        if (document.IsWidgetDeleted(widget.get()))
            continue;
        ForEachVariableText(*widget, [&](const WidgetPlace& place, const std::string& text) {
            std::string renamed = text;
            RenameText(changes, {file, widget->GetWidgetName(), place, 0}, renamed, from, to);
        });
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
                                 std::vector<ReferenceUse>& uses, const std::function<bool(const std::string& path)>& isOpen)
{
    uses.clear();
    return ForEachProjectWindow(folder, [&](CTamloDoc& document, const ProjectWindowFile& window) {
        std::vector<ReferenceUse> found = FindReferences(document, window.file, reference);
        std::move(found.begin(), found.end(), std::back_inserter(uses));
        return FileResult::Success();
    }, isOpen);
}

FileResult ApplyProjectRename(const ProjectRename& plan, std::vector<std::string>& written)
{
    std::size_t replaced = 0;
    FileResult result = WriteFilesAtomically(plan.files, replaced);
    written.assign(plan.names.begin(), plan.names.begin() + std::ptrdiff_t(replaced));
    return result;
}
