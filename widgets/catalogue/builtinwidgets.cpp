#include "builtinwidgets.h"

#include "hmiwidgetellipse.h"
#include "hmiwidgetgradellipse.h"
#include "hmiwidgetgradrect.h"
#include "hmiwidgetgradtriangle.h"
#include "hmiwidgetline.h"
#include "hmiwidgetrect.h"
#include "hmiwidgettimer.h"
#include "hmiwidgetwindow.h"

namespace {

struct BuiltinWidgetClass {
    const char* key;
    const CHmiRuntimeClass* runtimeClass;
};

// The table's order is the registration order.
constexpr BuiltinWidgetClass kBuiltinWidgetClasses[] = {
    {"ellipse", &CHmiWidgetEllipse::classCHmiWidgetEllipse},
    {"line", &CHmiWidgetLine::classCHmiWidgetLine},
    {"rectangle", &CHmiWidgetRect::classCHmiWidgetRect},
    {"gradrectangle", &CHmiWidgetGradRect::classCHmiWidgetGradRect},
    {"gradellipse", &CHmiWidgetGradEllipse::classCHmiWidgetGradEllipse},
    {"gradtriangle", &CHmiWidgetGradTriangle::classCHmiWidgetGradTriangle},
    {"timer", &CHmiWidgetTimer::classCHmiWidgetTimer},
    {"window", &CHmiWidgetWindow::classCHmiWidgetWindow},
};

} // namespace

void RegisterBuiltinWidgetClasses()
{
    for (const BuiltinWidgetClass& entry : kBuiltinWidgetClasses)
        CHmiWidget::AddWidgetRunTimeClass(entry.key, entry.runtimeClass);
}
