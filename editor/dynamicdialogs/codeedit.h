#pragma once

#include <QPlainTextEdit>

// A multi-line editor for script code in a fixed-pitch font. Script text keeps CR LF line ends:
// text that the user leaves untouched comes back exactly as it was given, and edited text comes
// back with CR LF after every line.
class CCodeEdit : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit CCodeEdit(QWidget* parent = nullptr);

    void SetCode(const QString& code);
    QString Code() const;

private:
    QString m_givenCode;
};
