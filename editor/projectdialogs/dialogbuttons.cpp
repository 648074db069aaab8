#include "dialogbuttons.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>

QPushButton* MakePictureButton(QStyle::StandardPixmap image, const QString& text, QWidget* parent)
{
    auto* button = new QPushButton(parent->style()->standardIcon(image), text, parent);
    button->setAutoDefault(false);
    return button;
}

OkCancelButtons AddOkCancelButtons(QDialog& dialog, QBoxLayout& layout)
{
    OkCancelButtons buttons{
        MakePictureButton(QStyle::SP_DialogOkButton, QCoreApplication::translate("DialogButtons", "OK"), &dialog),
        MakePictureButton(QStyle::SP_DialogCancelButton, QCoreApplication::translate("DialogButtons", "Cancel"),
                          &dialog)};
    buttons.ok->setDefault(true);
    QObject::connect(buttons.cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
    layout.addWidget(buttons.ok);
    layout.addWidget(buttons.cancel);
    return buttons;
}
