#pragma once

#include "propertytable.h"

#include <deque>
#include <string>
#include <vector>

// The start and end of the time range that the history widgets show, as twelve plain numbers;
// the editor does not check them as dates.
struct HistoryTimeRange {
    std::int32_t m_nStartYear = 0;
    std::int32_t m_nStartMonth = 0;
    std::int32_t m_nStartDay = 0;
    std::int32_t m_nStartHour = 0;
    std::int32_t m_nStartMin = 0;
    std::int32_t m_nStartSec = 0;
    std::int32_t m_nEndYear = 0;
    std::int32_t m_nEndMonth = 0;
    std::int32_t m_nEndDay = 0;
    std::int32_t m_nEndHour = 0;
    std::int32_t m_nEndMin = 0;
    std::int32_t m_nEndSec = 0;
};

// The twelve records of the range, in their order, described as belonging to `what`
// ("curve", "list").
template <class Widget>
void AppendTimeRangeProperties(std::vector<PropertySpec<Widget>>& specs, const char* what)
{
    struct Field {
        const char* key;
        const char* edge;
        const char* unit;
        std::int32_t HistoryTimeRange::*member;
    };
    static constexpr Field kFields[] = {
        {"startyear", "start", "year", &HistoryTimeRange::m_nStartYear},
        {"startmonth", "start", "month", &HistoryTimeRange::m_nStartMonth},
        {"startday", "start", "day", &HistoryTimeRange::m_nStartDay},
        {"starthour", "start", "hour", &HistoryTimeRange::m_nStartHour},
        {"startmin", "start", "minute", &HistoryTimeRange::m_nStartMin},
        {"startsec", "start", "second", &HistoryTimeRange::m_nStartSec},
        {"endyear", "end", "year", &HistoryTimeRange::m_nEndYear},
        {"endmonth", "end", "month", &HistoryTimeRange::m_nEndMonth},
        {"endday", "end", "day", &HistoryTimeRange::m_nEndDay},
        {"endhour", "end", "hour", &HistoryTimeRange::m_nEndHour},
        {"endmin", "end", "minute", &HistoryTimeRange::m_nEndMin},
        {"endsec", "end", "second", &HistoryTimeRange::m_nEndSec},
    };
    static std::deque<std::string> descriptions; // the records keep pointers into these
    for (const Field& field : kFields) {
        descriptions.push_back(std::string("Set the ") + field.edge + " " + field.unit + " of " + what);
        specs.push_back({.key = field.key, .label = field.key, .description = descriptions.back().c_str(),
                         .xmlType = "ushort", .number = static_cast<std::int32_t Widget::*>(field.member),
                         .read = FileNumber::Unsigned});
    }
}
