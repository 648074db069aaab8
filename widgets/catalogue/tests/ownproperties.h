#pragma once

#include "widgets/core/hmiwidget.h"

#include <string>
#include <tuple>
#include <vector>

// A widget class's own property records and `property` lines: those after the basic ones.

// Key, label, description, bindable flag, item type, group, combo choices.
using PropertyRow = std::tuple<std::string, std::string, std::string, std::int32_t, PropItemType, std::string,
                               std::vector<std::string>>;

inline std::vector<PropertyRow> OwnPropertyRows(const CHmiWidget& widget)
{
    constexpr std::size_t kBasicPropertyCount = 14;
    std::vector<PropertyRow> rows;
    const auto& props = widget.GetProperties();
    for (std::size_t i = kBasicPropertyCount; i < props.size(); ++i) {
        const CHmiWidgetProp& p = *props[i];
        rows.emplace_back(p.m_strName, p.m_strLabel, p.m_strDescription, p.m_nBindable, p.m_nItemType, p.m_strGroup,
                          std::vector<std::string>(p.m_pComboList, p.m_pComboList + p.m_nComboCount));
    }
    return rows;
}

// A widget that skips the base lines or writes its own first yields something other than its
// own lines here.
inline std::string OwnPropertyLines(const CHmiWidget& widget)
{
    constexpr int kBasicPropertyLines = 11;
    std::string archive;
    widget.SaveWidgetProperties(archive);
    std::size_t start = 0;
    for (int line = 0; line < kBasicPropertyLines; ++line) {
        const std::size_t end = archive.find('\n', start);
        if (end == std::string::npos)
            return {};
        start = end + 1;
    }
    return archive.substr(start);
}
