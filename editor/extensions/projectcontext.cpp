#include "projectcontext.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>

int ProjectContext::RunModal(QDialog& dialog)
{
    return dialog.exec();
}

QString ProjectContext::ChooseDirectory(QWidget* parent, const QString& title, const QString& start)
{
    return QFileDialog::getExistingDirectory(parent, title, start);
}

QString ProjectContext::ChoosePicture(QWidget* parent, const QString& startFolder)
{
    return QFileDialog::getOpenFileName(parent, QString(), startFolder,
                                        QCoreApplication::translate("ProjectContext", "Pictures (*.bmp *.png *.jpg "
                                                                                      "*.jpeg *.gif);;All files (*)"));
}

QColor ProjectContext::ChooseColor(QWidget* parent, const QColor& initial)
{
    return QColorDialog::getColor(initial, parent);
}

void ProjectContext::ReportError(QWidget* parent, const QString& message)
{
    QMessageBox::warning(parent, "Kelvo HMI Editor", message);
}
