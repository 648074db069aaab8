#pragma once

#include "project/fileio.h"
#include "widgetfilewriter.h"

#include <span>
#include <string_view>

// Checks a window file text before it replaces a file: it must parse, and its widget elements,
// read and written again, must give back the bytes written from `widgets` (which cover the text
// up to `end`), line ends aside, since every reader reads them as LF. Fails with the widget and
// the property, binding or event that would not read back as it stands.
FileResult CheckWindowFileReadsBack(std::string_view text, std::span<const WrittenWidget> widgets, std::size_t end);
