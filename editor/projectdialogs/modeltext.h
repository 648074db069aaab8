#pragma once

#include "base/textcodec.h"

#include <QString>

#include <string>

// The model keeps its texts in the editor's code page (GB2312); Qt wants Unicode. Dialogs
// convert at their own edges; text that does not convert is kept byte for byte.
inline QString FromModel(const std::string& text)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(text));
}

inline std::string ToModel(const QString& text)
{
    return Utf8ToGb2312OrKeep(text.toStdString());
}
