#pragma once

#include "historytimerange.h"
#include "listcolumns.h"
#include "projectnamechoice.h"
#include "propertytable.h"
#include "widgets/core/hmictrlwidget.h"

// The history data list of a window: on the panel, the records of one history database in a
// time range, a column per chosen variable. On the canvas a live list control like the alarm
// window's.
class CHmiWidgetHisList : public CHmiTableWidget<CHmiWidgetHisList, CHmiCtrlWidget>, public HistoryTimeRange,
                          public ListColumnsState {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetHisList)
public:
    static constexpr const char* kClassKey = "hislist";
    static constexpr const char* kGroup = "History data listview window";
    static constexpr const char* kRootText = "history list properties";
    static std::span<const PropertySpec<CHmiWidgetHisList>> Properties();
    static std::span<const char* const> SaveOrder();

    CHmiWidgetHisList();
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    void SaveWidgetProperties(std::string& archive) const override;
    void CreateEventItems() override;
    void CopyExtraState(CHmiWidgetHisList& copy) const { copy.m_columns = m_columns; }

    // The history databases of the project, read when the widget is made.
    const ProjectNameChoice& HistoryNames() const { return m_historyNames; }

    std::int32_t m_nRows = 20;
    std::int32_t m_nItemHeight = 0;
    std::string m_strRedrawVar;
    std::int32_t m_nHistoryName = 0; // index into HistoryNames()
    std::uint8_t m_bAutoUpdate = 1;

protected:
    void DrawWithoutControl(CHmiDC& dc) override;

private:
    ProjectNameChoice m_historyNames;
};
