#pragma once

#include "hmiwidget.h"
#include "project/fileio.h"

#include <functional>
#include <string>

class XmlDocument;

// Receives each widget read from a window file, in file order.
using WidgetSink = std::function<void(HmiWidgetPtr widget)>;

// Reads the widgets of a window file. Each widget is created by its class key through the
// registry (an unknown key gives a custom widget that keeps the key), gets its name, its
// properties, bindings and events, and goes to the sink. A widget without a class or a name,
// or with a malformed section, is skipped; the others are still read. Fails, delivering
// nothing, when the file cannot be read, is not XML or its root is not "hmiwidget".
FileResult ReadWindowFile(const std::string& path, const WidgetSink& sink);
FileResult ReadWindowDocument(const XmlDocument& document, const WidgetSink& sink);
