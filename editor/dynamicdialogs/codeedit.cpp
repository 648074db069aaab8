#include "codeedit.h"

#include <QFontDatabase>
#include <QFontMetrics>

namespace {

constexpr int kTabStopColumns = 4;

} // namespace

CCodeEdit::CCodeEdit(QWidget* parent) : QPlainTextEdit(parent)
{
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    // Where the platform names no fixed font of its own, font matching still picks a fixed-pitch face.
    fixed.setStyleHint(QFont::TypeWriter);
    setFont(fixed);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(QFontMetrics(font()).horizontalAdvance(QLatin1Char(' ')) * kTabStopColumns);
}

void CCodeEdit::SetCode(const QString& code)
{
    m_givenCode = code;
    setPlainText(code);
    document()->setModified(false);
}

QString CCodeEdit::Code() const
{
    // The editor shows a lone CR as a line break too, so only untouched text keeps its own line ends.
    if (!document()->isModified())
        return m_givenCode;
    QString code = toPlainText();
    code.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
    return code;
}
