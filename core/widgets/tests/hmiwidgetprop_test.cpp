#include "tests/support/fakedynamictype.h"
#include "widgets/hmiwidgetprop.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

const char* const kChoices[] = {"No", "Yes"};

} // namespace

TEST(HmiWidgetProp, CopiesShareTheListButOwnTheirOwnBinding)
{
    ASSERT_EQ(FakeDynamicType::alive, 0);
    {
        CHmiWidgetProp original("align", "Align", "Text alignment", 1, "Text", PROP_COMBO);
        original.SetComboList(kChoices, 2);
        original.m_strExpression = "$db.level";
        auto type = std::make_unique<FakeDynamicType>();
        type->expression = "level";
        original.SetDynamicType(std::move(type));

        CHmiWidgetProp copy(original);
        EXPECT_EQ(std::tuple(copy.m_strExpression, copy.m_pComboList, copy.m_nComboCount),
                  std::tuple("$db.level", kChoices, 2));
        ASSERT_NE(copy.GetDynamicType(), nullptr);
        EXPECT_NE(copy.GetDynamicType(), original.GetDynamicType());
        EXPECT_EQ(copy.GetDynamicType()->expression, "level");

        CHmiWidgetProp assigned("x", "X", "", 0, "", PROP_EDIT);
        assigned.SetDynamicType(std::make_unique<FakeDynamicType>());
        assigned = original;
        EXPECT_EQ(assigned.m_strName, "align");
        EXPECT_EQ(FakeDynamicType::alive, 3);

        assigned = assigned; // self-assignment keeps the binding
        EXPECT_EQ(assigned.GetDynamicType()->expression, "level") << "the binding assigned, then kept";
    }
    EXPECT_EQ(FakeDynamicType::alive, 0) << "every record deletes its own binding";
}
