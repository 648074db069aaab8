#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QStringList>

// Tells when watched files or folders change on disk. A file that another program replaces by
// renaming a new one over it (as careful programs save) stays watched: the watch moves on to
// the new file.
class CFileWatch : public QObject {
    Q_OBJECT
public:
    explicit CFileWatch(QObject* parent = nullptr);

    // Watches exactly these paths from now on; a path where nothing is yet is left out.
    void Watch(const QStringList& paths);

signals:
    void changed(const QString& path);

private:
    void FileChanged(const QString& path);

    QFileSystemWatcher m_watcher;
};
