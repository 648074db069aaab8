#pragma once

#include "dialogservices.h"

#include <QPushButton>

// A button that shows a colour and lets the user choose another through the colour chooser.
class CColorButton : public QPushButton {
    Q_OBJECT
public:
    CColorButton(HmiColor color, ColorChooser chooser, QWidget* parent = nullptr);

    HmiColor Color() const { return m_color; }
    void SetColor(HmiColor color);

signals:
    void colorChanged(HmiColor color);

private:
    void Choose();

    HmiColor m_color;
    ColorChooser m_chooseColor;
};
