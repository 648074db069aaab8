#pragma once

#include "project/scriptfunctions.h"

#include <string>
#include <string_view>
#include <vector>

class CHmiWidget;
class COptionTreeItem;
class QWidget;

// Code read from a window file has LF line ends and code typed in the editor CR LF; both are
// shown with CR LF: every LF becomes CR LF, then every CR CR LF becomes CR LF.
std::string ToEditorLineEnds(std::string_view code);

// What the property pane's button on an event row does: finds the widget's event whose label is
// the row's caption, lets the user edit its code in the "Event Edit" dialog and, on OK, stores the
// code and shows it as the row's value. Returns true when the code changed (the document is then
// marked modified); false for a row that is no event row, an unknown event, Cancel
// or unchanged code.
bool EditWidgetEvent(QWidget* parent, CHmiWidget& widget, COptionTreeItem& row,
                     const std::vector<ScriptFunction>& functions);
