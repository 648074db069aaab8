#include "dictionaryrename.h"

#include "project/variabledatabase.h"
#include "project/xmldocument.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <system_error>

namespace {

// A reference split into its database (empty for an HMI variable) and its name.
struct VariableName {
    std::string database;
    std::string name;

    static VariableName Of(std::string_view reference)
    {
        reference.remove_prefix(1); // "$"
        const std::size_t dot = reference.find('.');
        if (dot == std::string_view::npos)
            return {{}, std::string(reference)};
        return {std::string(reference.substr(0, dot)), std::string(reference.substr(dot + 1))};
    }
};

// Every element below `top`, at any depth, without recursing.
void ForEachDescendant(const XmlElement& top, const std::function<void(const XmlElement&)>& visit)
{
    std::vector<XmlElement> pending = {top.FirstChild()};
    while (!pending.empty()) {
        const XmlElement element = pending.back();
        pending.pop_back();
        if (!element)
            continue;
        visit(element);
        pending.push_back(element.Next());
        pending.push_back(element.FirstChild());
    }
}

// Sets the attribute wherever it holds `from`; returns whether it did.
bool Rename(const XmlElement& element, const char* attribute, const std::string& from, const std::string& to)
{
    if (element.Attribute(attribute) != from)
        return false;
    element.SetAttribute(attribute, to);
    return true;
}

bool RenameInRealtimeDatabase(const XmlDocument& rtdb, const VariableName& from, const VariableName& to)
{
    bool renamed = false;
    for (const XmlElement database : ChildElements(rtdb.Root())) {
        if (!database.Is("rtdb") || database.Attribute("name") != from.database)
            continue;
        ForEachDescendant(database, [&](const XmlElement& element) {
            if (element.Is("data"))
                renamed |= Rename(element, "name", from.name, to.name);
            else if (element.Is("datalias"))
                renamed |= Rename(element, "aliasname", from.name, to.name) | Rename(element, "name", from.name, to.name);
        });
    }
    return renamed;
}

bool RenameInHmiDatabase(const XmlDocument& hmidb, const VariableName& from, const VariableName& to)
{
    bool renamed = false;
    ForEachDescendant(hmidb.Root(), [&](const XmlElement& element) {
        if (!element.Is("data"))
            return;
        if (from.database.empty())
            renamed |= Rename(element, "name", from.name, to.name);
        else if (element.Attribute("dbname") == from.database)
            renamed |= Rename(element, "dataname", from.name, to.name);
    });
    return renamed;
}

} // namespace

FileResult RenameDeclaredVariable(const std::string& projectFolder, std::string_view from, std::string_view to,
                                  std::vector<FileContent>& changed, std::vector<std::string>& names)
{
    changed.clear();
    names.clear();
    CHmiVariableDatabase database;
    database.LoadProject(projectFolder);
    const std::vector<std::string> declared = database.AllReferenceTexts();
    const auto declares = [&](std::string_view reference) {
        return std::find(declared.begin(), declared.end(), reference) != declared.end();
    };
    if (!declares(from))
        return FileResult::Failure("The project declares no variable " + std::string(from) + ".");
    if (declares(to))
        return FileResult::Failure("The project declares the variable " + std::string(to) + " already.");
    const VariableName oldName = VariableName::Of(from), newName = VariableName::Of(to);
    if (oldName.database != newName.database)
        return FileResult::Failure("A rename keeps a variable in its database: " + std::string(from) +
                                   " cannot become " + std::string(to) + ".");

    const auto renameIn = [&](const char* file, bool (*rename)(const XmlDocument&, const VariableName&,
                                                                 const VariableName&)) {
        const std::string path = projectFolder + file;
        std::error_code error;
        if (!std::filesystem::exists(path, error))
            return FileResult::Success();
        const XmlDocument document = XmlDocument::LoadForEditing(path);
        if (!document.IsValid())
            return FileResult::Failure("Cannot read " + path + ": " + document.Error());
        if (rename(document, oldName, newName)) {
            changed.push_back({path, document.Text()});
            names.push_back(file);
        }
        return FileResult::Success();
    };
    FileResult result = oldName.database.empty() ? FileResult::Success()
                                                 : renameIn("rtdb.xml", RenameInRealtimeDatabase);
    if (result)
        result = renameIn("hmidb.xml", RenameInHmiDatabase);
    if (!result) {
        changed.clear();
        names.clear();
    }
    return result;
}
