#include "numberparsers.h"

#include <charconv>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <locale.h>

namespace {

struct ParsedNumber {
    bool negative = false;
    bool overflow = false; // the magnitude does not fit in 32 bits
    std::uint64_t magnitude = 0;
};

int DigitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'z')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'Z')
        return c - 'A' + 10;
    return 99;
}

bool IsSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// The scanning rules of the C library's strtol/strtoul.
ParsedNumber Scan(std::string_view text, int base)
{
    ParsedNumber result;
    std::size_t i = 0;
    while (i < text.size() && IsSpace(text[i]))
        ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        result.negative = text[i] == '-';
        ++i;
    }
    // "0x" is a prefix only when a hexadecimal digit follows it; otherwise the "0" is the number.
    if (base == 16 && i + 2 < text.size() && text[i] == '0' && (text[i + 1] == 'x' || text[i + 1] == 'X')
        && DigitValue(text[i + 2]) < 16)
        i += 2;
    constexpr std::uint64_t limit = std::numeric_limits<std::uint32_t>::max();
    for (; i < text.size(); ++i) {
        const int digit = DigitValue(text[i]);
        if (digit >= base)
            break;
        if (!result.overflow) {
            result.magnitude = result.magnitude * base + digit;
            result.overflow = result.magnitude > limit;
        }
    }
    return result;
}

std::int32_t ToLong(const ParsedNumber& n)
{
    constexpr std::int64_t max = std::numeric_limits<std::int32_t>::max();
    constexpr std::int64_t min = std::numeric_limits<std::int32_t>::min();
    if (n.overflow)
        return n.negative ? std::int32_t(min) : std::int32_t(max);
    const std::int64_t value = n.negative ? -std::int64_t(n.magnitude) : std::int64_t(n.magnitude);
    if (value > max)
        return std::int32_t(max);
    if (value < min)
        return std::int32_t(min);
    return std::int32_t(value);
}

std::uint32_t ToULong(const ParsedNumber& n)
{
    if (n.overflow)
        return std::numeric_limits<std::uint32_t>::max();
    const auto value = std::uint32_t(n.magnitude);
    return n.negative ? std::uint32_t(0u - value) : value;
}

int BaseOf(std::string_view text)
{
    return text.find("0x") != std::string_view::npos ? 16 : 10;
}

} // namespace

std::int32_t HmiDecimalToLong(std::string_view text)
{
    return ToLong(Scan(text, 10));
}

std::uint32_t HmiParseULong(std::string_view text)
{
    return ToULong(Scan(text, BaseOf(text)));
}

std::int32_t HmiParseLong(std::string_view text)
{
    return ToLong(Scan(text, BaseOf(text)));
}

std::string HmiFormatFloat(double value, int decimals)
{
    // Enough for the widest double with its decimals.
    char text[std::numeric_limits<double>::max_exponent10 + 64];
    const std::to_chars_result end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, decimals);
    return std::string(text, end.ptr);
}

float HmiParseFloat(std::string_view text)
{
    // strtod_l with the C locale keeps every rule of atof except the locale's decimal comma.
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", locale_t(nullptr));
    const std::string terminated(text);
    return float(strtod_l(terminated.c_str(), nullptr, cLocale));
}
