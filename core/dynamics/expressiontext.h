#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The variable references and function calls in the texts of bindings, variable properties and
// event scripts, which read like C. A reference is "$" and a name, or "$" database "." data as
// the variable picker writes it; a name is letters, digits, underscores and the bytes of GB2312
// characters. A reference is a whole token: "$plc.level" is not found in "$plc.level2".
// References count inside string literals as well, since script functions take variables by
// name ("setvar(\"$plc.level\", 1)"); comments (// and /* */) are skipped.

struct TextToken {
    std::size_t offset;
    std::size_t length;
};

// The pieces of the scan, for readers of the same language (the evaluator): whether a byte can
// start a name, where the name that starts at `at` ends, and where the reference that starts at
// the "$" at `at` ends (at + 1 when no name follows the "$").
bool StartsName(char c);
std::size_t NameEnd(std::string_view text, std::size_t at);
std::size_t ReferenceEnd(std::string_view text, std::size_t at);

// The references of a text, in text order.
std::vector<TextToken> FindVariableReferences(std::string_view text);

// The names a text calls as functions outside strings and comments ("openwindow" in
// openwindow("main")), the statements of C that take parentheses aside.
std::vector<TextToken> FindFunctionCalls(std::string_view text);

// Whether the text is one whole reference and nothing else, as the variable picker writes it.
bool IsVariableReference(std::string_view text);

// Replaces every whole reference `from` by `to`; returns how many it replaced. A place where the
// text after it would join the new name into a longer reference keeps the old name.
std::size_t ReplaceVariableReference(std::string& text, std::string_view from, std::string_view to);
