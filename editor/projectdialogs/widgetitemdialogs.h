#pragma once

#include "projectcontext.h"

class CHmiWidget;
class COptionTreeItem;
class QWidget;

// What the main frame calls when the button of a property row is pressed. Each opens the
// row's dialog, hands the result to the widget as an edit of the row would, and returns
// whether the widget changed; when it did, the row shows the new value, the widget is
// repainted and its document is marked modified. A live list control must then take the
// widget's new columns.

// Any row of the widget: picks the entry point below by the row's item type. Bindable and
// event rows have dialogs of their own and are not handled here.
bool SelectWidgetItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context = {});

// A variable row: the "HMI Database" picker over the current project; the row takes the
// reference text.
bool SelectVariableItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item,
                        const ProjectContext& context = {});
// A file row: a picture chosen elsewhere is first copied into the window's picture folder,
// replacing a file of the same name there; the row then takes the file in that folder.
bool ChooseFileItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context = {});
// A font row of the bitmap text: font and text colour.
bool ChooseFontItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context = {});
// A row that only shows its value: the display fields of the alarm window ("Setting Alarm
// Field") and of the history list ("History Data Variable"); any other such row is handed to
// the widget's own WidgetItemClick.
bool ClickWidgetItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context = {});
