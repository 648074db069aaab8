#include "hmiwidgethislist.h"

#include "controlpictures.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetHisList, CHmiCtrlWidget)

std::span<const PropertySpec<CHmiWidgetHisList>> CHmiWidgetHisList::Properties()
{
    using W = CHmiWidgetHisList;
    static const std::vector<PropertySpec<W>> properties = [] {
        std::vector<PropertySpec<W>> specs = {
            {.key = "rows", .label = "rows", .description = "Set the maximal rows of history data listview",
             .bindable = 0, .xmlType = "ushort", .number = &W::m_nRows, .read = FileNumber::Unsigned},
            {.key = "itemheight", .label = "itemheight", .description = "Set the item height", .bindable = 0,
             .number = &W::m_nItemHeight, .read = FileNumber::Unsigned},
            {.key = "dispfields", .label = "dispfields",
             .description = "Set the display fields of history data listview",
             .itemType = PROP_STATIC, .bindable = 0, .xmlType = "string", .text = &W::m_strDispFields},
            {.key = "redrawvar", .label = "redrawvar",
             .description = "Set the redraw variable,redraw history data listview when value=1",
             .itemType = PROP_VARIABLE, .bindable = 0, .xmlType = "string", .text = &W::m_strRedrawVar},
            HistoryNameProperty<W>(),
        };
        AppendTimeRangeProperties(specs, "list");
        specs.push_back({.key = "auto_update", .label = "auto update",
                         .description = "When history data change, auto update list widget",
                         .itemType = PROP_CHECKBOX, .xmlType = "uchar", .flag = &W::m_bAutoUpdate,
                         .read = FileNumber::Unsigned});
        specs.push_back({.key = "fieldswidth", .label = "", .description = "", .xmlType = "string",
                         .text = &W::m_strFieldsWidth, .declared = false});
        return specs;
    }();
    return properties;
}

std::span<const char* const> CHmiWidgetHisList::SaveOrder()
{
    static constexpr const char* order[] = {
        "historyname", "rows", "itemheight", "dispfields", "fieldswidth", "redrawvar", "startyear", "startmonth",
        "startday", "starthour", "startmin", "startsec", "endyear", "endmonth", "endday", "endhour", "endmin",
        "endsec", "auto_update"};
    return order;
}

CHmiWidgetHisList::CHmiWidgetHisList()
    : ListColumnsState("DateTime", "150")
{
    ShowHistoryNamesIn(*FindProperty("historyname"));
}

int CHmiWidgetHisList::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                         std::string_view length)
{
    const int known = CHmiTableWidget::SetWidgetProperty(name, type, value, length);
    PropertyRead(name);
    return known;
}

void CHmiWidgetHisList::CopyExtraState(CHmiWidgetHisList& copy) const
{
    copy.m_columns = m_columns;
    CopyHistoryNameTo(copy);
}

void CHmiWidgetHisList::SaveWidgetProperties(std::string& archive) const
{
    UpdateWidthsText();
    CHmiTableWidget::SaveWidgetProperties(archive);
}

void CHmiWidgetHisList::CreateEventItems()
{
    DeclareEvent("insertdata", "When Insert data", "When Insert data to list widget, system triggle this event.");
}

void CHmiWidgetHisList::DrawWithoutControl(CHmiDC& dc)
{
    DrawListPicture(dc, m_rect, m_columns);
}
