#include "builtinwidgets.h"

#include "hmiwidgettimer.h"
#include "hmiwidgetwindow.h"

namespace {

struct BuiltinWidgetClass {
    const char* key;
    const CHmiRuntimeClass* runtimeClass;
};

// The table's order is the registration order.
constexpr BuiltinWidgetClass kBuiltinWidgetClasses[] = {
    {"timer", &CHmiWidgetTimer::classCHmiWidgetTimer},
    {"window", &CHmiWidgetWindow::classCHmiWidgetWindow},
};

} // namespace

void RegisterBuiltinWidgetClasses()
{
    for (const BuiltinWidgetClass& entry : kBuiltinWidgetClasses)
        CHmiWidget::AddWidgetRunTimeClass(entry.key, entry.runtimeClass);
}
