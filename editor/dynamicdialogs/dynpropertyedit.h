#pragma once

#include "dialogservices.h"

class CHmiWidget;
class COptionTreeItem;
class QWidget;

// What the property pane's button on a bindable row does: opens the "Dynamic Property" dialog
// for the row's property and, when the user confirms, binds the property, changes its binding or
// deletes it. The row's extra column then shows whether the property is bound, and the
// widget's document is marked modified. Returns true when the widget changed, false when the
// row belongs to no bindable property of the widget or the user changed nothing.
bool EditDynamicProperty(QWidget* parent, CHmiWidget& widget, COptionTreeItem& row,
                         const DynamicDialogServices& services);
