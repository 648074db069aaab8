#include "tests/support/fakedynamictype.h"
#include "widgets/core/hmiwidget.h"

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
    EXPECT_NE(PropertyLine("text", "string", nullptr, std::string(31, 'a')).find("length=\"32\""), std::string::npos);
    EXPECT_NE(PropertyLine("text", "string", nullptr, std::string(32, 'a')).find("length=\"33\""), std::string::npos);
    EXPECT_NE(PropertyLine("text", "string", nullptr, std::string(40, 'a')).find("length=\"41\""), std::string::npos);
    // The length counts the bytes before escaping.
    EXPECT_NE(PropertyLine("text", "string", nullptr, std::string(32, '&')).find("length=\"33\""), std::string::npos);
}

TEST(WidgetWriter, AGivenLengthIsWrittenForAnyTypeAndOnlyStringsGetOneOtherwise)
{
    EXPECT_EQ(PropertyLine("n", "ulong", "4", "7"), "\t\t\t<property name=\"n\" type=\"ulong\" length=\"4\" value=\"7\" />\n");
    EXPECT_EQ(PropertyLine("n", "string", "8", "abc"),
              "\t\t\t<property name=\"n\" type=\"string\" length=\"8\" value=\"abc\" />\n");
    EXPECT_EQ(PropertyLine("n", "String", nullptr, "abc"), "\t\t\t<property name=\"n\" type=\"String\" value=\"abc\" />\n");
}

TEST(WidgetWriter, NumbersInDecimalAndFloatsWithSixDecimals)
{
    std::string archive;
    CHmiWidget::SaveWidgetProperty(archive, "left", "short", nullptr, std::int32_t(-12));
    const float scale = 12.5f;
    CHmiWidget::SaveWidgetProperty(archive, "scale", "float", nullptr, scale);
    EXPECT_EQ(archive, "\t\t\t<property name=\"left\" type=\"short\" value=\"-12\" />\n"
                       "\t\t\t<property name=\"scale\" type=\"float\" value=\"12.500000\" />\n");
}

TEST(WidgetWriter, EscapesAllFiveCharactersOnce)
{
    EXPECT_EQ(CHmiWidget::ConvertExpToXMLFormat("a<b & \"c\""), "a&lt;b &amp; &quot;c&quot;");
    EXPECT_EQ(CHmiWidget::ConvertExpToXMLFormat("it's >"), "it&apos;s &gt;");
    EXPECT_EQ(CHmiWidget::ConvertExpToXMLFormat("&amp;"), "&amp;amp;");
    EXPECT_EQ(CHmiWidget::ConvertExpToXMLFormat(""), "");
}

TEST(WidgetWriter, WidgetElementWithBindingsAndEvents)
{
    CHmiWidget widget;
    widget.SetWidgetName("w<1>");
    widget.SetWidgetRect({1, 2, 3, 4});
    widget.AddWidgetDynProp("left", "$db.x>3");
    CHmiWidgetProp* top = widget.AddWidgetDynProp("top", "t");
    top->SetDynamicType(std::make_unique<FakeDynamicType>());
    top->GetDynamicType()->expression = "raw";
    // A type object without an expression writes nothing.
    widget.FindProperty("right")->SetDynamicType(std::make_unique<FakeDynamicType>());
    widget.SetWidgetEventCode("buttonup", "a();\nb();]]>");

    std::string archive;
    widget.Serialize(archive);
    const std::string properties = archive.substr(archive.find("\t\t\t<property"),
                                                  archive.find("\t\t</properties>") - archive.find("\t\t\t<property"));
    EXPECT_EQ(std::count(properties.begin(), properties.end(), '\n'), 11);
    EXPECT_EQ(archive.substr(0, archive.find("\t\t\t<property")), "\t<widget name=\"w&lt;1>\"  class=\"\">\r\n\t\t<properties>\r\n")
        << "name and class are written as they are, but for the characters that would break the file";
    EXPECT_EQ(archive.substr(archive.find("\t\t</properties>")),
              "\t\t</properties>\r\n"
              "\t\t<dynamics>\r\n"
              "\t\t\t<dynamic propname=\"left\" expression=\"$db.x&gt;3\" />\r\n"
              "\t\t\t<dynamic propname=\"top\" expression=\"t\" type=\"fake\" >\r\n"
              "\t\t\t\t<type_params expression=\"raw\" />\r\n"
              "\t\t\t</dynamic>\r\n"
              "\t\t</dynamics>\r\n"
              "\t\t<events>\r\n"
              "\t\t\t<event name=\"buttonup\">\n"
              "\t\t\t\t<![CDATA[a();\nb();]]]]><![CDATA[>]]>\n"
              "\t\t\t</event>\r\n"
              "\t\t</events>\r\n"
              "\t</widget>\r\n");
}
