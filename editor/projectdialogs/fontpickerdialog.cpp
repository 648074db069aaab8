#include "fontpickerdialog.h"

#include "dialogbuttons.h"
#include "modeltext.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPixmap>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cstdlib>

namespace {

constexpr std::int32_t kNormalWeight = 400;
constexpr std::int32_t kBoldWeight = 700;
constexpr std::int32_t kLeastBoldWeight = 600;
constexpr int kLargestHeight = 1000;
constexpr int kSwatchSize = 16;

QColor ToQColor(HmiColor color)
{
    return QColor(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF));
}

HmiColor FromQColor(const QColor& color)
{
    return HmiColor(color.red()) | HmiColor(color.green()) << 8 | HmiColor(color.blue()) << 16;
}

QCheckBox* FlagBox(const QString& text, bool checked, QWidget* parent)
{
    auto* box = new QCheckBox(text, parent);
    box->setChecked(checked);
    return box;
}

} // namespace

CFontPickerDialog::CFontPickerDialog(const HmiFont& font, HmiColor color, ProjectContext::ColorChooser chooseColor,
                                     QWidget* parent)
    : QDialog(parent), m_initial(font), m_color(color), m_chooseColor(std::move(chooseColor)),
      m_face(new QComboBox(this)), m_height(new QSpinBox(this)),
      m_bold(FlagBox(tr("Bold"), font.weight >= kLeastBoldWeight, this)),
      m_italic(FlagBox(tr("Italic"), font.italic, this)),
      m_underline(FlagBox(tr("Underline"), font.underline, this)),
      m_strikeOut(FlagBox(tr("Strikeout"), font.strikeOut, this)), m_colorButton(new QPushButton(tr("Color..."), this))
{
    setWindowTitle(tr("Font"));
    // The face is kept as written, also one this machine does not have.
    m_face->setEditable(true);
    m_face->addItems(QFontDatabase::families());
    m_face->setCurrentText(FromModel(font.face));
    m_height->setRange(0, kLargestHeight);
    m_height->setValue(std::abs(font.height));
    m_height->setSuffix(tr(" px"));
    connect(m_colorButton, &QPushButton::clicked, this, &CFontPickerDialog::ChooseColor);
    ShowColor();

    auto* form = new QFormLayout;
    form->addRow(tr("Font"), m_face);
    form->addRow(tr("Height"), m_height);
    form->addRow(tr("Color"), m_colorButton);
    for (QCheckBox* flag : {m_bold, m_italic, m_underline, m_strikeOut})
        form->addRow(flag);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    connect(AddOkCancelButtons(*this, *buttons).ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(buttons);
}

HmiFont CFontPickerDialog::Font() const
{
    HmiFont font = m_initial;
    font.face = ToModel(m_face->currentText());
    // A positive height is the cell height, a negative one the character height: keep the kind.
    font.height = m_initial.height > 0 ? m_height->value() : -m_height->value();
    if (m_bold->isChecked() != (m_initial.weight >= kLeastBoldWeight))
        font.weight = m_bold->isChecked() ? kBoldWeight : kNormalWeight;
    font.italic = m_italic->isChecked();
    font.underline = m_underline->isChecked();
    font.strikeOut = m_strikeOut->isChecked();
    return font;
}

void CFontPickerDialog::ChooseColor()
{
    const QColor chosen = m_chooseColor(this, ToQColor(m_color));
    if (!chosen.isValid())
        return;
    m_color = FromQColor(chosen);
    ShowColor();
}

void CFontPickerDialog::ShowColor()
{
    QPixmap swatch(kSwatchSize, kSwatchSize);
    swatch.fill(ToQColor(m_color));
    m_colorButton->setIcon(swatch);
}
