#pragma once

#include "widgets/hmiwidget.h"

#include <string>

// A widget class's own `property` lines: those after the basic ones.
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

// One `property` line as a widget writes it, with a length attribute when one is given.
inline std::string PropertyLine(const std::string& name, const char* type, const std::string& value,
                                const char* length = nullptr)
{
    return "\t\t\t<property name=\"" + name + "\" type=\"" + type + "\" " +
           (length ? std::string("length=\"") + length + "\" " : "") + "value=\"" + value + "\" />\n";
}
