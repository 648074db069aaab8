#pragma once

#include "dialogservices.h"
#include "widgets/hmiwidgetprop.h"

#include <QDialog>

#include <memory>
#include <vector>

class CCodeEdit;
class CHmiDynamicType;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

// "Dynamic Property": binds one property to an expression. The user picks one of the six
// binding types, types the expression (or, for a script, the code), picks variables into it and
// opens the type's own settings. Clearing the expression of a bound property and pressing OK
// deletes the binding, after a question.
class CDynPropertyDialog : public QDialog {
    Q_OBJECT
public:
    enum class Outcome {
        Unchanged, // cancelled, or nothing to bind and nothing to delete
        Bound,     // TakeBinding has the new binding
        Deleted,   // the user confirmed deleting the binding
    };

    CDynPropertyDialog(const CHmiWidgetProp& prop, DynamicDialogServices services, QWidget* parent = nullptr);
    ~CDynPropertyDialog() override;

    void accept() override;

    Outcome GetOutcome() const { return m_outcome; }
    // The binding the user accepted (null unless the outcome is Bound).
    std::unique_ptr<CHmiDynamicType> TakeBinding();

    // The runtime expression of the binding as the dialog stands; shown under the fields.
    QString ComposedExpression();

private:
    CHmiDynamicType& CurrentBinding();
    bool IsScript() const;
    QString CurrentExpressionText() const;
    void SyncExpression();
    void ShowType();
    void UpdatePreview();
    void InsertVariable();
    void EditSettings();

    DynamicDialogServices m_services;
    bool m_wasBound;
    // One binding per type, in the order of the type list, so that switching the type back and
    // forth keeps what was set for each.
    std::vector<std::unique_ptr<CHmiDynamicType>> m_bindings;
    Outcome m_outcome = Outcome::Unchanged;

    QComboBox* m_typeBox;
    QStackedWidget* m_editors;
    QLineEdit* m_expressionEdit;
    CCodeEdit* m_scriptEdit;
    QPushButton* m_variableButton;
    QPushButton* m_settingsButton;
    QLabel* m_preview;
};
