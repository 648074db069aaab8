#include "dynamics/dynamictypes.h"
#include "project/xmldocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

namespace {

const char* const kTypeNames[] = {"color_digit", "color_analog", "text_int", "text_float", "text_double", "script"};

// Parses one inner element and hands it to the binding, as the window-file reader does.
bool ReadFrom(CHmiDynamicType& binding, const std::string& xml)
{
    const XmlDocument doc = XmlDocument::Parse(xml);
    EXPECT_TRUE(doc.IsValid()) << xml;
    return doc.IsValid() && binding.ReadInnerElement(doc.Root());
}

std::string Written(const CHmiDynamicType& binding)
{
    std::string archive;
    binding.WriteInnerElement(archive);
    return archive;
}

CHmiDynColorAnalog TwoLevels()
{
    CHmiDynColorAnalog analog;
    analog.expression = "E";
    analog.count = 2;
    analog.defaultColor = 0xff;
    analog.limits = {"10", "x>1"};
    analog.colors = {0xff00, 0xff0000};
    return analog;
}

} // namespace

TEST(DynamicTypes, FactoryKnowsExactlyTheSixNames)
{
    for (const char* name : kTypeNames) {
        const auto binding = CreateDynamicType(name);
        ASSERT_NE(binding, nullptr) << name;
        EXPECT_STREQ(binding->GetTypeName(), name);
        EXPECT_EQ(binding->ComposeExpression(), "") << "no expression, nothing composed";
    }
    EXPECT_EQ(CreateDynamicType("Script"), nullptr);
    EXPECT_EQ(CreateDynamicType(""), nullptr);

    auto text = CreateDynamicType("text_float");
    auto& floatText = dynamic_cast<CHmiDynText&>(*text);
    floatText.expression = "t1";
    floatText.intWidth = 5;
    EXPECT_EQ(floatText.ComposeExpression(), "(float2str3((t1),5,2))");
}

TEST(DynamicTypes, ComposedExpressions)
{
    CHmiDynColorDigit digit;
    digit.expression = "x";
    digit.openColor = 0xff;
    EXPECT_EQ(digit.ComposeExpression(), "(x)?0xff:0x0");

    CHmiDynTextInt intText;
    intText.expression = "$db.n";
    intText.intWidth = 4;
    EXPECT_EQ(intText.ComposeExpression(), "(long2str2(($db.n),4))");

    CHmiDynTextDouble doubleText;
    doubleText.expression = "a+b";
    doubleText.intWidth = 8;
    doubleText.decWidth = 3;
    EXPECT_EQ(doubleText.ComposeExpression(), "(double2str3((a+b),8,3))");

    CHmiDynScript script;
    script.expression = "x = 1;";
    EXPECT_EQ(script.ComposeExpression(), "");
}

TEST(DynamicTypes, ColorAnalogCascadeLowestLimitOutermost)
{
    CHmiDynColorAnalog analog = TwoLevels();
    EXPECT_EQ(analog.ComposeExpression(), "((E)>=(10))?(((E)>=(x>1))?0xff0000:0xff00):0xff");
    analog.count = 1;
    EXPECT_EQ(analog.ComposeExpression(), "((E)>=(10))?0xff00:0xff");
    analog.count = 0;
    EXPECT_EQ(analog.ComposeExpression(), "0xff");
    analog.count = -3;
    EXPECT_EQ(analog.ComposeExpression(), "0xff");
    analog.count = 1000;
    const std::string composed = analog.ComposeExpression();
    EXPECT_EQ(std::count(composed.begin(), composed.end(), '?'), 32);
}

TEST(DynamicTypes, WrittenInnerElements)
{
    CHmiDynColorDigit digit;
    digit.expression = "a<b & 'c'";
    digit.openColor = 0xff0000;
    EXPECT_EQ(Written(digit), "\t\t\t\t<type_params expression=\"a&lt;b &amp; &apos;c&apos;\" "
                              "opencolor=\"0xff0000\" closecolor=\"0x0\" />\r\n");

    CHmiDynColorAnalog analog = TwoLevels();
    EXPECT_EQ(Written(analog), "\t\t\t\t<type_params expression=\"E\" count=\"2\" defaultcolor=\"0xff\" "
                               " limit_value0=\"10\" color0=\"0xff00\" "
                               " limit_value1=\"x>1\" color1=\"0xff0000\" "
                               " />\r\n");
    analog.count = -1;
    EXPECT_EQ(Written(analog), "\t\t\t\t<type_params expression=\"E\" count=\"0\" defaultcolor=\"0xff\"  />\r\n");

    CHmiDynTextInt intText;
    intText.expression = "n";
    intText.intWidth = -3;
    EXPECT_EQ(Written(intText), "\t\t\t\t<type_params expression=\"n\" int_width=\"-3\" />\r\n");

    CHmiDynTextFloat floatText;
    floatText.expression = "f\"";
    floatText.intWidth = 6;
    EXPECT_EQ(Written(floatText), "\t\t\t\t<type_params expression=\"f&quot;\" int_width=\"6\" dec_width=\"2\" />\r\n");

    CHmiDynScript script;
    script.expression = "if (a < b && c) x = 'y';";
    EXPECT_EQ(Written(script),
              "\t\t\t\t<code>\r\n\t\t\t\t\t<![CDATA[if (a < b && c) x = 'y';]]>\r\n\t\t\t\t</code>\r\n");
}

TEST(DynamicTypes, ColorDigitReadsHexOrDecimalAndNeedsAllThree)
{
    CHmiDynColorDigit digit;
    EXPECT_FALSE(ReadFrom(digit, "<type_params expression=\"x\" opencolor=\"0xff\"/>"));
    EXPECT_EQ(digit.openColor, 0u);
    EXPECT_EQ(digit.expression, "");

    ASSERT_TRUE(ReadFrom(digit, "<type_params expression=\"a &amp;&amp; b\" opencolor=\"12ab\" closecolor=\"ab0xF\"/>"));
    EXPECT_EQ(digit.expression, "a && b");
    EXPECT_EQ(digit.openColor, 12u) << "decimal, stopping at the first letter";
    EXPECT_EQ(digit.closeColor, 0xab0u) << "hexadecimal from the start, stopping at the x";
}

TEST(DynamicTypes, ColorAnalogReadsAtMost32LevelsAndOnlyCompletePairs)
{
    std::string xml = "<type_params expression=\"v\" count=\"40\" defaultcolor=\"7\" limit_value1=\"2\" color1=\"\"";
    for (int i = 2; i < 40; ++i)
        xml += " limit_value" + std::to_string(i) + "=\"L" + std::to_string(i) + "\" color" + std::to_string(i) + "=\"9\"";
    CHmiDynColorAnalog analog;
    analog.limits[1] = "kept";
    ASSERT_TRUE(ReadFrom(analog, xml + "/>"));
    EXPECT_EQ(analog.count, 32);
    EXPECT_EQ(analog.defaultColor, 7u);
    EXPECT_EQ(analog.limits[1], "kept");
    EXPECT_EQ(analog.limits[31], "L31");
    EXPECT_EQ(analog.colors[31], 9u);

    EXPECT_FALSE(ReadFrom(analog, "<type_params expression=\"w\" count=\"2\"/>"));
    EXPECT_EQ(analog.expression, "v");
    ASSERT_TRUE(ReadFrom(analog, "<type_params expression=\"v\" count=\"-5\" defaultcolor=\"7\"/>"));
    EXPECT_EQ(analog.count, 0);
}

TEST(DynamicTypes, TextWidthsAreDecimalAndEachTypeTakesOnlyItsOwnElement)
{
    CHmiDynTextInt intText;
    ASSERT_TRUE(ReadFrom(intText, "<type_params expression=\"n\" int_width=\"0x10\"/>"));
    EXPECT_EQ(intText.intWidth, 0);
    CHmiDynTextDouble doubleText;
    EXPECT_FALSE(ReadFrom(doubleText, "<type_params expression=\"d\" int_width=\"4\"/>"));
    EXPECT_EQ(doubleText.intWidth, 0);

    CHmiDynScript script;
    EXPECT_FALSE(ReadFrom(script, "<type_params expression=\"x\"/>"));
    EXPECT_EQ(script.expression, "");
    CHmiDynColorDigit digit;
    EXPECT_FALSE(ReadFrom(digit, "<code expression=\"x\" opencolor=\"1\" closecolor=\"2\"/>"));
    EXPECT_EQ(digit.expression, "");
}

TEST(DynamicTypes, WhatIsWrittenReadsBackTheSame)
{
    CHmiDynColorAnalog analog = TwoLevels();
    analog.expression = "a<'b'&\"c\"";
    CHmiDynTextFloat floatText;
    floatText.expression = "x>y";
    floatText.decWidth = 1;
    CHmiDynScript script;
    script.expression = "if (a<b)\n  c = \"&\";"; // XML turns CR LF into LF, so LF alone survives

    for (const CHmiDynamicType* original : std::initializer_list<const CHmiDynamicType*>{&analog, &floatText, &script}) {
        const auto copy = CreateDynamicType(original->GetTypeName());
        ASSERT_TRUE(ReadFrom(*copy, Written(*original))) << original->GetTypeName();
        EXPECT_EQ(Written(*copy), Written(*original));
    }
}

TEST(DynamicTypes, CloneIsIndependent)
{
    CHmiDynColorAnalog analog = TwoLevels();
    const auto clone = analog.Clone();
    analog.limits[0] = "changed";
    analog.expression = "other";
    EXPECT_EQ(Written(*clone), Written(TwoLevels()));

    for (const char* name : kTypeNames) {
        auto original = CreateDynamicType(name);
        original->expression = "e";
        const auto twin = original->Clone();
        original->expression.clear();
        EXPECT_STREQ(twin->GetTypeName(), name);
        EXPECT_EQ(twin->expression, "e");
    }
}
