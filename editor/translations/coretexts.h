#pragma once

#include "widgets/optiontree.h"

#include <QString>

#include <string>

struct VariableNode;

// The core speaks English to everyone: its widget kinds' property captions, help texts, groups,
// choices and events, the toolbox labels, the variable databases' headings and the project
// check's rule summaries are English in the model and in every file. The editor translates them
// where it shows them, from kelvo-hmi-widgets_LANGUAGE.ts, in a context per kind of text; the
// program kelvo-core-texts lists them from the built-in kinds.
namespace CoreTextContext {
constexpr const char* kProperty = "WidgetProperty"; // captions, help texts and group rows
constexpr const char* kChoice = "WidgetChoice";     // the entries of combo rows
constexpr const char* kEvent = "WidgetEvent";       // captions and help texts of event rows
constexpr const char* kKind = "WidgetKind";         // toolbox labels
constexpr const char* kVariables = "VariableDatabase";
constexpr const char* kCheckRule = "CheckRule";

// The context of a property pane row's caption and help text.
constexpr const char* PaneRow(OptionItemKind kind)
{
    return kind == OptionItemKind::Event ? kEvent : kProperty;
}
} // namespace CoreTextContext

// A core text (GB2312, as the model holds it) as the user reads it: its translation in the
// context when the editor's language has one, else the text itself.
QString TranslateCoreText(const char* context, const std::string& text);

// A node of the variable databases as the user reads it: the headings every project has
// translated, the databases and groups named as their files name them.
QString VariableNodeText(const VariableNode& node);
