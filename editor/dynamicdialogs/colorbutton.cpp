#include "colorbutton.h"

#include <QPixmap>

namespace {

constexpr int kSwatchSize = 14;

} // namespace

CColorButton::CColorButton(HmiColor color, ColorChooser chooser, QWidget* parent)
    : QPushButton(parent), m_color(color), m_chooseColor(std::move(chooser))
{
    SetColor(color);
    connect(this, &QPushButton::clicked, this, &CColorButton::Choose);
}

void CColorButton::SetColor(HmiColor color)
{
    m_color = color;
    QPixmap swatch(kSwatchSize, kSwatchSize);
    swatch.fill(ToQColor(color));
    setIcon(swatch);
    // The value as it goes into the window file, so the user sees what is written.
    setText(QStringLiteral("0x%1").arg(color, 0, 16));
}

void CColorButton::Choose()
{
    const QColor chosen = m_chooseColor(ToQColor(m_color), this);
    if (!chosen.isValid())
        return;
    SetColor(ToHmiColor(chosen));
    emit colorChanged(m_color);
}
