#include "dialogservices.h"

#include "base/textcodec.h"

#include <QColorDialog>

QColor ChooseColorWithDialog(const QColor& initial, QWidget* parent)
{
    return QColorDialog::getColor(initial, parent);
}

QColor ToQColor(HmiColor color)
{
    return QColor(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF));
}

HmiColor ToHmiColor(const QColor& color)
{
    return HmiRgb(std::uint8_t(color.red()), std::uint8_t(color.green()), std::uint8_t(color.blue()));
}

QString FromModelText(std::string_view text)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(text));
}

std::string ToModelText(const QString& text)
{
    return Utf8ToGb2312OrKeep(text.toStdString());
}
