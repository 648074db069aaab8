#include "widgets/core/numberparsers.h"

#include <gtest/gtest.h>

// Leading blanks, a sign, and stopping at the first letter or at an "0x" are also pinned down
// by the widget's file reader in hmiwidget_test.cpp.
TEST(NumberParsers, DecimalConversionStopsAtFirstUnfitCharacter)
{
    EXPECT_EQ(HmiDecimalToLong("+8"), 8);
    EXPECT_EQ(HmiDecimalToLong("16777215"), 0x00FFFFFF);
    EXPECT_EQ(HmiDecimalToLong(""), 0);
    EXPECT_EQ(HmiDecimalToLong("-"), 0);
}

TEST(NumberParsers, DecimalConversionSaturatesAtThe32BitLimits)
{
    EXPECT_EQ(HmiDecimalToLong("2147483647"), 2147483647);
    EXPECT_EQ(HmiDecimalToLong("2147483648"), 2147483647);
    EXPECT_EQ(HmiDecimalToLong("-2147483648"), -2147483647 - 1);
    EXPECT_EQ(HmiDecimalToLong("-99999999999999999999"), -2147483647 - 1);
}

TEST(NumberParsers, HexadecimalWheneverTheTextContains0x)
{
    EXPECT_EQ(HmiParseULong("0x00FF00"), 65280u);
    EXPECT_EQ(HmiParseULong("255"), 255u);
    EXPECT_EQ(HmiParseULong("abc"), 0u);
    // "0x" later in the text still switches the whole text to base 16 from its start.
    EXPECT_EQ(HmiParseULong("12 (0x0C)"), 18u);
    EXPECT_EQ(HmiParseLong("12 (0x0C)"), 18);
    // Upper-case "0X" is no marker, so the text is decimal and stops at the X.
    EXPECT_EQ(HmiParseULong("0XFF"), 0u);
    EXPECT_EQ(HmiParseULong("ff 0x"), 255u);
    EXPECT_EQ(HmiParseULong("0xg"), 0u);
}

TEST(NumberParsers, UnsignedAndSignedDifferAtTheTop)
{
    EXPECT_EQ(HmiParseULong("0xFFFFFFFF"), 0xFFFFFFFFu);
    EXPECT_EQ(HmiParseLong("0xFFFFFFFF"), 2147483647);
    EXPECT_EQ(HmiParseULong("0x1FFFFFFFF"), 0xFFFFFFFFu);
    EXPECT_EQ(HmiParseULong("-1"), 0xFFFFFFFFu);
    EXPECT_EQ(HmiParseLong("-0x10"), -16);
}
