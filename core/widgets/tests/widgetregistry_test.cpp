// The class registry and library registration; loading real libraries, and withdrawing what a
// declining one registered, is tested in editor/startup/tests.

#include "tests/support/emptyregistry.h"
#include "widgets/hmictrlwidget.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/widgetlibrary.h"

#include <gtest/gtest.h>

namespace {

class FirstWidget : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(FirstWidget)
};
HMI_IMPLEMENT_WIDGET_CLASS(FirstWidget, CHmiWidget)

class SecondWidget : public CHmiCtrlWidget {
    HMI_DECLARE_WIDGET_CLASS(SecondWidget)
};
HMI_IMPLEMENT_WIDGET_CLASS(SecondWidget, CHmiCtrlWidget)

const CHmiRuntimeClass* const kCustom = &CHmiWidgetCustom::classCHmiWidgetCustom;

using RegistryTest = EmptyRegistryTest;

} // namespace

TEST_F(RegistryTest, UnknownKeysFallBackToTheCustomWidget)
{
    EXPECT_FALSE(CHmiWidget::AddWidgetRunTimeClass("", &FirstWidget::classFirstWidget));
    EXPECT_FALSE(CHmiWidget::AddWidgetRunTimeClass("first", nullptr));
    EXPECT_EQ(CHmiWidget::GetWidgetClass(""), kCustom);

    ASSERT_TRUE(CHmiWidget::AddWidgetRunTimeClass("first", &FirstWidget::classFirstWidget));
    EXPECT_EQ(CHmiWidget::GetWidgetClass("first"), &FirstWidget::classFirstWidget);
    EXPECT_EQ(CHmiWidget::GetWidgetClass("First"), kCustom) << "keys are case-sensitive";
    EXPECT_EQ(CHmiWidget::GetWidgetClass("first "), kCustom);
}

TEST_F(RegistryTest, LibraryRegistrationChecksItsArguments)
{
    const CWidgetRunTimeClass entries[] = {
        {"", &FirstWidget::classFirstWidget},
        {"second", &SecondWidget::classSecondWidget},
        {"nothing", nullptr},
    };
    EXPECT_EQ(RegisterWidgetsLib("gauges", 0, entries), 0);
    EXPECT_EQ(RegisterWidgetsLib("gauges", -1, entries), 0);
    EXPECT_EQ(RegisterWidgetsLib("", 3, entries), 0);
    EXPECT_EQ(RegisterWidgetsLib(nullptr, 3, entries), 0);
    EXPECT_EQ(RegisterWidgetsLib("gauges", 3, nullptr), 0);
    EXPECT_TRUE(RegisteredWidgetLibs().empty());
    EXPECT_TRUE(CHmiWidget::WidgetClassList.empty());

    EXPECT_EQ(RegisterWidgetsLib("gauges", 3, entries), 1);
    ASSERT_EQ(RegisteredWidgetLibs().size(), 1u);
    EXPECT_EQ(RegisteredWidgetLibs()[0].m_strName, "gauges");
    ASSERT_EQ(CHmiWidget::WidgetClassList.size(), 1u) << "bad entries are skipped, the rest register";
    EXPECT_EQ(CHmiWidget::WidgetClassList[0].m_strClassKey, "second");
}

TEST_F(RegistryTest, ALaterLibraryCannotReplaceAKey)
{
    const CWidgetRunTimeClass first[] = {{"gauge", &FirstWidget::classFirstWidget}};
    const CWidgetRunTimeClass second[] = {{"gauge", &SecondWidget::classSecondWidget}};
    RegisterWidgetsLib("a", 1, first);
    RegisterWidgetsLib("b", 1, second);
    EXPECT_EQ(RegisteredWidgetLibs().size(), 2u);
    EXPECT_EQ(CHmiWidget::WidgetClassList.size(), 2u) << "both records are kept";
    EXPECT_EQ(CHmiWidget::GetWidgetClass("gauge"), &FirstWidget::classFirstWidget);
}
