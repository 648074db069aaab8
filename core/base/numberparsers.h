#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Lenient number conversion for property texts: no error is ever reported.
// Conversion skips leading white space, takes an optional sign, and stops at the first
// character that does not fit; no digits give 0. Results follow the panel's 32-bit `long`:
// signed values saturate at the 32-bit limits, unsigned ones at 0xFFFFFFFF, and a minus
// sign before an unsigned value wraps it as unsigned arithmetic does.

// Decimal string-to-long, the conversion of every plain number in a window file.
std::int32_t HmiDecimalToLong(std::string_view text);

// Base 16 from the start of the text when it contains "0x" anywhere (a leading "0x" is
// accepted), else base 10.
std::uint32_t HmiParseULong(std::string_view text);
std::int32_t HmiParseLong(std::string_view text);

// Floating-point text as the panel writes and reads it, whatever the user's locale: a point
// before the decimals, never a comma. Formatting gives the decimals that "%f" (6) or "%.2f" (2)
// give in the C locale; parsing follows the C library's atof in the C locale (leading blanks,
// a sign, decimal or "0x" hexadecimal digits, an exponent; bad text gives 0).
std::string HmiFormatFloat(double value, int decimals = 6);
float HmiParseFloat(std::string_view text);
