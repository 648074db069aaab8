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

// Which characters of an attribute value become entities: all five, or only those that would
// end the value or break the file.
enum class Escaping { AllFive, Breaking };

// Whether a character is written other than as itself.
bool NeedsWriting(char c, Escaping escaping)
{
    switch (c) {
    case kForeignMark:
    case '\t':
    case '\n':
    case '\r':
    case '&':
    case '"':
    case '<': return true;
    case '>':
    case '\'': return escaping == Escaping::AllFive;
    default: return false;
    }
}

// Writes an attribute value: the runs of characters that stand for themselves in one piece, the
// others as entities or character references.
void AppendAttribute(std::string& archive, std::string_view text, Escaping escaping)
{
    for (std::size_t i = 0; i < text.size();) {
        std::size_t run = i;
        while (run < text.size() && !NeedsWriting(text[run], escaping))
            ++run;
        archive.append(text.data() + i, run - i);
        if (run == text.size())
            break;
        i = run;
        const char c = text[i];
        if (c == kForeignMark) {
            const ForeignCharacter foreign = ReadForeignCharacter(text, i);
            AppendCharacterReference(archive, foreign.codePoint);
            i += foreign.length;
            continue;
        }
        ++i;
        switch (c) {
        case '&': archive += "&amp;"; break;
        case '"': archive += "&quot;"; break;
        case '<': archive += "&lt;"; break;
        case '>': archive += "&gt;"; break;
        case '\'': archive += "&apos;"; break;
        default: AppendCharacterReference(archive, char32_t(c)); break; // TAB, LF, CR
        }
    }
}

} // namespace

void AppendEscapedAttribute(std::string& archive, std::string_view text)
{
    AppendAttribute(archive, text, Escaping::AllFive);
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
    AppendAttribute(archive, text, Escaping::Breaking);
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
