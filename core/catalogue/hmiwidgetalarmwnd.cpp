#include "hmiwidgetalarmwnd.h"

#include "controlpictures.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetAlarmWnd, CHmiCtrlWidget)

namespace {

constexpr const char* kDispTypeChoices[] = {"Display All alarm history", "Only alarm data"};

} // namespace

std::span<const PropertySpec<CHmiWidgetAlarmWnd>> CHmiWidgetAlarmWnd::Properties()
{
    using W = CHmiWidgetAlarmWnd;
    auto colour = [](const char* key, const char* label, const char* description, HmiColor W::*member) {
        return PropertySpec<W>{.key = key, .label = label, .description = description, .itemType = PROP_COLOR,
                               .color = member, .read = FileNumber::Unsigned};
    };
    static const PropertySpec<W> properties[] = {
        {.key = "rows", .label = "Rows", .description = "Max display rows", .bindable = 0, .xmlType = "ushort",
         .number = &W::m_nRows, .read = FileNumber::Unsigned},
        colour("confirmcolor", "Confirm color", "set confirm color", &W::m_confirmColor),
        colour("restorecolor", "Restore color", "set restore color", &W::m_restoreColor),
        colour("alarmcolor", "Alarm color", "set alarm color", &W::m_alarmColor),
        colour("highhighcolor", "High High Color", "Set high high color", &W::m_highHighColor),
        colour("highcolor", "High color", "Set high color", &W::m_highColor),
        colour("lowlowcolor", "Low low color", "Set low low color", &W::m_lowLowColor),
        colour("lowcolor", "Low color", "Set low color", &W::m_lowColor),
        colour("opencolor", "Open color", "Set open alarm color", &W::m_openColor),
        colour("closecolor", "Close color", "Set close alarm color", &W::m_closeColor),
        {.key = "dispfields", .label = "Display fields", .description = "Set display fields",
         .itemType = PROP_STATIC, .bindable = 0, .xmlType = "string", .text = &W::m_strDispFields},
        {.key = "itemheight", .label = "Item height", .description = "Set Item height", .bindable = 0,
         .number = &W::m_nItemHeight, .read = FileNumber::Unsigned},
        {.key = "disptype", .label = "Display Type", .description = "Set display type", .itemType = PROP_COMBO,
         .bindable = 0, .number = &W::m_nDispType, .read = FileNumber::Unsigned, .choices = kDispTypeChoices},
        {.key = "fieldswidth", .label = "", .description = "", .xmlType = "string", .text = &W::m_strFieldsWidth,
         .declared = false},
    };
    return properties;
}

std::span<const char* const> CHmiWidgetAlarmWnd::SaveOrder()
{
    static constexpr const char* order[] = {
        "rows", "confirmcolor", "restorecolor", "alarmcolor", "dispfields", "itemheight", "fieldswidth", "disptype",
        "highhighcolor", "highcolor", "lowlowcolor", "lowcolor", "opencolor", "closecolor"};
    return order;
}

CHmiWidgetAlarmWnd::CHmiWidgetAlarmWnd()
    : ListColumnsState("Time,Event Type,Variable Name,Alarm info,Alarm value,Restore value,Limit value,Alarm group",
                       "150,80,80,80,80,80,80,80")
{
}

int CHmiWidgetAlarmWnd::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                          std::string_view length)
{
    const int known = CHmiTableWidget::SetWidgetProperty(name, type, value, length);
    PropertyRead(name);
    return known;
}

void CHmiWidgetAlarmWnd::SaveWidgetProperties(std::string& archive) const
{
    UpdateWidthsText();
    CHmiTableWidget::SaveWidgetProperties(archive);
}

void CHmiWidgetAlarmWnd::DrawWithoutControl(CHmiDC& dc)
{
    DrawListPicture(dc, m_rect, m_columns);
}
