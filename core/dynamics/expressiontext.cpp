#include "expressiontext.h"

#include <algorithm>
#include <array>

namespace {

bool IsNameByte(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || byte == '_' || (byte >= '0' && byte <= '9') || ((byte | 0x20) >= 'a' && (byte | 0x20) <= 'z');
}

// Statements of C that a parenthesis may follow without making a call.
bool IsStatement(std::string_view name)
{
    static constexpr std::array<std::string_view, 6> kStatements = {"if", "while", "for", "switch", "return", "sizeof"};
    return std::find(kStatements.begin(), kStatements.end(), name) != kStatements.end();
}

// Walks a text once, telling each reference and each call.
template <class OnReference, class OnCall>
void Scan(std::string_view text, OnReference onReference, OnCall onCall)
{
    char quote = 0; // the quote of the literal being read, or 0
    std::size_t at = 0;
    while (at < text.size()) {
        const char c = text[at];
        if (c == '$') {
            const std::size_t end = ReferenceEnd(text, at);
            if (end > at + 1)
                onReference(TextToken{at, end - at});
            at = end;
        } else if (quote) {
            if (c == quote)
                quote = 0;
            at += c == '\\' ? 2 : 1;
        } else if (c == '"' || c == '\'') {
            quote = c;
            ++at;
        } else if (text.substr(at, 2) == "//") {
            at = std::min(text.find('\n', at), text.size());
        } else if (text.substr(at, 2) == "/*") {
            const std::size_t end = text.find("*/", at + 2);
            at = end == std::string_view::npos ? text.size() : end + 2;
        } else if (StartsName(c)) {
            const std::size_t end = NameEnd(text, at);
            std::size_t next = end;
            while (next < text.size() && (text[next] == ' ' || text[next] == '\t'))
                ++next;
            const bool member = at > 0 && text[at - 1] == '.';
            if (next < text.size() && text[next] == '(' && !member && !IsStatement(text.substr(at, end - at)))
                onCall(TextToken{at, end - at});
            at = end;
        } else {
            at = IsNameByte(c) ? NameEnd(text, at) : at + 1; // a number's letters are no name
        }
    }
}

} // namespace

bool StartsName(char c)
{
    return IsNameByte(c) && !(c >= '0' && c <= '9');
}

std::size_t NameEnd(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsNameByte(text[at]))
        ++at;
    return at;
}

std::size_t ReferenceEnd(std::string_view text, std::size_t at)
{
    const std::size_t end = NameEnd(text, at + 1);
    if (end == at + 1 || end == text.size() || text[end] != '.')
        return end;
    const std::size_t dataEnd = NameEnd(text, end + 1);
    return dataEnd > end + 1 ? dataEnd : end;
}

std::vector<TextToken> FindVariableReferences(std::string_view text)
{
    std::vector<TextToken> references;
    Scan(text, [&](TextToken token) { references.push_back(token); }, [](TextToken) {});
    return references;
}

std::vector<TextToken> FindFunctionCalls(std::string_view text)
{
    std::vector<TextToken> calls;
    Scan(text, [](TextToken) {}, [&](TextToken token) { calls.push_back(token); });
    return calls;
}

bool IsVariableReference(std::string_view text)
{
    const std::vector<TextToken> tokens = FindVariableReferences(text);
    return tokens.size() == 1 && tokens[0].offset == 0 && tokens[0].length == text.size();
}

std::size_t ReplaceVariableReference(std::string& text, std::string_view from, std::string_view to)
{
    // A new name that the text after it would lengthen ("$a.b.c" renamed to "$x" reads as
    // "$x.c") would change what the expression says: such a place keeps the old name.
    const auto standsAlone = [&](const TextToken& token) {
        const std::string joined = std::string(to) + text.substr(token.offset + token.length, 64);
        const std::vector<TextToken> rescanned = FindVariableReferences(joined);
        return !rescanned.empty() && rescanned.front().offset == 0 && rescanned.front().length == to.size();
    };
    std::vector<TextToken> matches;
    for (const TextToken& token : FindVariableReferences(text))
        if (std::string_view(text).substr(token.offset, token.length) == from && standsAlone(token))
            matches.push_back(token);
    // From the end, so that the offsets still ahead stay right.
    for (auto match = matches.rbegin(); match != matches.rend(); ++match)
        text.replace(match->offset, match->length, to);
    return matches.size();
}
