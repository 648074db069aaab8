#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

class XmlElement;

// The variables a project offers to bind to, as the variable picker shows them: a tree of
// databases and data groups whose nodes hold rows. Realtime databases come from rtdb.xml, HMI
// variables from hmidb.xml. The picker only displays this model.

// One row of a node, by the node's kind: a realtime data item or alias, an HMI variable that
// mirrors a realtime one (io), or an HMI variable of its own (memory).
struct VariableRow {
    enum class Kind { Data, Alias, Io, Memory };
    Kind kind = Kind::Data;
    std::string name;        // data name; the alias name for an alias; the HMI name otherwise
    std::string type;        // full type name
    std::string length;
    std::string init;
    std::string description;
    std::string alias;       // an alias row: the name it stands for
    std::string dbname;      // io: the realtime database ...
    std::string dataname;    // ... and the variable there
};

struct VariableNode {
    enum class Kind { RealtimeRoot, HmiRoot, HmiIo, HmiMemory, Database, Group };
    Kind kind;
    std::string text;
    VariableNode* parent = nullptr;
    std::vector<VariableNode*> children; // owned by the database
    std::vector<VariableRow> rows;
};

class CHmiVariableDatabase {
public:
    CHmiVariableDatabase();
    CHmiVariableDatabase(const CHmiVariableDatabase&) = delete;
    CHmiVariableDatabase& operator=(const CHmiVariableDatabase&) = delete;

    // Reads what the picker shows: projectPath + "rtdb.xml", then "conffile/rtdb.xml" relative
    // to the current folder, then projectPath + "hmidb.xml". Nothing is read without a project.
    void LoadProject(const std::string& projectPath);
    // Each returns 1 when the file's root was right and 0 otherwise (nothing added then).
    int ReadRealtimeDatabase(const std::string& path);
    int ReadHmiDatabase(const std::string& path);

    VariableNode& RealtimeRoot() { return *m_realtime; }
    VariableNode& HmiRoot() { return *m_hmi; }
    const VariableNode& RealtimeRoot() const { return *m_realtime; }
    const VariableNode& HmiRoot() const { return *m_hmi; }

    // The list columns for a node's rows, and one row's cells in those columns.
    static std::vector<std::string> Columns(const VariableNode& node);
    static std::vector<std::string> Cells(const VariableNode& node, const VariableRow& row);
    // The text a chosen row gives: "$database.data" for realtime rows, "$name" for HMI rows.
    static std::string ReferenceText(const VariableNode& node, const VariableRow& row);

    // Every reference text the project offers, in tree order.
    std::vector<std::string> AllReferenceTexts() const;

private:
    // Adds the data groups inside a container as folders under folder, handing every other
    // element to readRow with the folder it stands in.
    void WalkGroups(const XmlElement& container, VariableNode* folder, bool namedGroupsOnly,
                    const std::function<void(const XmlElement&, VariableNode&)>& readRow);
    VariableNode* AddNode(VariableNode* parent, VariableNode::Kind kind, std::string text);

    std::vector<std::unique_ptr<VariableNode>> m_nodes; // flat, so no depth is ever recursed
    VariableNode* m_realtime;
    VariableNode* m_hmi;
    VariableNode* m_hmiIo;
    VariableNode* m_hmiMemory;
};
