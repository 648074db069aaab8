#include "textcodec.h"

#include <algorithm>
#include <cerrno>
#include <iconv.h>

namespace {

constexpr char32_t kReplacementCharacter = 0xFFFD;

bool IsAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0x80) == 0; });
}

// The length of the valid UTF-8 character at the start of the text, and its code point; 0
// when the text does not start with one.
std::size_t DecodeUtf8(std::string_view text, char32_t& codePoint)
{
    if (text.empty())
        return 0;
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(0);
    std::size_t length;
    char32_t minimum;
    if (lead < 0x80)
        length = 1, minimum = 0, codePoint = lead;
    else if ((lead & 0xE0) == 0xC0)
        length = 2, minimum = 0x80, codePoint = lead & 0x1F;
    else if ((lead & 0xF0) == 0xE0)
        length = 3, minimum = 0x800, codePoint = lead & 0x0F;
    else if ((lead & 0xF8) == 0xF0)
        length = 4, minimum = 0x10000, codePoint = lead & 0x07;
    else
        return 0;
    if (text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
        codePoint = (codePoint << 6) | (byte(i) & 0x3F);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint < minimum || codePoint > 0x10FFFF || surrogate ? 0 : length;
}

void AppendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

// One open conversion per direction and thread, reset before each use: opening one costs far
// more than converting a short attribute value.
class Converter {
public:
    Converter(const char* to, const char* from) : m_cd(iconv_open(to, from)) {}
    ~Converter()
    {
        if (m_cd != kInvalid)
            iconv_close(m_cd);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    // Converts as much of the input as it can and appends it to out; in keeps what is left from
    // the first character that does not convert on. The C library converts through a buffer of
    // its own and finds where a conversion stopped by starting again, so it is handed the input
    // in slices: text with many characters that stop it costs no more than text with none.
    bool ConvertPrefix(std::string_view& in, std::string& out)
    {
        if (m_cd == kInvalid)
            return false;
        iconv(m_cd, nullptr, nullptr, nullptr, nullptr);
        constexpr std::size_t kSlice = 1024;
        char buffer[4 * kSlice];
        while (!in.empty()) {
            char* src = const_cast<char*>(in.data());
            const std::size_t slice = std::min(in.size(), kSlice);
            std::size_t srcLeft = slice;
            char* dst = buffer;
            std::size_t dstLeft = sizeof buffer;
            const bool stopped = iconv(m_cd, &src, &srcLeft, &dst, &dstLeft) == std::size_t(-1);
            out.append(buffer, std::size_t(dst - buffer));
            in.remove_prefix(slice - srcLeft);
            // A character cut by the end of the slice is taken whole with the next one.
            const bool cutBySlice = stopped && errno == EINVAL && in.size() > srcLeft;
            if (stopped && !cutBySlice)
                break;
        }
        return true;
    }

    bool Convert(std::string_view in, std::string& out)
    {
        std::string converted;
        if (!ConvertPrefix(in, converted) || !in.empty())
            return false;
        out = std::move(converted);
        return true;
    }

private:
    static inline const iconv_t kInvalid = reinterpret_cast<iconv_t>(-1);
    iconv_t m_cd;
};

Converter& ToGb2312()
{
    thread_local Converter converter("GB2312", "UTF-8");
    return converter;
}

Converter& FromGb2312()
{
    thread_local Converter converter("UTF-8", "GB2312");
    return converter;
}

} // namespace

bool Utf8ToGb2312(std::string_view utf8, std::string& out)
{
    if (IsAscii(utf8)) {
        out.assign(utf8);
        return true;
    }
    return ToGb2312().Convert(utf8, out);
}

bool Gb2312ToUtf8(std::string_view gb2312, std::string& out)
{
    if (IsAscii(gb2312)) {
        out.assign(gb2312);
        return true;
    }
    return FromGb2312().Convert(gb2312, out);
}

std::string Utf8ToGb2312OrKeep(std::string_view utf8)
{
    if (IsAscii(utf8))
        return std::string(utf8);
    std::string out;
    out.reserve(utf8.size());
    while (!utf8.empty()) {
        if (!ToGb2312().ConvertPrefix(utf8, out))
            return std::string(utf8);
        if (utf8.empty())
            break;
        char32_t codePoint;
        const std::size_t length = DecodeUtf8(utf8, codePoint);
        out += kForeignMark;
        AppendUtf8(out, length ? codePoint : kReplacementCharacter);
        utf8.remove_prefix(length ? length : 1);
    }
    return out;
}

std::string Gb2312ToUtf8OrKeep(std::string_view gb2312)
{
    if (IsAscii(gb2312))
        return std::string(gb2312);
    std::string out;
    out.reserve(gb2312.size() * 3 / 2);
    while (!gb2312.empty()) {
        if (!FromGb2312().ConvertPrefix(gb2312, out))
            return std::string(gb2312);
        if (gb2312.empty())
            break;
        if (gb2312.front() == kForeignMark) {
            const ForeignCharacter foreign = ReadForeignCharacter(gb2312, 0);
            AppendUtf8(out, foreign.codePoint);
            gb2312.remove_prefix(foreign.length);
        } else {
            out += gb2312.front(); // not GB2312: kept as it is
            gb2312.remove_prefix(1);
        }
    }
    return out;
}

ForeignCharacter ReadForeignCharacter(std::string_view text, std::size_t at)
{
    char32_t codePoint;
    const std::size_t length = DecodeUtf8(text.substr(at + 1), codePoint);
    if (length == 0 || codePoint < 0x80)
        return {kReplacementCharacter, 1};
    return {codePoint, length + 1};
}
