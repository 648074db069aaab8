#include "widgetnamecombo.h"

#include "base/textcodec.h"

#include <QSignalBlocker>

CWidgetNameCombo::CWidgetNameCombo(QWidget* parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMinimumContentsLength(16);
    connect(this, &QComboBox::activated, this, [this](int index) { emit widgetNameChosen(NameAt(index)); });
}

std::string CWidgetNameCombo::NameAt(int index) const
{
    return itemData(index).toByteArray().toStdString();
}

int CWidgetNameCombo::FindName(const std::string& name) const
{
    return findData(QByteArray::fromStdString(name));
}

void CWidgetNameCombo::AddWidgetName(const std::string& name, bool select)
{
    addItem(QString::fromStdString(Gb2312ToUtf8OrKeep(name)), QByteArray::fromStdString(name));
    if (select)
        SelectName(name);
}

void CWidgetNameCombo::RemoveWidgetName(const std::string& name)
{
    const QSignalBlocker quiet(this);
    if (const int index = FindName(name); index >= 0)
        removeItem(index);
}

void CWidgetNameCombo::ShowDocument(const CTamloDoc* document)
{
    const QSignalBlocker quiet(this);
    clear();
    if (!document)
        return;
    for (const HmiWidgetPtr& widget : document->Widgets())
        if (!document->IsWidgetDeleted(widget.get()))
            AddWidgetName(widget->GetWidgetName(), false);
}

void CWidgetNameCombo::SelectName(const std::string& name)
{
    const QSignalBlocker quiet(this);
    setCurrentIndex(FindName(name));
}
