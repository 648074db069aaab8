#include "recentfilelist.h"

#include <QSettings>

namespace {

const QString kGroup = QStringLiteral("Recent File List");

QString EntryKey(int index)
{
    return QStringLiteral("File%1").arg(index + 1);
}

} // namespace

CRecentFileList::CRecentFileList(QSettings& settings) : m_settings(settings)
{
    m_settings.beginGroup(kGroup);
    for (int i = 0; i < kSize; ++i) {
        const QString path = m_settings.value(EntryKey(i)).toString();
        if (!path.isEmpty() && !m_files.contains(path))
            m_files.append(path);
    }
    m_settings.endGroup();
}

void CRecentFileList::Add(const QString& path)
{
    // Storing an unchanged list would still have the settings file written out and synced.
    if (!m_files.isEmpty() && m_files.first() == path)
        return;
    m_files.removeAll(path);
    m_files.prepend(path);
    while (m_files.size() > kSize)
        m_files.removeLast();
    Store();
}

void CRecentFileList::Remove(const QString& path)
{
    if (m_files.removeAll(path) > 0)
        Store();
}

void CRecentFileList::Store() const
{
    m_settings.beginGroup(kGroup);
    m_settings.remove(QString());
    for (int i = 0; i < m_files.size(); ++i)
        m_settings.setValue(EntryKey(i), m_files[i]);
    m_settings.endGroup();
}
