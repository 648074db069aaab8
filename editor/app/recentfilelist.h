#pragma once

#include <QStringList>

class QSettings;

// The most recently opened window files, newest first, kept in the editor's profile.
class CRecentFileList {
public:
    static constexpr int kSize = 4;

    explicit CRecentFileList(QSettings& settings);

    void Add(const QString& path);
    void Remove(const QString& path);
    const QStringList& Files() const { return m_files; }

private:
    void Store() const;

    QSettings& m_settings;
    QStringList m_files;
};
