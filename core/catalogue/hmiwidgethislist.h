#pragma once

#include "historydatabase.h"
#include "historytimerange.h"
#include "listcolumns.h"
#include "propertytable.h"
#include "widgets/hmictrlwidget.h"

// The history data list of a window: on the panel, the records of one history database in a
// time range, a column per chosen variable. On the canvas a live list control like the alarm
// window's.
class CHmiWidgetHisList : public CHmiTableWidget<CHmiWidgetHisList, CHmiCtrlWidget>, public HistoryTimeRange,
                          public HistoryDatabaseChoice, public ListColumnsState {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetHisList)
public:
    static constexpr const char* kClassKey = "hislist";
    static constexpr const char* kGroup = "History data listview window";
    static constexpr const char* kRootText = "history list properties";
    static constexpr const char* kKindName = "History list"; // in messages to the user
    static std::span<const PropertySpec<CHmiWidgetHisList>> Properties();
    static std::span<const char* const> SaveOrder();

    CHmiWidgetHisList();
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    void SaveWidgetProperties(std::string& archive) const override;
    void CreateEventItems() override;
    void CopyExtraState(CHmiWidgetHisList& copy) const;

    std::int32_t m_nRows = 20;
    std::int32_t m_nItemHeight = 0;
    std::string m_strRedrawVar;
    std::uint8_t m_bAutoUpdate = 1;

protected:
    void DrawWithoutControl(CHmiDC& dc) override;
};
