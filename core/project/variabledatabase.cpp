#include "variabledatabase.h"

#include "datatypes.h"
#include "xmldocument.h"

#include <functional>

namespace {

// The node directly under the top of the tree that holds this node: the database of a
// realtime node, the io or memory node of an HMI node. Null for the top nodes themselves.
const VariableNode* BranchOf(const VariableNode& node)
{
    const VariableNode* current = &node;
    if (!current->parent)
        return nullptr;
    while (current->parent->parent)
        current = current->parent;
    return current;
}

bool IsRealtime(const VariableNode& node)
{
    const VariableNode* branch = BranchOf(node);
    return branch && branch->kind == VariableNode::Kind::Database;
}

void ReadRealtimeRow(const XmlElement& element, VariableNode& folder)
{
    if (element.Is("data")) {
        VariableRow row;
        row.name = element.Attribute("name");
        const std::string type = element.Attribute("type");
        row.init = element.Attribute("init");
        if (row.name.empty() || type.empty() || row.init.empty())
            return;
        row.length = element.Attribute("length");
        // A string needs its length; other types have theirs from the type table.
        if (row.length.empty()) {
            if (HmiTypeSize(type) <= 0)
                return;
            row.length = std::to_string(HmiTypeSize(type));
        }
        row.type = HmiTypeFullName(type);
        row.description = element.Attribute("description");
        folder.rows.push_back(std::move(row));
    } else if (element.Is("datalias")) {
        VariableRow row;
        row.kind = VariableRow::Kind::Alias;
        row.name = element.Attribute("aliasname");
        row.alias = element.Attribute("name");
        if (!row.name.empty() && !row.alias.empty())
            folder.rows.push_back(std::move(row));
    }
}

void ReadIoRow(const XmlElement& element, VariableNode& folder)
{
    if (!element.Is("data"))
        return;
    VariableRow& row = folder.rows.emplace_back();
    row.kind = VariableRow::Kind::Io;
    row.name = element.Attribute("name");
    row.dbname = element.Attribute("dbname");
    row.dataname = element.Attribute("dataname");
}

void ReadMemoryRow(const XmlElement& element, VariableNode& folder)
{
    if (!element.Is("data"))
        return;
    VariableRow& row = folder.rows.emplace_back();
    row.kind = VariableRow::Kind::Memory;
    row.name = element.Attribute("name");
    row.type = HmiTypeFullName(element.Attribute("type"));
    row.length = element.Attribute("length");
    row.init = element.Attribute("init");
}

} // namespace

CHmiVariableDatabase::CHmiVariableDatabase()
    : m_realtime(AddNode(nullptr, VariableNode::Kind::RealtimeRoot, "Realtime database")),
      m_hmi(AddNode(nullptr, VariableNode::Kind::HmiRoot, "HMI database")),
      m_hmiIo(AddNode(m_hmi, VariableNode::Kind::HmiIo, "Realtime related data")),
      m_hmiMemory(AddNode(m_hmi, VariableNode::Kind::HmiMemory, "Custom data"))
{
}

VariableNode* CHmiVariableDatabase::AddNode(VariableNode* parent, VariableNode::Kind kind, std::string text)
{
    auto node = std::make_unique<VariableNode>();
    node->kind = kind;
    node->text = std::move(text);
    node->parent = parent;
    if (parent)
        parent->children.push_back(node.get());
    m_nodes.push_back(std::move(node));
    return m_nodes.back().get();
}

void CHmiVariableDatabase::WalkGroups(const XmlElement& container, VariableNode* folder, bool namedGroupsOnly,
                                      const std::function<void(const XmlElement&, VariableNode&)>& readRow)
{
    // An explicit stack rather than recursion: groups may nest as deep as a file cares to.
    struct Level {
        XmlElement next;
        VariableNode* folder;
    };
    std::vector<Level> levels{{container.FirstChild(), folder}};
    while (!levels.empty()) {
        Level& level = levels.back();
        if (!level.next) {
            levels.pop_back();
            continue;
        }
        const XmlElement element = level.next;
        VariableNode* current = level.folder;
        level.next = element.Next();
        if (!element.Is("datagroup")) {
            readRow(element, *current);
            continue;
        }
        std::string name = element.Attribute("name");
        if (namedGroupsOnly && name.empty())
            continue;
        VariableNode* group = AddNode(current, VariableNode::Kind::Group, std::move(name));
        levels.push_back({element.FirstChild(), group});
    }
}

int CHmiVariableDatabase::ReadRealtimeDatabase(const std::string& path)
{
    const XmlDocument document = XmlDocument::Load(path);
    const XmlElement root = document.Root();
    if (!root.Is("rtdbs"))
        return 0;
    for (XmlElement database : ChildElements(root)) {
        std::string name = database.Attribute("name");
        if (!database.Is("rtdb") || name.empty())
            continue;
        VariableNode* node = AddNode(m_realtime, VariableNode::Kind::Database, std::move(name));
        WalkGroups(database, node, true, ReadRealtimeRow);
    }
    return 1;
}

int CHmiVariableDatabase::ReadHmiDatabase(const std::string& path)
{
    const XmlDocument document = XmlDocument::Load(path);
    const XmlElement root = document.Root();
    if (!root.Is("hmidb"))
        return 0;
    for (XmlElement group : ChildElements(root)) {
        if (!group.Is("datagroup"))
            continue;
        const std::string name = group.Attribute("name");
        if (name == "io")
            WalkGroups(group, m_hmiIo, false, ReadIoRow);
        else if (name == "memory")
            WalkGroups(group, m_hmiMemory, false, ReadMemoryRow);
    }
    return 1;
}

void CHmiVariableDatabase::LoadProject(const std::string& projectPath)
{
    if (projectPath.empty())
        return;
    ReadRealtimeDatabase(projectPath + "rtdb.xml");
    ReadRealtimeDatabase("conffile/rtdb.xml");
    ReadHmiDatabase(projectPath + "hmidb.xml");
}

std::vector<std::string> CHmiVariableDatabase::Columns(const VariableNode& node)
{
    if (IsRealtime(node))
        return {"Database name", "Data name", "Type", "Description", "Length", "Initial value", "Alias"};
    const VariableNode* branch = BranchOf(node);
    if (branch && branch->kind == VariableNode::Kind::HmiIo)
        return {"HMI data name", "Database name", "Data name"};
    if (branch && branch->kind == VariableNode::Kind::HmiMemory)
        return {"Data name", "Type", "Length", "Initial value"};
    return {};
}

std::vector<std::string> CHmiVariableDatabase::Cells(const VariableNode& node, const VariableRow& row)
{
    switch (row.kind) {
    case VariableRow::Kind::Data:
    case VariableRow::Kind::Alias:
        return {BranchOf(node)->text, row.name, row.type, row.description, row.length, row.init, row.alias};
    case VariableRow::Kind::Io:
        return {row.name, row.dbname, row.dataname};
    case VariableRow::Kind::Memory:
        return {row.name, row.type, row.length, row.init};
    }
    return {};
}

std::string CHmiVariableDatabase::ReferenceText(const VariableNode& node, const VariableRow& row)
{
    if (IsRealtime(node))
        return "$" + BranchOf(node)->text + "." + row.name;
    return "$" + row.name;
}

std::vector<std::string> CHmiVariableDatabase::AllReferenceTexts() const
{
    std::vector<std::string> texts;
    std::vector<const VariableNode*> pending{m_hmi, m_realtime};
    while (!pending.empty()) {
        const VariableNode* node = pending.back();
        pending.pop_back();
        for (const VariableRow& row : node->rows)
            texts.push_back(ReferenceText(*node, row));
        pending.insert(pending.end(), node->children.rbegin(), node->children.rend());
    }
    return texts;
}
