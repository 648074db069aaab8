#include "widgets/catalogue/builtinwidgets.h"
#include "widgets/core/hmiwidget.h"

#include <gtest/gtest.h>

TEST(BuiltinWidgets, RegistersEachKeyInTableOrderForAClassThatWritesIt)
{
    CHmiWidget::RemoveAllRunTimeClass();
    RegisterBuiltinWidgetClasses();
    std::vector<std::string> keys;
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList) {
        keys.push_back(entry.m_strClassKey);
        EXPECT_EQ(entry.m_pRuntimeClass->CreateObject()->GetWidgetClassName(), entry.m_strClassKey);
    }
    CHmiWidget::RemoveAllRunTimeClass();
    EXPECT_EQ(keys, (std::vector<std::string>{"ellipse", "text", "line", "rectangle", "gradrectangle", "gradellipse",
                                             "gradtriangle", "picture", "button", "checkbox", "timer", "combobox",
                                             "curve", "hiscurve", "window", "numinput", "textinput", "alarmwnd",
                                             "bmptext", "hislist"}));
}
