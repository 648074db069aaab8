#include "builtinwidgets.h"

#include "hmiwidgetalarmwnd.h"
#include "hmiwidgetbmptext.h"
#include "hmiwidgetbutton.h"
#include "hmiwidgetcontrols.h"
#include "hmiwidgetcurve.h"
#include "hmiwidgetellipse.h"
#include "hmiwidgetgradellipse.h"
#include "hmiwidgetgradrect.h"
#include "hmiwidgetgradtriangle.h"
#include "hmiwidgethiscurve.h"
#include "hmiwidgethislist.h"
#include "hmiwidgetline.h"
#include "hmiwidgetnuminput.h"
#include "hmiwidgetpic.h"
#include "hmiwidgetrect.h"
#include "hmiwidgettext.h"
#include "hmiwidgettextinput.h"
#include "hmiwidgettimer.h"
#include "widgets/hmiwidgetwindow.h"

#include <algorithm>
#include <iterator>

namespace {

// The table's order is the registration order; a class without a toolbox label is offered
// under its key, or not at all (the window).
const CWidgetRunTimeClass kBuiltinWidgetClasses[] = {
    {"ellipse", &CHmiWidgetEllipse::classCHmiWidgetEllipse, "Ellipse"},
    {"text", &CHmiWidgetText::classCHmiWidgetText, "Text"},
    {"line", &CHmiWidgetLine::classCHmiWidgetLine, "Line"},
    {"rectangle", &CHmiWidgetRect::classCHmiWidgetRect, "Rectangle"},
    {"gradrectangle", &CHmiWidgetGradRect::classCHmiWidgetGradRect, "Gradient rectangle"},
    {"gradellipse", &CHmiWidgetGradEllipse::classCHmiWidgetGradEllipse, "Gradient ellipse"},
    {"gradtriangle", &CHmiWidgetGradTriangle::classCHmiWidgetGradTriangle, "Gradient triangle"},
    {"picture", &CHmiWidgetPic::classCHmiWidgetPic, "Picture"},
    {"button", &CHmiWidgetButton::classCHmiWidgetButton, "Button"},
    {"checkbox", &CHmiWidgetCheckbox::classCHmiWidgetCheckbox, "Checkbox"},
    {"timer", &CHmiWidgetTimer::classCHmiWidgetTimer, "Timer"},
    {"combobox", &CHmiWidgetCombobox::classCHmiWidgetCombobox, "Combobox"},
    {"curve", &CHmiWidgetCurve::classCHmiWidgetCurve, "Realtime curve"},
    {"hiscurve", &CHmiWidgetHisCurve::classCHmiWidgetHisCurve, "History curve"},
    {"window", &CHmiWidgetWindow::classCHmiWidgetWindow},
    {"numinput", &CHmiWidgetNumInput::classCHmiWidgetNumInput, "Data input"},
    {"textinput", &CHmiWidgetTextInput::classCHmiWidgetTextInput, "Text input"},
    {"alarmwnd", &CHmiWidgetAlarmWnd::classCHmiWidgetAlarmWnd, "Alarm window"},
    {"bmptext", &CHmiWidgetBmpText::classCHmiWidgetBmpText, "Vector Text"},
    {"hislist", &CHmiWidgetHisList::classCHmiWidgetHisList},
};

// The toolbox offers the labelled kinds in an order of its own.
constexpr std::string_view kToolboxOrder[] = {
    "rectangle", "line",         "ellipse",  "text",      "picture",  "gradrectangle",
    "gradellipse", "gradtriangle", "timer",  "numinput",  "textinput", "button",
    "checkbox",  "combobox",     "alarmwnd", "curve",     "hiscurve", "bmptext",
};

// Kinds of the panel that the reader leaves to the custom widget.
constexpr std::string_view kUnregisteredBuiltinKeys[] = {CHmiWidgetEdit::kClassKey, "valve"};

} // namespace

void RegisterBuiltinWidgetClasses()
{
    for (const CWidgetRunTimeClass& entry : kBuiltinWidgetClasses)
        CHmiWidget::AddWidgetRunTimeClass(entry);
}

std::span<const std::string_view> BuiltinToolboxOrder()
{
    return kToolboxOrder;
}

bool IsBuiltinWidgetClass(std::string_view key)
{
    const auto registered = [&](const CWidgetRunTimeClass& entry) { return key == entry.m_strClassKey; };
    return std::any_of(std::begin(kBuiltinWidgetClasses), std::end(kBuiltinWidgetClasses), registered) ||
           std::find(std::begin(kUnregisteredBuiltinKeys), std::end(kUnregisteredBuiltinKeys), key) !=
               std::end(kUnregisteredBuiltinKeys);
}
