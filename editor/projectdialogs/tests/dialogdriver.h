#pragma once

#include "editor/extensions/projectcontext.h"

#include <QString>

#include <functional>

class QAbstractItemView;
class QDialog;
class QModelIndex;
class QWidget;

// Runs a dialog as the editor does, except that the given steps play the user's part instead
// of an event loop waiting for a person. The dialog's result is what its buttons made of it.
ProjectContext::DialogRunner DriveWith(std::function<void(QDialog&)> steps);

// Clicks the push button of the dialog that shows this text; ends the test when there is none.
void ClickButton(QWidget& dialog, const QString& text);
// A mouse click in the middle of a cell of a view.
void ClickCell(QAbstractItemView& view, const QModelIndex& index);
