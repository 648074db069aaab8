// What each binding type composes, writes and reads at its edges. The composed expressions and
// written elements of ordinary bindings of every type, and their reading back, are pinned down
// byte for byte in core/widgets/tests/windowfile_test.cpp.

#include "dynamics/dynamictypes.h"
#include "project/xmldocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

const char* const kTypeNames[] = {"color_digit", "color_analog", "text_int", "text_float", "text_double", "script"};

// Parses one inner element and hands it to the binding, as the window-file reader does.
bool ReadFrom(CHmiDynamicType& binding, const std::string& xml)
{
    const XmlDocument doc = XmlDocument::Parse(xml);
    EXPECT_TRUE(doc.IsValid()) << xml;
    return doc.IsValid() && binding.ReadInnerElement(doc.Root());
}

} // namespace

TEST(DynamicTypes, FactoryMakesExactlyTheSixAndClonesAreIndependent)
{
    for (const char* name : kTypeNames) {
        const auto binding = CreateDynamicType(name);
        ASSERT_NE(binding, nullptr) << name;
        EXPECT_STREQ(binding->GetTypeName(), name);
        EXPECT_EQ(binding->ComposeExpression(), "") << name << ": no expression, nothing composed";

        binding->expression = "e";
        const auto twin = binding->Clone();
        binding->expression.clear();
        EXPECT_EQ(std::tuple(std::string(twin->GetTypeName()), twin->expression), std::tuple(name, "e"));
    }
    EXPECT_EQ(CreateDynamicType("Script"), nullptr);
    EXPECT_EQ(CreateDynamicType(""), nullptr);

    CHmiDynScript script;
    script.expression = "x = 1;";
    EXPECT_EQ(script.ComposeExpression(), "") << "a script binding composes nothing";
}

TEST(DynamicTypes, ColorDigitReadsHexOrDecimalAndNeedsAllThree)
{
    CHmiDynColorDigit digit;
    EXPECT_FALSE(ReadFrom(digit, "<type_params expression=\"x\" opencolor=\"0xff\"/>"));
    EXPECT_EQ(std::tuple(digit.expression, digit.openColor), std::tuple("", 0u)) << "nothing is taken";

    // The open colour is decimal, stopping at the first letter; the close colour is hexadecimal
    // from the start, stopping at the x.
    ASSERT_TRUE(ReadFrom(digit, "<type_params expression=\"a &amp; b\" opencolor=\"12ab\" closecolor=\"ab0xF\"/>"));
    EXPECT_EQ(std::tuple(digit.expression, digit.openColor, digit.closeColor), std::tuple("a & b", 12u, 0xab0u));
}

TEST(DynamicTypes, ColorAnalogReadsOnlyCompletePairsAndCutsItsCountTo32)
{
    std::string xml = "<type_params expression=\"v\" count=\"40\" defaultcolor=\"7\" limit_value1=\"2\" color1=\"\"";
    for (int i = 2; i < 40; ++i)
        xml += " limit_value" + std::to_string(i) + "=\"L" + std::to_string(i) + "\" color" + std::to_string(i) +
               "=\"9\"";
    CHmiDynColorAnalog analog;
    analog.limits[1] = "kept";
    ASSERT_TRUE(ReadFrom(analog, xml + "/>"));
    EXPECT_EQ(std::tuple(analog.count, analog.defaultColor, analog.limits[1], analog.limits[31], analog.colors[31]),
              std::tuple(32, 7u, "kept", "L31", 9u));

    EXPECT_FALSE(ReadFrom(analog, "<type_params expression=\"w\" count=\"2\"/>"));
    EXPECT_EQ(analog.expression, "v");
    ASSERT_TRUE(ReadFrom(analog, "<type_params expression=\"v\" count=\"-5\" defaultcolor=\"7\"/>"));
    EXPECT_EQ(std::tuple(analog.count, analog.LevelCount()), std::tuple(-5, 0)) << "kept as read, no levels";

    // Composed and written, the count is held the same way.
    ASSERT_TRUE(ReadFrom(analog, "<type_params expression=\"E\" count=\"1\" defaultcolor=\"0xff\" limit_value0=\"10\" "
                                 "color0=\"0xff00\"/>"));
    EXPECT_EQ(analog.ComposeExpression(), "((E)>=(10))?0xff00:0xff");

    analog.count = 1000;
    EXPECT_EQ(std::ranges::count(analog.ComposeExpression(), '?'), 32);

    for (const int count : {0, -3}) {
        analog.count = count;
        EXPECT_EQ(analog.ComposeExpression(), "0xff") << count;
        std::string written;
        analog.WriteInnerElement(written);
        EXPECT_EQ(written, "\t\t\t\t<type_params expression=\"E\" count=\"" + std::to_string(count) +
                               "\" defaultcolor=\"0xff\"  />\r\n");
    }
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
