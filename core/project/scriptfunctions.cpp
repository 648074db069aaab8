#include "scriptfunctions.h"

#include "xmldocument.h"

#include <filesystem>
#include <system_error>

std::string ScriptFunction::InsertionText() const
{
    return signature.empty() ? name + "()" : signature;
}

std::vector<ScriptFunction> LoadScriptFunctions(const std::string& path)
{
    const XmlDocument document = XmlDocument::Load(path);
    const XmlElement root = document.Root();
    if (!root || !root.Is("functions"))
        return {};
    std::vector<ScriptFunction> functions;
    for (const XmlElement element : ChildElements(root)) {
        if (!element.Is("function"))
            continue;
        ScriptFunction function{element.Attribute("name"), element.Attribute("signature"),
                                element.Attribute("help")};
        if (!function.name.empty())
            functions.push_back(std::move(function));
    }
    return functions;
}

std::string FindScriptFunctionsFile(const std::vector<std::string>& folders)
{
    for (const std::string& folder : folders) {
        if (folder.empty())
            continue;
        const std::filesystem::path path = std::filesystem::path(folder) / kScriptFunctionsFileName;
        std::error_code error;
        if (std::filesystem::is_regular_file(path, error))
            return path.string();
    }
    return {};
}
