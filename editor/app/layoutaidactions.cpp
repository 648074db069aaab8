#include "layoutaidactions.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

LayoutAids LayoutAidsOf(const CEditorPreferences::Values& values)
{
    return {values.showGrid, values.gridSize, values.snapToGrid, values.snapToWidgets};
}

void AddLayoutAidToggles(QMenu& menu, CEditorPreferences& preferences)
{
    using Choice = bool CEditorPreferences::Values::*;
    const auto addToggle = [&menu, &preferences](const QString& text, const QString& statusTip,
                                                 const QString& name, Choice choice) {
        QAction* action = menu.addAction(text);
        action->setObjectName(name);
        action->setCheckable(true);
        action->setChecked(preferences.Get().*choice);
        action->setStatusTip(statusTip);
        QObject::connect(action, &QAction::toggled, &preferences, [&preferences, choice](bool on) {
            CEditorPreferences::Values values = preferences.Get();
            values.*choice = on;
            preferences.Set(values);
        });
        QObject::connect(&preferences, &CEditorPreferences::changed, action,
                         [&preferences, action, choice] { action->setChecked(preferences.Get().*choice); });
    };
    addToggle(QCoreApplication::translate("CLayoutAidToggles", "Show &Grid"),
              QCoreApplication::translate("CLayoutAidToggles", "Show or hide the grid on the canvas"),
              QStringLiteral("actionShowGrid"), &CEditorPreferences::Values::showGrid);
    addToggle(QCoreApplication::translate("CLayoutAidToggles", "Snap to G&rid"),
              QCoreApplication::translate("CLayoutAidToggles",
                                          "Snap moved, resized and placed widgets to the grid; hold Alt to place freely"),
              QStringLiteral("actionSnapToGrid"), &CEditorPreferences::Values::snapToGrid);
    addToggle(QCoreApplication::translate("CLayoutAidToggles", "Snap to &Widgets"),
              QCoreApplication::translate("CLayoutAidToggles", "Snap to the edges and centres of other widgets and of "
                                                               "the window, and to equal gaps; hold Alt to place freely"),
              QStringLiteral("actionSnapToWidgets"), &CEditorPreferences::Values::snapToWidgets);
}
