// The library's registration: what the editor and kelvo-hmi call after loading tankgauge.so.
#include "alarmleveldialog.h"
#include "tankgauge.h"

#include "editor/extensions/editorextensions.h"
#include "widgets/widgetlibrary.h"

namespace {

// The toolbox icon, 16 by 16, in XPM form.
const char* const kTankIcon[] = {
    "16 16 5 1", "  c None", "# c #202020", ". c #FFFFFF", "o c #4080C0", "r c #FF0000",
    "                ",
    "   ##########   ",
    "   #........#   ",
    "   #rrrrrrrr#   ",
    "   ##.......#   ",
    "   #........#   ",
    "   ##.......#   ",
    "   #oooooooo#   ",
    "   ##ooooooo#   ",
    "   #oooooooo#   ",
    "   ###oooooo#   ",
    "   #oooooooo#   ",
    "   ##ooooooo#   ",
    "   #oooooooo#   ",
    "   ##########   ",
    "                ",
};

// Key, class, toolbox label and icon of each widget kind the library offers.
const CWidgetRunTimeClass kClasses[] = {
    {CTankGauge::kClassKey, &CTankGauge::classCTankGauge, "Tank Gauge", kTankIcon},
};

void EditAlarmLevel(QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context)
{
    auto& tank = static_cast<CTankGauge&>(widget);
    CAlarmLevelDialog dialog(tank.m_alarmLevel, parent);
    // The editor sees the change in the widget's saved properties, shows the rows anew, repaints
    // the tank and marks the window modified.
    if (context.runDialog(dialog) == QDialog::Accepted)
        tank.m_alarmLevel = dialog.AlarmLevel();
}

} // namespace

// The interface version the library was built for: a program with another one refuses it.
HMI_WIDGET_LIBRARY_INTERFACE

extern "C" int WidgetsLibInit()
{
    if (!RegisterWidgetsLib("tankgauge", 1, kClasses))
        return 0;
    RegisterRowDialog(CTankGauge::classCTankGauge, "alarmlevel", EditAlarmLevel);
    return 1;
}
