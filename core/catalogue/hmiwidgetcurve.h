#pragma once

#include "curvesettings.h"
#include "projectnamechoice.h"
#include "propertytable.h"
#include "widgets/projectnameuse.h"

#include <optional>

// The realtime trend: up to 16 curves of live values, or of a data log in memory or in a
// file, drawn by the panel. The editor holds the settings and previews random samples.
class CHmiWidgetCurve : public CHmiTableWidget<CHmiWidgetCurve>, public CurveSettings, public CProjectNameUser {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetCurve)
public:
    static constexpr const char* kClassKey = "curve";
    static constexpr const char* kGroup = "Realtime curve basic properties";
    static constexpr const char* kRootText = "Basic properties";
    static constexpr const char* kKindName = "Realtime curve"; // in messages to the user
    static std::span<const PropertySpec<CHmiWidgetCurve>> Properties();
    static std::span<const char* const> SaveOrder();

    CHmiWidgetCurve();
    void AddRootItems();
    void Draw(CHmiDC& dc) override;
    void CopyExtraState(CHmiWidgetCurve& copy) const;

    // The project's data logs, read when the widget is made.
    const ProjectNameChoice& LogNames() const { return m_logNames; }
    // The data log's index as the file has it.
    std::int32_t LogIndex() const;
    // The data log, when the project does not list the one the file names.
    std::vector<ProjectNameUse> ProjectNamesUsed() const override;

    std::int32_t m_nXMaxPoints = 50;
    std::int32_t m_nHMaxLines = 5;
    // The data log: its index in LogNames(), or LogNames().Count() for a kept log the project
    // does not have. The file gets LogIndex() and the name.
    std::int32_t m_nLogNameNum = 0;
    std::uint8_t m_nDataSource = 0; // 0 in memory, 1 file
    std::uint8_t m_nFilePath = 0;   // 0 internal flash, 1 CF card
    std::string m_strFileName;
    std::int32_t m_nStartPoint = 0;

private:
    void ReadLog(std::int32_t index, const std::optional<std::string>& name);
    void ReadLogName(std::string name);

    ProjectNameChoice m_logNames;
    std::int32_t m_nKeptLogIndex = 0; // the index the file gives a kept log
    // The logname a file gave, which a lognamenum read after it goes with.
    std::optional<std::string> m_fileLogName;
};
