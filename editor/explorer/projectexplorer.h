#pragma once

#include <QIcon>
#include <QTimer>
#include <QTreeWidget>

class CFileWatch;
class CProjectContents;
struct VariableNode;

// The project explorer: what the current project folder holds, as a tree. The windows with
// the window list's captions (window files that the list lacks, and listed windows whose file
// is missing, are marked), the realtime databases with their groups and variables, the HMI
// variables, the history-database and data-log names and the pictures. Activating a window
// asks for it to be opened; a variable's context menu offers "Find References".
//
// The explorer shows the project at GetProjectPath() as it was at the last Refresh, and reads
// it again by itself when another program changes the project's files. It is empty until the
// first Refresh, so that building it costs a start nothing.
class CProjectExplorer : public QTreeWidget {
    Q_OBJECT
public:
    explicit CProjectExplorer(QWidget* parent = nullptr);

    // Reads the current project again; the open branches and the current item stay as they were.
    void Refresh();

signals:
    // The full path of the window file to open, or to bring to the front when it is open.
    void windowOpenRequested(const QString& path);
    // The reference as the variable picker writes it: "$database.data" or "$name".
    void findReferencesRequested(const QString& variableReference);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void AddWindows(const CProjectContents& contents);
    // The tree of databases, groups and variables below a root of the variable database.
    void AddVariables(const VariableNode& root);
    // Names from a project file are in the model's text form, file names in the file system's.
    using TextOf = QString (*)(const std::string&);
    void AddNames(const QString& heading, const std::vector<std::string>& names, TextOf textOf);
    QTreeWidgetItem* AddHeading(const QString& text);
    // The style's folder icon, read from its images once rather than for every folder.
    const QIcon& FolderIcon();

    CFileWatch* m_watch;
    QAction* m_findReferences;
    // A program that saves changes several files in a row: the explorer reads them once.
    QTimer m_refreshSoon;
    QIcon m_folderIcon;
};
