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

namespace {

struct BuiltinWidgetClass {
    const char* key;
    const CHmiRuntimeClass* runtimeClass;
};

// The table's order is the registration order.
constexpr BuiltinWidgetClass kBuiltinWidgetClasses[] = {
    {"ellipse", &CHmiWidgetEllipse::classCHmiWidgetEllipse},
    {"text", &CHmiWidgetText::classCHmiWidgetText},
    {"line", &CHmiWidgetLine::classCHmiWidgetLine},
    {"rectangle", &CHmiWidgetRect::classCHmiWidgetRect},
    {"gradrectangle", &CHmiWidgetGradRect::classCHmiWidgetGradRect},
    {"gradellipse", &CHmiWidgetGradEllipse::classCHmiWidgetGradEllipse},
    {"gradtriangle", &CHmiWidgetGradTriangle::classCHmiWidgetGradTriangle},
    {"picture", &CHmiWidgetPic::classCHmiWidgetPic},
    {"button", &CHmiWidgetButton::classCHmiWidgetButton},
    {"checkbox", &CHmiWidgetCheckbox::classCHmiWidgetCheckbox},
    {"timer", &CHmiWidgetTimer::classCHmiWidgetTimer},
    {"combobox", &CHmiWidgetCombobox::classCHmiWidgetCombobox},
    {"curve", &CHmiWidgetCurve::classCHmiWidgetCurve},
    {"hiscurve", &CHmiWidgetHisCurve::classCHmiWidgetHisCurve},
    {"window", &CHmiWidgetWindow::classCHmiWidgetWindow},
    {"numinput", &CHmiWidgetNumInput::classCHmiWidgetNumInput},
    {"textinput", &CHmiWidgetTextInput::classCHmiWidgetTextInput},
    {"alarmwnd", &CHmiWidgetAlarmWnd::classCHmiWidgetAlarmWnd},
    {"bmptext", &CHmiWidgetBmpText::classCHmiWidgetBmpText},
    {"hislist", &CHmiWidgetHisList::classCHmiWidgetHisList},
};

} // namespace

void RegisterBuiltinWidgetClasses()
{
    for (const BuiltinWidgetClass& entry : kBuiltinWidgetClasses)
        CHmiWidget::AddWidgetRunTimeClass(entry.key, entry.runtimeClass);
}
