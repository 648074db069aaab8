#pragma once

// What a widget library adds to the editor besides its widget classes: the live control that
// stands on the canvas for a widget, and the dialog behind the "..." button of a property row.
// The editor's own kinds register here in the same way, at start-up before any library, and a
// library registers for its own classes from WidgetsLibInit, after RegisterWidgetsLib (see
// core/widgets/widgetlibrary.h). A library that does links against kelvo-editor-extensions and
// Qt Widgets as well as the core:
//
//     class CGaugeControl : public CCanvasControl {
//     public:
//         CGaugeControl(CGaugeWidget& gauge, QWidget& canvas) : CCanvasControl(new QDial(&canvas)) {}
//     };
//
//     extern "C" int WidgetsLibInit()
//     {
//         if (!RegisterWidgetsLib("gauges", 1, gaugeClasses))
//             return 0;
//         RegisterCanvasControl(CGaugeWidget::classCGaugeWidget,
//                               [](CHmiCtrlWidget& widget, QWidget& canvas, const std::function<void()>&) {
//                                   return std::make_unique<CGaugeControl>(static_cast<CGaugeWidget&>(widget), canvas);
//                               });
//         RegisterRowDialog(CGaugeWidget::classCGaugeWidget, "scale",
//                           [](QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context) {
//                               CScaleDialog dialog(static_cast<CGaugeWidget&>(widget), parent);
//                               if (context.runDialog(dialog) == QDialog::Accepted)
//                                   dialog.Apply();
//                           });
//         return 1;
//     }
//
// Both are looked up by the widget's class and then its base classes, so a class derived from a
// built-in kind has that kind's control and dialogs unless it registers its own. For one class
// the first registration wins, as for class keys: a library cannot replace a built-in's. When a
// library declines, what it registered here is taken back with its classes.

#include "canvascontrol.h"
#include "projectcontext.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class CHmiCtrlWidget;
class CHmiWidget;
class COptionTreeItem;
struct CHmiRuntimeClass;
class QWidget;

// Makes the live control of a control widget as a child of the canvas. widgetEdited is for a
// control that changes its widget itself (a column width dragged on a list): call it after the
// change, and the document is marked modified. Null: the widget draws itself.
using CanvasControlFactory = std::function<std::unique_ptr<CCanvasControl>(
    CHmiCtrlWidget& widget, QWidget& canvas, const std::function<void()>& widgetEdited)>;

// Runs the dialog of one property row and puts what the user chose into the widget. The editor
// sees from the widget's window-file lines whether anything changed, and then shows the rows
// anew, repaints the widget and marks its document modified. Run dialogs with context.runDialog,
// which tests replace.
using RowDialog = std::function<void(QWidget* parent, CHmiWidget& widget, COptionTreeItem& row,
                                     const ProjectContext& context)>;

void RegisterCanvasControl(const CHmiRuntimeClass& widgetClass, CanvasControlFactory factory);
// For the row of the property of that name (the key of the window file), whatever its item type.
void RegisterRowDialog(const CHmiRuntimeClass& widgetClass, std::string propertyName, RowDialog dialog);

// The factory registered for the class or its nearest base that has one; null when none has.
const CanvasControlFactory* FindCanvasControl(const CHmiRuntimeClass* widgetClass);
// The dialog registered for the property on the class or its nearest base that has one.
const RowDialog* FindRowDialog(const CHmiRuntimeClass* widgetClass, std::string_view propertyName);
