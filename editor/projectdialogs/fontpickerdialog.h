#pragma once

#include "projectcontext.h"

#include "widgets/hmidc.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QPushButton;
class QSpinBox;

// The font picker of font rows: face, pixel height, weight, the three style flags and the text
// colour. What the dialog does not show (character set, pitch and family) stays as it was.
class CFontPickerDialog : public QDialog {
    Q_OBJECT
public:
    CFontPickerDialog(const HmiFont& font, HmiColor color, ProjectContext::ColorChooser chooseColor,
                      QWidget* parent = nullptr);

    HmiFont Font() const;
    HmiColor Color() const { return m_color; }

private:
    void ChooseColor();
    void ShowColor();

    HmiFont m_initial;
    HmiColor m_color;
    ProjectContext::ColorChooser m_chooseColor;
    QComboBox* m_face;
    QSpinBox* m_height;
    QCheckBox* m_bold;
    QCheckBox* m_italic;
    QCheckBox* m_underline;
    QCheckBox* m_strikeOut;
    QPushButton* m_colorButton;
};
