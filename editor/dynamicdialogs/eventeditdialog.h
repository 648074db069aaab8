#pragma once

#include "project/scriptfunctions.h"

#include <QDialog>

#include <vector>

class CCodeEdit;
class QLabel;
class QListWidget;
class QPushButton;

// "Event Edit": the script of one widget event, with the panel's script functions beside it.
// Choosing a function shows its help; Insert (or a double click) puts it at the cursor.
class CEventEditDialog : public QDialog {
    Q_OBJECT
public:
    CEventEditDialog(const QString& code, std::vector<ScriptFunction> functions, QWidget* parent = nullptr);

    // The code as the user left it (see CCodeEdit for its line ends).
    QString Code() const;

    CCodeEdit* CodeEdit() const { return m_codeEdit; }
    QListWidget* FunctionList() const { return m_functionList; }

private:
    void ShowHelp();
    void InsertFunction();

    std::vector<ScriptFunction> m_functions;
    CCodeEdit* m_codeEdit;
    QListWidget* m_functionList;
    QLabel* m_help;
    QPushButton* m_insertButton;
};
