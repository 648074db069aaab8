#pragma once

#include <QFile>
#include <QString>

#include <string>

// File paths cross between the model (8-bit text, as the file system takes it) and the GUI here.
inline QString ToQtPath(const std::string& path)
{
    return QFile::decodeName(QByteArray::fromStdString(path));
}

inline std::string ToModelPath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}
