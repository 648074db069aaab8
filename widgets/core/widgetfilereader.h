#pragma once

#include "hmiwidget.h"
#include "project/fileio.h"

#include <functional>
#include <span>
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

// Where one widget's element starts in a window file text, in the order they were written.
struct WrittenWidget {
    const CHmiWidget* widget;
    std::size_t begin;
};

// Checks a window file text before it replaces a file: it must parse, and its widget elements,
// read and written again, must give back the bytes written from `widgets` (which cover the text
// up to `end`). Fails with the widget and the property, binding or event that would not read
// back as it stands.
FileResult CheckWindowFileReadsBack(std::string_view text, std::span<const WrittenWidget> widgets, std::size_t end);
