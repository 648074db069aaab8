#include "historydatabase.h"

#include "project/namelists.h"

HistoryDatabaseChoice::HistoryDatabaseChoice()
    : m_historyNames(GetHmiHistoryDbname, kMaxHistoryDbNames, "history database")
{
}

void HistoryDatabaseChoice::ReadHistoryName(const std::string& name, std::string_view widgetKind,
                                            std::string_view widgetName)
{
    m_nHistoryName = m_historyNames.IndexOf(name);
    if (m_nHistoryName >= 0)
        return;
    m_nHistoryName = m_historyNames.Keep(name);
    m_historyNames.ReportKept(widgetKind, widgetName);
}

std::vector<ProjectNameUse> HistoryDatabaseChoice::ProjectNamesUsed() const
{
    return {{ProjectNameUse::Kind::HistoryDatabase, "historyname", HistoryName(),
             !m_historyNames.IsKept(m_nHistoryName)}};
}
