#include "namelists.h"

#include "projectpath.h"
#include "xmldocument.h"

namespace {

// Collects the `name` of each child element called itemName, up to limit names.
void CollectNames(const XmlElement& root, const char* itemName, int limit, std::string names[], int& count)
{
    for (XmlElement item : ChildElements(root)) {
        if (count >= limit)
            return;
        if (item.Is(itemName))
            names[count++] = item.Attribute("name");
    }
}

} // namespace

int GetHmiLognameDesp(std::string names[], int& count)
{
    count = 0;
    if (GetProjectPath().empty())
        return 0;
    const XmlDocument document = XmlDocument::Load(GetProjectPath() + "datalog.xml");
    const XmlElement root = document.Root();
    if (root.Is("datalog"))
        CollectNames(root, "log", kMaxDataLogNames, names, count);
    return 1;
}

int GetHmiHistoryDbname(std::string names[], int& count)
{
    count = 0;
    if (GetProjectPath().empty())
        return 0;
    const XmlDocument document = XmlDocument::Load(GetProjectPath() + "history.xml");
    const XmlElement root = document.Root();
    if (root.Is("zqhistory")) {
        CollectNames(root, "historydb", kMaxHistoryDbNames, names, count);
    } else if (root.Is("history")) {
        names[0].clear();
        count = 1;
    }
    return 1;
}

std::vector<std::string> GetHistoryVariableNames(const std::string& historyDbName)
{
    std::vector<std::string> names;
    if (GetProjectPath().empty())
        return names;
    const XmlDocument document = XmlDocument::Load(GetProjectPath() + "history.xml");
    const XmlElement root = document.Root();
    if (!root.Is("zqhistory"))
        return names;
    for (XmlElement database : ChildElements(root)) {
        if (!database.Is("historydb") || database.Attribute("name") != historyDbName)
            continue;
        for (XmlElement record : ChildElements(database))
            if (record.Is("history"))
                names.push_back(record.Attribute("dataname"));
        break;
    }
    return names;
}
