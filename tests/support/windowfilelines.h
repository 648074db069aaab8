#pragma once

#include <string>

// The `property` lines that every widget writes first, for a widget at the given rectangle
// whose other basic properties have their defaults. Tests of exact window-file bytes start
// each widget's expected properties with these.
inline std::string BaseWidgetLines(int left = 0, int right = 0, int top = 0, int bottom = 0)
{
    auto line = [](const char* name, const char* type, int value) {
        return std::string("\t\t\t<property name=\"") + name + "\" type=\"" + type + "\" value=\"" +
               std::to_string(value) + "\" />\n";
    };
    return line("left", "short", left) + line("right", "short", right) + line("top", "short", top) +
           line("bottom", "short", bottom) + line("visible", "uchar", 1) + line("enable", "uchar", 1) +
           line("noredraw", "uchar", 0) + line("xoffset", "short", 0) + line("yoffset", "short", 0) +
           line("flash", "uchar", 0) + line("flashspeed", "ulong", 1);
}
