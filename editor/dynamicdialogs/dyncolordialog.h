#pragma once

#include "dialogservices.h"

#include <QDialog>

#include <functional>

class CColorButton;
class CColorLevelsEditor;
class CHmiDynColorAnalog;
class CHmiDynColorDigit;
class QFormLayout;

// "Dynamic Color Property Setting": the colours of a colour binding. A "color_digit" binding
// has an open colour (expression true) and a close colour; a "color_analog" binding has a
// default colour and up to 32 levels. The binding is changed only when the user presses OK.
class CDynColorDialog : public QDialog {
    Q_OBJECT
public:
    CDynColorDialog(CHmiDynColorDigit& binding, ColorChooser chooser, QWidget* parent = nullptr);
    CDynColorDialog(CHmiDynColorAnalog& binding, ColorChooser chooser, QWidget* parent = nullptr);

    void accept() override;

    // Null for a "color_digit" binding.
    CColorLevelsEditor* LevelsEditor() const { return m_levels; }

private:
    explicit CDynColorDialog(QWidget* parent);
    CColorButton* AddColorRow(const QString& label, const char* objectName, HmiColor color,
                              const ColorChooser& chooser);

    QFormLayout* m_form;
    CColorLevelsEditor* m_levels = nullptr;
    // Checks the user's input and stores it in the binding; false keeps the dialog open.
    std::function<bool()> m_apply;
};
