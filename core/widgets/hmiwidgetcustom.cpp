#include "hmiwidgetcustom.h"

#include "optiontree.h"
#include "widgetfilewriter.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetCustom, CHmiWidget)

CHmiWidgetCustom::CHmiWidgetCustom() = default;

HmiWidgetPtr CHmiWidgetCustom::Clone() const
{
    auto copy = std::make_unique<CHmiWidgetCustom>();
    copy->ClassName = ClassName;
    copy->CustomInfo = CustomInfo;
    CopyTo(*copy);
    return HmiWidgetPtr(copy.release());
}

std::string CHmiWidgetCustom::GetWidgetClassName() const
{
    return ClassName;
}

int CHmiWidgetCustom::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                        std::string_view length)
{
    if (CHmiWidget::SetWidgetProperty(name, type, value, length))
        return 1;
    // Kept as the line it will be written as; the values come unescaped from the reader, so the
    // characters that would break the line go back in as entities.
    AppendPropertyLine(CustomInfo, name, type, length, value, AppendPlainAttribute);
    return 1;
}

void CHmiWidgetCustom::SaveWidgetProperties(std::string& archive) const
{
    CHmiWidget::SaveWidgetProperties(archive);
    archive += CustomInfo;
}

void CHmiWidgetCustom::CreateWidgetRootItems(COptionTree& tree)
{
    CHmiWidget::CreateWidgetRootItems(tree);
    m_pCustomRootItem = CreateNewRootItem("Custom", "Custom widget properties.");
    m_pCustomRootItem->Expand();
}

void CHmiWidgetCustom::CreateWidgetPropertyTree(COptionTree& tree)
{
    CHmiWidget::CreateWidgetPropertyTree(tree);
    m_pClassNameItem = CreateNewPropEditItem(m_pCustomRootItem, "ClassName", "Custom widget name.", ClassName);
    m_pCustomInfoItem =
        CreateNewPropEditItem(m_pCustomRootItem, "CustomInfo", "Custom widget custom information.", CustomInfo);
}

void CHmiWidgetCustom::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    CHmiWidget::UpdateWidgetPropByTree(item);
    if (item && item == m_pClassNameItem)
        ClassName = item->GetEditText();
    else if (item && item == m_pCustomInfoItem)
        CustomInfo = item->GetEditText();
}
