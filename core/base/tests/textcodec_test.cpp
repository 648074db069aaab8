#include "base/textcodec.h"

#include <gtest/gtest.h>

namespace {

const std::string kTemperatureUtf8 = "\xE6\xB8\xA9\xE5\xBA\xA6"; // two Chinese characters
const std::string kTemperatureGb = "\xCE\xC2\xB6\xC8";
const std::string kEuroUtf8 = "\xE2\x82\xAC"; // not in GB2312

} // namespace

TEST(TextCodec, ChineseTextRoundTripsAndAsciiPassesUnchanged)
{
    std::string gb;
    ASSERT_TRUE(Utf8ToGb2312("T=" + kTemperatureUtf8, gb));
    EXPECT_EQ(gb, "T=" + kTemperatureGb);
    std::string utf8;
    ASSERT_TRUE(Gb2312ToUtf8(gb, utf8));
    EXPECT_EQ(utf8, "T=" + kTemperatureUtf8);

    EXPECT_EQ(Utf8ToGb2312OrKeep(""), "");
    EXPECT_EQ(Utf8ToGb2312OrKeep("plain <text> & 123"), "plain <text> & 123");
    EXPECT_EQ(Gb2312ToUtf8OrKeep("plain"), "plain");
}

TEST(TextCodec, CharactersOutsideGb2312AreMarkedAndComeBackAsThemselves)
{
    std::string out = "untouched";
    EXPECT_FALSE(Utf8ToGb2312(kEuroUtf8, out)) << "the strict conversion refuses them";
    EXPECT_EQ(out, "untouched");

    const std::string mixed = "a" + kEuroUtf8 + kTemperatureUtf8 + "\xF0\x9F\x98\x80z";
    const std::string held = Utf8ToGb2312OrKeep(mixed);
    EXPECT_EQ(held, "a\x80" + kEuroUtf8 + kTemperatureGb + "\x80\xF0\x9F\x98\x80z");
    EXPECT_EQ(Gb2312ToUtf8OrKeep(held), mixed);
    EXPECT_FALSE(Gb2312ToUtf8(held, out)) << "marked text is not GB2312";
    EXPECT_EQ(ReadForeignCharacter(held, 1).codePoint, U'\u20AC');
    EXPECT_EQ(ReadForeignCharacter(held, 1).length, 4u);

    EXPECT_EQ(Utf8ToGb2312OrKeep("a\xFF" "b"), "a\x80\xEF\xBF\xBD" "b") << "invalid UTF-8 becomes U+FFFD";
    EXPECT_EQ(ReadForeignCharacter("\x80", 0).codePoint, U'\uFFFD') << "a mark without its character";
    EXPECT_EQ(ReadForeignCharacter("\x80", 0).length, 1u);

    const std::string truncatedGb = kTemperatureGb.substr(0, 3);
    EXPECT_FALSE(Gb2312ToUtf8(truncatedGb, out));
    EXPECT_EQ(Gb2312ToUtf8OrKeep(truncatedGb), kTemperatureUtf8.substr(0, 3) + "\xB6") << "bad bytes are kept";
}
