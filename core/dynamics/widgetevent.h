#pragma once

#include <string>

// One event of a widget with the script the panel runs when it occurs.
struct CHmiWidgetEvent {
    std::string name;        // the key written to the window file, e.g. "click"
    std::string label;       // caption of the row in the property list, e.g. "Button Down"
    std::string description; // help text of the row
    std::string code;        // the script; empty means the event has none
};
