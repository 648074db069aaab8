#pragma once

#include "curvesettings.h"
#include "historydatabase.h"
#include "historytimerange.h"
#include "propertytable.h"

// The history trend: up to 16 curves of values recorded in one history database between a
// start and an end time, redrawn when a trigger variable becomes 1. The editor holds the
// settings and previews random samples, as for the realtime curve.
class CHmiWidgetHisCurve : public CHmiTableWidget<CHmiWidgetHisCurve>,
                           public CurveSettings,
                           public HistoryTimeRange,
                           public HistoryDatabaseChoice {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetHisCurve)
public:
    static constexpr const char* kClassKey = "hiscurve";
    static constexpr const char* kGroup = "History curve basic properties";
    static constexpr const char* kRootText = "History curve basic properties";
    static constexpr const char* kKindName = "History curve"; // in messages to the user
    static std::span<const PropertySpec<CHmiWidgetHisCurve>> Properties();
    static std::span<const char* const> SaveOrder();

    CHmiWidgetHisCurve();
    void AddRootItems();
    void Draw(CHmiDC& dc) override;
    void CopyExtraState(CHmiWidgetHisCurve& copy) const { CopyHistoryNameTo(copy); }

    std::string m_strRedrawVar;
};
