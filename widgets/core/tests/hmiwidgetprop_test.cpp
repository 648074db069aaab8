#include "tests/support/fakedynamictype.h"
#include "widgets/core/hmiwidgetprop.h"

#include <gtest/gtest.h>

namespace {

const char* const kChoices[] = {"No", "Yes"};

CHmiWidgetProp MakeAlignProp()
{
    return CHmiWidgetProp("align", "Align", "Text alignment", 1, "Text", PROP_COMBO);
}

} // namespace

TEST(HmiWidgetProp, ConstructionFillsTheDescriptionAndLeavesTheRestEmpty)
{
    const CHmiWidgetProp prop = MakeAlignProp();
    EXPECT_EQ(prop.m_strName, "align");
    EXPECT_EQ(prop.m_strLabel, "Align");
    EXPECT_EQ(prop.m_strDescription, "Text alignment");
    EXPECT_EQ(prop.m_nBindable, 1);
    EXPECT_EQ(prop.m_strGroup, "Text");
    EXPECT_EQ(prop.m_nItemType, PROP_COMBO);
    EXPECT_TRUE(prop.m_strExpression.empty());
    EXPECT_EQ(prop.m_pTreeItem, nullptr);
    EXPECT_EQ(prop.m_pParentItem, nullptr);
    EXPECT_EQ(prop.GetDynamicType(), nullptr);
    EXPECT_EQ(prop.m_pComboList, nullptr);
    EXPECT_EQ(prop.m_nComboCount, 0);
}

TEST(HmiWidgetProp, ComboListIsReferencedNotCopied)
{
    CHmiWidgetProp prop = MakeAlignProp();
    prop.SetComboList(kChoices, 2);
    EXPECT_EQ(prop.m_pComboList, kChoices);
    EXPECT_EQ(prop.m_nComboCount, 2);
}

TEST(HmiWidgetProp, CopiesShareTheListButOwnTheirOwnBinding)
{
    ASSERT_EQ(FakeDynamicType::alive, 0);
    {
        CHmiWidgetProp original = MakeAlignProp();
        original.SetComboList(kChoices, 2);
        original.m_strExpression = "$db.level";
        auto type = std::make_unique<FakeDynamicType>();
        type->expression = "level";
        original.SetDynamicType(std::move(type));

        CHmiWidgetProp copy(original);
        EXPECT_EQ(copy.m_strExpression, "$db.level");
        EXPECT_EQ(copy.m_pComboList, kChoices);
        ASSERT_NE(copy.GetDynamicType(), nullptr);
        EXPECT_NE(copy.GetDynamicType(), original.GetDynamicType());
        EXPECT_EQ(copy.GetDynamicType()->expression, "level");

        CHmiWidgetProp assigned("x", "X", "", 0, "", PROP_EDIT);
        assigned.SetDynamicType(std::make_unique<FakeDynamicType>());
        assigned = original;
        EXPECT_EQ(assigned.m_strName, "align");
        EXPECT_EQ(assigned.GetDynamicType()->expression, "level");
        EXPECT_EQ(FakeDynamicType::alive, 3);

        assigned = assigned; // self-assignment keeps the binding
        EXPECT_EQ(assigned.GetDynamicType()->expression, "level");
    }
    EXPECT_EQ(FakeDynamicType::alive, 0) << "every record deletes its own binding";
}
