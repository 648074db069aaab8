#pragma once

#include "hmiwidget.h"
#include "project/fileio.h"

#include <functional>
#include <string>
#include <string_view>

// Receives each widget read from a window file, in file order.
using WidgetSink = std::function<void(HmiWidgetPtr widget)>;

// Reads the widgets of a window file. Each widget is created by its class key through the
// registry (an unknown key gives a custom widget that keeps the key), gets its name, its
// properties, bindings and events, and goes to the sink. A widget without a class or a name,
// or with a malformed section, is skipped; the others are still read. Fails, delivering
// nothing, when the file cannot be read, is not XML or its root is not "hmiwidget". The text
// is parsed as a stream, one widget element at a time.
FileResult ReadWindowFile(const std::string& path, const WidgetSink& sink);
FileResult ReadWindowText(std::string_view text, const WidgetSink& sink);

// Reads the widget elements of a window file text as they come, handing each to the reader,
// null for one that cannot be read. On failure, errorLine is the line of the text where the
// reading stopped (0 when it is not known).
FileResult ReadWidgetElements(std::string_view text, const std::function<void(HmiWidgetPtr)>& reader, int& errorLine);
