#pragma once

#include "editor/extensions/projectcontext.h"

class CHmiWidget;
class COptionTreeItem;
class QWidget;

// What the main frame calls when the button of a property row is pressed: the dialog registered
// for the row's property on the widget's class (editorextensions.h), else the one of the row's
// item type (the variable picker, a file chooser, the widget's own WidgetItemClick). It hands
// the result to the widget as an edit of the row would, and returns whether the widget changed;
// when it did, the rows show the new values, the widget is repainted and its document is marked
// modified. A live list control must then take the widget's new columns. Bindable and event
// rows have dialogs of their own and are not handled here.
bool SelectWidgetItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context = {});

// Registers the dialogs of the built-in kinds' own rows: the picture file that is brought into
// the window's picture folder, the bitmap text's font, and the display fields of the alarm
// window and the history list. At start-up, before the widget libraries are loaded.
void RegisterBuiltinRowDialogs();
