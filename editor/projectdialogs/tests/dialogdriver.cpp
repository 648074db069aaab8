#include "dialogdriver.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QPushButton>
#include <QTest>

ProjectContext::DialogRunner DriveWith(std::function<void(QDialog&)> steps)
{
    return [steps = std::move(steps)](QDialog& dialog) {
        dialog.show();
        if (!QTest::qWaitForWindowExposed(&dialog))
            qWarning("the dialog was never shown");
        steps(dialog);
        dialog.hide();
        return dialog.result();
    };
}

void ClickButton(QWidget& dialog, const QString& text)
{
    for (QPushButton* button : dialog.findChildren<QPushButton*>())
        if (button->text() == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    qFatal("no button %s", qPrintable(text));
}

void ClickCell(QAbstractItemView& view, const QModelIndex& index)
{
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}
