#pragma once

#include "projectwork.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

// "Rename Variable": renames a variable reference in every window of the project, and on request
// where rtdb.xml or hmidb.xml declare it. Preview lists each change (file, widget, place, the
// text before and after); only a preview of the references as they stand can be applied. Open
// windows change in memory and show as modified; the other files are written all or none.
class CRenameVariableDialog : public QDialog {
    Q_OBJECT
public:
    // `folder` is the project folder, ending in "/"; `from` fills the old reference.
    CRenameVariableDialog(std::string folder, std::vector<OpenWindow> open, const QString& from,
                          QWidget* parent = nullptr);

    // The files written by the last Apply, relative to the project folder.
    const std::vector<std::string>& WrittenFiles() const { return m_written; }

private:
    void Preview();
    void Apply();
    // The references are being edited: the preview no longer holds.
    void ForgetPreview();

    const std::string m_folder;
    const std::vector<OpenWindow> m_open;
    CProjectRenameRun m_run;
    std::vector<std::string> m_written;

    QLineEdit* m_from;
    QLineEdit* m_to;
    QCheckBox* m_declarations;
    QTreeWidget* m_changes;
    QLabel* m_status;
    QDialogButtonBox* m_buttons;
    QPushButton* m_applyButton;
};
