#pragma once

#include "editor/extensions/projectcontext.h"

#include <QDialog>
#include <QHash>

#include <optional>
#include <string>

class CHmiVariableDatabase;
class QTableWidget;
class QTreeWidget;
class QTreeWidgetItem;
struct VariableNode;

// The variable picker "HMI Database": the project's databases and data groups as a tree, the
// rows of the chosen node in a list, and the reference text of the chosen row as its result.
// It opens on the row of the current reference, when there is one, and at a size that shows
// every column of a realtime database.
class CVariableDialog : public QDialog {
    Q_OBJECT
public:
    // current: the reference text of the value that the picker is opened for ("$plc.x1").
    CVariableDialog(const CHmiVariableDatabase& database, const std::string& current = {}, QWidget* parent = nullptr);

    // The chosen row's reference text in the editor's code page ("$plc.x1", "$speed"); empty
    // until OK succeeded.
    const std::string& Reference() const { return m_reference; }

private:
    void AddBranch(const VariableNode& top);
    void ShowRows(QTreeWidgetItem* item);
    // Makes the row of the reference the chosen one, with its node; false when there is none.
    bool ShowReference(const std::string& reference);
    QSize InitialSize() const;
    void TakeChosenRow();

    QTreeWidget* m_tree;
    QTableWidget* m_list;
    QHash<QTreeWidgetItem*, const VariableNode*> m_nodes;
    std::string m_reference;
};

// Runs the picker over a database; the reference text, or nothing when it was cancelled.
std::optional<QString> PickVariable(QWidget* parent, const CHmiVariableDatabase& database,
                                    const ProjectContext::DialogRunner& run = ProjectContext::RunModal);
// The same over the current project's databases, read afresh; this is the picker the
// expression dialogs take.
std::optional<QString> PickProjectVariable(QWidget* parent,
                                           const ProjectContext::DialogRunner& run = ProjectContext::RunModal);
