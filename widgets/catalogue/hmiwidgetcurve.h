#pragma once

#include "curvesettings.h"
#include "projectnamechoice.h"
#include "propertytable.h"

// The realtime trend: up to 16 curves of live values, or of a data log in memory or in a
// file, drawn by the panel. The editor holds the settings and previews random samples.
class CHmiWidgetCurve : public CHmiTableWidget<CHmiWidgetCurve>, public CurveSettings {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetCurve)
public:
    static constexpr const char* kClassKey = "curve";
    static constexpr const char* kGroup = "Realtime curve basic properties";
    static constexpr const char* kRootText = "Basic properties";
    static std::span<const PropertySpec<CHmiWidgetCurve>> Properties();
    static std::span<const char* const> SaveOrder();

    CHmiWidgetCurve();
    void AddRootItems();
    void Draw(CHmiDC& dc) override;

    // The project's data logs, read when the widget is made.
    const ProjectNameChoice& LogNames() const { return m_logNames; }

    std::int32_t m_nXMaxPoints = 50;
    std::int32_t m_nHMaxLines = 5;
    std::int32_t m_nLogNameNum = 0; // index into LogNames(); the file also gets the name
    std::uint8_t m_nDataSource = 0; // 0 in memory, 1 file
    std::uint8_t m_nFilePath = 0;   // 0 internal flash, 1 CF card
    std::string m_strFileName;
    std::int32_t m_nStartPoint = 0;

private:
    ProjectNameChoice m_logNames;
};
