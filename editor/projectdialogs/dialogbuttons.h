#pragma once

#include <QStyle>

class QBoxLayout;
class QDialog;
class QPushButton;
class QString;

// The picture buttons of the project dialogs: a text with an image of its own.
QPushButton* MakePictureButton(QStyle::StandardPixmap image, const QString& text, QWidget* parent);

struct OkCancelButtons {
    QPushButton* ok;
    QPushButton* cancel;
};

// Adds OK (the default button) and Cancel to a layout; Cancel rejects the dialog. OK is left
// to the dialog to connect, because each dialog has its own condition for closing.
OkCancelButtons AddOkCancelButtons(QDialog& dialog, QBoxLayout& layout);
