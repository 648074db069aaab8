#pragma once

#include "listcolumns.h"
#include "propertytable.h"
#include "widgets/hmictrlwidget.h"

// The alarm list of a window: on the panel, alarm events in rows coloured by their kind. On
// the canvas a live list control whose columns are the displayed fields.
class CHmiWidgetAlarmWnd : public CHmiTableWidget<CHmiWidgetAlarmWnd, CHmiCtrlWidget>, public ListColumnsState {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetAlarmWnd)
public:
    static constexpr const char* kClassKey = "alarmwnd";
    static constexpr const char* kGroup = "Alarm window";
    static constexpr const char* kRootText = "Alarm Window Properties";
    static std::span<const PropertySpec<CHmiWidgetAlarmWnd>> Properties();
    static std::span<const char* const> SaveOrder();

    CHmiWidgetAlarmWnd();
    // Reading the fields or their widths sets the columns afresh.
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    // Writes the widths the columns have now.
    void SaveWidgetProperties(std::string& archive) const override;
    void CopyExtraState(CHmiWidgetAlarmWnd& copy) const { copy.m_columns = m_columns; }

    std::int32_t m_nRows = 20;
    HmiColor m_confirmColor = 0x00FF0000;
    HmiColor m_restoreColor = 0x00000000;
    HmiColor m_alarmColor = 0x000000FF;
    HmiColor m_highHighColor = 0x000000FF;
    HmiColor m_highColor = 0x000000FF;
    HmiColor m_lowLowColor = 0x000000FF;
    HmiColor m_lowColor = 0x000000FF;
    HmiColor m_openColor = 0x000000FF;
    HmiColor m_closeColor = 0x000000FF;
    std::int32_t m_nItemHeight = 0;
    std::int32_t m_nDispType = 0;

protected:
    void DrawWithoutControl(CHmiDC& dc) override;
};
