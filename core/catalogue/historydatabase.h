#pragma once

#include "projectnamechoice.h"
#include "propertytable.h"
#include "widgets/projectnameuse.h"

#include <string>
#include <string_view>

// The history database that a history widget (curve or list) shows, chosen among the project's
// databases. The file gets the database's name; a name the project does not list is kept as it
// is (see ProjectNameChoice).
class HistoryDatabaseChoice : public CProjectNameUser {
public:
    HistoryDatabaseChoice();

    // The history databases of the project, read when the widget is made.
    const ProjectNameChoice& HistoryNames() const { return m_historyNames; }
    // The name the widget writes and whose variables it offers; it may be one the project lacks.
    std::string HistoryName() const { return m_historyNames.NameAt(m_nHistoryName); }
    // Chooses the database a file names; one the project does not list is kept and reported.
    void ReadHistoryName(const std::string& name, std::string_view widgetKind, std::string_view widgetName);
    std::vector<ProjectNameUse> ProjectNamesUsed() const override;

    std::int32_t m_nHistoryName = 0; // index into HistoryNames()

protected:
    void ShowHistoryNamesIn(CHmiWidgetProp& record) { m_historyNames.ShowIn(record); }
    void CopyHistoryNameTo(HistoryDatabaseChoice& copy) const { copy.m_historyNames.KeepAsIn(m_historyNames); }

private:
    ProjectNameChoice m_historyNames;
};

// The `historyname` record of a history widget: a combo of the project's databases.
template <class Widget>
PropertySpec<Widget> HistoryNameProperty()
{
    return {.key = "historyname", .label = "historyname", .description = "Set history name",
            .itemType = PROP_COMBO, .bindable = 0, .xmlType = "string",
            .number = &Widget::m_nHistoryName,
            .writeText = [](const Widget& w) { return w.HistoryName(); },
            .readText = [](Widget& w, std::string_view name) {
                w.ReadHistoryName(std::string(name), Widget::kKindName, w.GetWidgetName());
            }};
}
