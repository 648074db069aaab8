#pragma once

#include "editor/recovery/recoverystore.h"

#include <QFile>
#include <QtGlobal>

#include <memory>

// A new session folder under the root; null, with the reason printed, when it cannot be made.
inline std::unique_ptr<CRecoverySession> NewSession(const QString& root)
{
    FileResult result;
    auto session = CRecoverySession::Create(root, result);
    if (!session)
        qWarning("%s", result.error.c_str());
    return session;
}

inline QByteArray ReadBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}
