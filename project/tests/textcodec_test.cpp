#include "project/textcodec.h"

#include <gtest/gtest.h>

namespace {

const std::string kTemperatureUtf8 = "\xE6\xB8\xA9\xE5\xBA\xA6"; // two Chinese characters
const std::string kTemperatureGb = "\xCE\xC2\xB6\xC8";
const std::string kEuroUtf8 = "\xE2\x82\xAC"; // not in GB2312

} // namespace

TEST(TextCodec, ChineseTextRoundTrips)
{
    std::string gb;
    ASSERT_TRUE(Utf8ToGb2312("T=" + kTemperatureUtf8, gb));
    EXPECT_EQ(gb, "T=" + kTemperatureGb);
    std::string utf8;
    ASSERT_TRUE(Gb2312ToUtf8(gb, utf8));
    EXPECT_EQ(utf8, "T=" + kTemperatureUtf8);
}

TEST(TextCodec, UnconvertibleTextIsReportedOrKept)
{
    std::string out = "untouched";
    EXPECT_FALSE(Utf8ToGb2312(kEuroUtf8, out));
    EXPECT_EQ(out, "untouched");
    EXPECT_EQ(Utf8ToGb2312OrKeep("a" + kEuroUtf8), "a" + kEuroUtf8);
    EXPECT_EQ(Utf8ToGb2312OrKeep("a" + kTemperatureUtf8), "a" + kTemperatureGb);

    const std::string truncatedGb = kTemperatureGb.substr(0, 3);
    EXPECT_FALSE(Gb2312ToUtf8(truncatedGb, out));
    EXPECT_EQ(Gb2312ToUtf8OrKeep(truncatedGb), truncatedGb);
}

TEST(TextCodec, AsciiAndEmptyTextPassUnchanged)
{
    EXPECT_EQ(Utf8ToGb2312OrKeep(""), "");
    EXPECT_EQ(Utf8ToGb2312OrKeep("plain <text> & 123"), "plain <text> & 123");
    EXPECT_EQ(Gb2312ToUtf8OrKeep("plain"), "plain");
}
