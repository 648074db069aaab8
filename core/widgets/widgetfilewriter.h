#pragma once

#include "base/windowfiletext.h"
#include "hmiwidget.h"

#include <string>
#include <string_view>
#include <vector>

// Where one widget's element starts in a window file text, in the order they were written.
struct WrittenWidget {
    const CHmiWidget* widget;
    std::size_t begin;
};

// Writes a window file as ReadWindowText reads it: the XML declaration and the "hmiwidget" root
// around one element per widget (CHmiWidget::Serialize), in the order the widgets are written.
class CWindowFileWriter {
public:
    // The expected size of the text, when known (the size of the window's last file), saves
    // growing the text again and again.
    explicit CWindowFileWriter(std::size_t expectedSize = 0);

    void Write(const CHmiWidget& widget);
    // Where each widget's element begins, and where the last one ends.
    const std::vector<WrittenWidget>& Written() const { return m_written; }
    std::size_t WidgetsEnd() const { return m_widgetsEnd; }
    // Closes the root and hands the text over; nothing more can be written after it.
    std::string Finish();

private:
    std::string m_text;
    std::vector<WrittenWidget> m_written;
    std::size_t m_widgetsEnd = 0;
};

// One line of a widget's "properties" section. The name, type and length are written plain (no
// length attribute when it is empty), the value as appendValue writes it.
void AppendPropertyLine(std::string& archive, std::string_view name, std::string_view type, std::string_view length,
                        std::string_view value,
                        void (*appendValue)(std::string&, std::string_view) = AppendEscapedAttribute);
