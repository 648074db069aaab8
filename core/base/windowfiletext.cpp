#include "windowfiletext.h"

#include "textcodec.h"

#include <cstdio>

namespace {

void AppendCharacterReference(std::string& archive, char32_t codePoint)
{
    char reference[16];
    std::snprintf(reference, sizeof reference, "&#x%X;", unsigned(codePoint));
    archive += reference;
}

// Writes an attribute value, with entities for the characters that `escaped` names.
void AppendAttribute(std::string& archive, std::string_view text, std::string_view escaped)
{
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        if (c == kForeignMark) {
            const ForeignCharacter foreign = ReadForeignCharacter(text, i);
            AppendCharacterReference(archive, foreign.codePoint);
            i += foreign.length;
            continue;
        }
        ++i;
        if (c == '\t' || c == '\n' || c == '\r') {
            AppendCharacterReference(archive, char32_t(c));
            continue;
        }
        if (escaped.find(c) == std::string_view::npos) {
            archive += c;
            continue;
        }
        switch (c) {
        case '&': archive += "&amp;"; break;
        case '"': archive += "&quot;"; break;
        case '<': archive += "&lt;"; break;
        case '>': archive += "&gt;"; break;
        case '\'': archive += "&apos;"; break;
        }
    }
}

} // namespace

void AppendEscapedAttribute(std::string& archive, std::string_view text)
{
    AppendAttribute(archive, text, "&\"<>'");
}

std::string EscapedAttribute(std::string_view text)
{
    std::string escaped;
    escaped.reserve(text.size());
    AppendEscapedAttribute(escaped, text);
    return escaped;
}

void AppendPlainAttribute(std::string& archive, std::string_view text)
{
    AppendAttribute(archive, text, "&\"<");
}

void AppendCDataSection(std::string& archive, std::string_view code)
{
    constexpr std::string_view kOpen = "<![CDATA[";
    constexpr std::string_view kClose = "]]>";
    archive += kOpen;
    for (std::size_t i = 0; i < code.size();) {
        if (code[i] == kForeignMark) {
            const ForeignCharacter foreign = ReadForeignCharacter(code, i);
            archive += kClose;
            AppendCharacterReference(archive, foreign.codePoint);
            archive += kOpen;
            i += foreign.length;
        } else if (code.substr(i, kClose.size()) == kClose) {
            archive += "]]]]><![CDATA[>"; // the first section ends with "]]", the next begins with ">"
            i += kClose.size();
        } else {
            archive += code[i++];
        }
    }
    archive += kClose;
}
