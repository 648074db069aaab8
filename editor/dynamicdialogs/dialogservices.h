#pragma once

#include "base/hmitypes.h"

#include <QColor>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <string_view>

class QWidget;

// What the dynamic-property and event dialogs borrow from the rest of the editor. The main frame
// fills these in; tests put their own in, so that no native dialog opens.

// Asks the user for a variable and returns its reference text ("$db.name" or "$name"); nothing
// when the user cancels.
using VariablePicker = std::function<std::optional<QString>(QWidget* parent)>;

// Asks the user for a colour; an invalid colour means the choice was cancelled.
using ColorChooser = std::function<QColor(const QColor& initial, QWidget* parent)>;

// The colour dialog of the platform.
QColor ChooseColorWithDialog(const QColor& initial, QWidget* parent);

struct DynamicDialogServices {
    VariablePicker pickVariable;                       // empty: no variable button is offered
    ColorChooser chooseColor = ChooseColorWithDialog;
};

// Colours of the model are 0x00BBGGRR values.
QColor ToQColor(HmiColor color);
HmiColor ToHmiColor(const QColor& color);

// The model keeps its texts in the editor's code page (GB2312); the dialogs work in Unicode.
QString FromModelText(std::string_view text);
std::string ToModelText(const QString& text);
