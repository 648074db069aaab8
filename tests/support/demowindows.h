#pragma once

#include "widgets/tamlodoc.h"

#include <memory>
#include <string>
#include <vector>

// Windows of any size made from the demo project's windows, which hold every widget kind with
// the properties a panel designer gives them: each widget of the mix is a copy of a demo widget
// with a name, a place, a text and a gradient direction of its own, and every third one has
// bindings, every fifth one a script. The same count always gives the same window.
class CGeneratedWindows {
public:
    // Reads the demo windows of the folder; the widget classes must be registered.
    explicit CGeneratedWindows(const std::string& demoFolder);
    ~CGeneratedWindows();

    // False when the demo windows could not be read.
    bool IsValid() const { return !m_templates.empty(); }
    // Makes the document a window of the widget count plus its window widget, stacked as a load
    // stacks the widgets of a file: its file lists them in the order they were made.
    void Fill(CTamloDoc& document, int widgetCount) const;

private:
    std::vector<std::unique_ptr<CTamloDoc>> m_demos;
    std::vector<const CHmiWidget*> m_templates;
};
