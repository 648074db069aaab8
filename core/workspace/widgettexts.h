#pragma once

#include "widgets/documentchange.h"
#include "widgets/hmiwidget.h"

#include <functional>
#include <string>

// Where in a window something stands that a check or a rename points at: the widget as a whole,
// one of its properties, the binding of a property, or one of its events. The editor selects
// the widget and shows that row.
struct WidgetPlace {
    enum class Kind { Widget, Property, Binding, Event };
    Kind kind = Kind::Widget;
    std::string name; // the property key or the event name; empty for the widget

    // "varname", "binding text", "event click"; empty for the widget.
    std::string Text() const;
    friend bool operator==(const WidgetPlace&, const WidgetPlace&) = default;
};

// The texts of a widget that may name variables, found through its records so that a library's
// widget takes part as a built-in one: the values of the properties whose row picks a variable
// (PROP_VARIABLE), each bound expression with the texts of its binding type, and each event's
// script. A binding tells its runtime expression first, then the texts it is composed from.
void ForEachVariableText(const CHmiWidget& widget,
                         const std::function<void(const WidgetPlace& place, const std::string& text)>& visit);

// Hands every such text to `edit`, which returns true when it changed the text, and stores the
// changed ones back into the widget. Returns what changed (properties, bindings, events).
DocChange EditVariableTexts(CHmiWidget& widget,
                            const std::function<bool(const WidgetPlace& place, std::string& text)>& edit);
