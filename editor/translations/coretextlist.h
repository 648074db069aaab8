#pragma once

#include <string>
#include <vector>

// One text of the core that the editor shows, in UTF-8, with the context it is translated in.
struct CoreText {
    const char* context;
    std::string text;
    bool operator==(const CoreText&) const = default;
};

// Every core text the editor shows in a translated context, each once, in the order the
// editor meets them: the toolbox labels, then per built-in kind (the custom widget last) its
// property pane's group rows, captions, help texts, choices and events, then the variable
// databases' fixed headings and columns and the project check's rule summaries. The built-in
// kinds must be registered.
std::vector<CoreText> ListCoreTexts();
