#pragma once

#include "editor/extensions/projectcontext.h"

#include <QDialog>

#include <optional>
#include <string>

class QLineEdit;
class QTreeWidget;

// "Project Window Information": the windows of the current project, from its window list, with
// a browse button that chooses another project folder. The folder chosen there becomes the
// project folder at once, whether the dialog then ends with OK or Cancel.
class CProjectWindowDialog : public QDialog {
    Q_OBJECT
public:
    CProjectWindowDialog(ProjectContext::DirectoryChooser chooseDirectory, QWidget* parent = nullptr);

    // The file name of the row chosen with OK, relative to the project folder and in the file
    // system's encoding; empty when no row was selected.
    const std::string& ChosenFile() const { return m_chosenFile; }

private:
    void ShowProject();
    // What the column needs for its title and its rows.
    int ColumnWidth(int column) const;
    void Browse();
    void TakeChosenRow();

    ProjectContext::DirectoryChooser m_chooseDirectory;
    QTreeWidget* m_list;
    QLineEdit* m_path;
    std::string m_chosenFile;
};

// Runs the dialog; the full path of the window file to open, or nothing when the dialog was
// cancelled or no row was chosen.
std::optional<std::string> ChooseProjectWindow(QWidget* parent, const ProjectContext& context = {});
