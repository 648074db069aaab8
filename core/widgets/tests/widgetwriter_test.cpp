// The writer of one `property` line. Whole elements, with bindings and events, are pinned down
// byte for byte in windowfile_test.cpp.

#include "widgets/hmiwidget.h"

#include <gtest/gtest.h>

namespace {

std::string PropertyLine(const char* name, const char* type, const char* length, std::string_view value)
{
    std::string archive;
    CHmiWidget::SaveWidgetProperty(archive, name, type, length, value);
    return archive;
}

} // namespace

TEST(WidgetWriter, StringLengthIsAtLeast32AndOtherwiseOneMoreThanTheValue)
{
    EXPECT_EQ(PropertyLine("text", "string", nullptr, "abc"),
              "\t\t\t<property name=\"text\" type=\"string\" length=\"32\" value=\"abc\" />\n");
    const std::pair<std::string, const char*> cases[] = {
        {std::string(31, 'a'), "length=\"32\""},
        {std::string(32, 'a'), "length=\"33\""},
        {std::string(32, '&'), "length=\"33\""}, // the bytes before escaping count
    };
    for (const auto& [value, length] : cases)
        EXPECT_NE(PropertyLine("text", "string", nullptr, value).find(length), std::string::npos) << value;
}

TEST(WidgetWriter, AGivenLengthIsWrittenForAnyTypeAndOnlyStringsGetOneOtherwise)
{
    EXPECT_EQ(PropertyLine("n", "ulong", "4", "7"),
              "\t\t\t<property name=\"n\" type=\"ulong\" length=\"4\" value=\"7\" />\n");
    EXPECT_EQ(PropertyLine("n", "String", nullptr, "abc"),
              "\t\t\t<property name=\"n\" type=\"String\" value=\"abc\" />\n");
}

TEST(WidgetWriter, EscapesAllFiveCharactersOnce)
{
    EXPECT_EQ(CHmiWidget::ConvertExpToXMLFormat("a<b & \"c\" it's >"), "a&lt;b &amp; &quot;c&quot; it&apos;s &gt;");
    EXPECT_EQ(CHmiWidget::ConvertExpToXMLFormat("&amp;"), "&amp;amp;");
}
