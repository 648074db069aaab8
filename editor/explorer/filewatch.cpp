#include "filewatch.h"

#include "base/logcategories.h"

#include <QFileInfo>

CFileWatch::CFileWatch(QObject* parent)
    : QObject(parent)
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &CFileWatch::FileChanged);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &CFileWatch::changed);
}

void CFileWatch::Watch(const QStringList& paths)
{
    QStringList stale = m_watcher.files() + m_watcher.directories();
    QStringList added;
    for (const QString& path : paths) {
        if (!stale.removeOne(path) && QFileInfo::exists(path))
            added << path;
    }
    if (!stale.isEmpty())
        m_watcher.removePaths(stale);
    if (!added.isEmpty())
        m_watcher.addPaths(added);
}

void CFileWatch::FileChanged(const QString& path)
{
    qCDebug(lcProject, "%s changed on disk", qUtf8Printable(path));
    // The watcher drops a file that was removed or renamed away; a new file in its place is
    // the one to watch now.
    if (!m_watcher.files().contains(path) && QFileInfo::exists(path))
        m_watcher.addPath(path);
    emit changed(path);
}
