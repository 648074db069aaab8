#include "base/numberparsers.h"

#include <gtest/gtest.h>

#include <utility>

// Leading blanks, a sign, and stopping at the first letter or at an "0x" are also pinned down
// by the widget's file reader in hmiwidget_test.cpp.
TEST(NumberParsers, DecimalConversionStopsAtFirstUnfitCharacterAndSaturatesAtThe32BitLimits)
{
    const std::pair<const char*, std::int32_t> cases[] = {
        {"+8", 8}, {"16777215", 0x00FFFFFF}, {"", 0}, {"-", 0}, {"2147483647", 2147483647},
        {"2147483648", 2147483647}, {"-2147483648", -2147483647 - 1}, {"-99999999999999999999", -2147483647 - 1}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(HmiDecimalToLong(text), value) << text;
}

// "0x" anywhere switches the whole text to base 16 from its start; upper-case "0X" is no marker.
// Unsigned values saturate at 0xFFFFFFFF and wrap a minus sign; signed ones saturate at the top.
TEST(NumberParsers, HexadecimalWheneverTheTextContains0xAndUnsignedAndSignedDifferAtTheTop)
{
    const std::pair<const char*, std::uint32_t> unsignedCases[] = {
        {"0x00FF00", 65280u}, {"255", 255u}, {"abc", 0u}, {"12 (0x0C)", 18u}, {"0XFF", 0u}, {"ff 0x", 255u},
        {"0xg", 0u}, {"0xFFFFFFFF", 0xFFFFFFFFu}, {"0x1FFFFFFFF", 0xFFFFFFFFu}, {"-1", 0xFFFFFFFFu}};
    for (const auto& [text, value] : unsignedCases)
        EXPECT_EQ(HmiParseULong(text), value) << text;
    const std::pair<const char*, int> signedCases[] = {{"12 (0x0C)", 18}, {"0xFFFFFFFF", 2147483647}, {"-0x10", -16}};
    for (const auto& [text, value] : signedCases)
        EXPECT_EQ(HmiParseLong(text), value) << text;
}
