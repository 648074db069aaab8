// Number text never follows the user's locale: under a locale that writes a decimal comma, the
// window file, the property list and the curve preview still use a point.

#include "catalogue/hmiwidgetcurve.h"
#include "ownproperties.h"
#include "tests/support/commalocale.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingdc.h"

#include <gtest/gtest.h>

TEST(CommaLocale, FloatsTravelWithAPointThroughFileListAndPreview)
{
    const CommaLocaleScope comma;
    ASSERT_TRUE(comma.Active()) << comma.Why();

    EXPECT_EQ(HmiFormatFloat(12.0), "12.000000");
    EXPECT_EQ(HmiFormatFloat(-0.125, 2), "-0.12") << "rounds as printf does";
    EXPECT_FLOAT_EQ(HmiParseFloat(" 3.14159"), 3.14159f);
    EXPECT_FLOAT_EQ(HmiParseFloat("-2.5e1 units"), -25.0f);
    EXPECT_FLOAT_EQ(HmiParseFloat("3,5"), 3.0f) << "a comma ends the number, as in the panel";
    EXPECT_FLOAT_EQ(HmiParseFloat("0x10"), 16.0f);
    EXPECT_FLOAT_EQ(HmiParseFloat("abc"), 0.0f);

    CHmiWidgetCurve curve;
    curve.SetWidgetRect({0, 0, 260, 130});
    ASSERT_EQ(curve.SetWidgetProperty("maxvalue", "float", "3.14159", ""), 1);
    EXPECT_FLOAT_EQ(curve.m_fMaxValue, 3.14159f);
    EXPECT_NE(OwnPropertyLines(curve).find("name=\"maxvalue\" type=\"float\" value=\"3.141590\""), std::string::npos);

    MemoryOptionTree tree;
    curve.CreateWidgetPropertyTree(tree);
    MemoryOptionItem* minimum = tree.Find("minimum value");
    ASSERT_NE(minimum, nullptr);
    EXPECT_EQ(minimum->GetEditText(), "0.000000");
    minimum->SetEditText("-1.5");
    curve.UpdateWidgetPropByTree(minimum);
    EXPECT_FLOAT_EQ(curve.m_fMinValue, -1.5f);

    const auto texts = DrawnBy(curve).ShapesOfKind("text");
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(texts.front().text, "-1.50");
}
