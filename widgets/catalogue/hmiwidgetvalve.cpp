#include "hmiwidgetvalve.h"

#include "widgets/core/numberparsers.h"
#include "widgets/core/optiontree.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetValve, CHmiWidget)

namespace {

constexpr const char* kCenterColorKey = "centercolor";

} // namespace

HmiWidgetPtr CHmiWidgetValve::Clone() const
{
    auto copy = std::make_unique<CHmiWidgetValve>();
    copy->m_centerColor = m_centerColor;
    CopyTo(*copy);
    return HmiWidgetPtr(copy.release());
}

std::string CHmiWidgetValve::GetWidgetClassName() const
{
    return "valve";
}

int CHmiWidgetValve::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                       std::string_view length)
{
    if (CHmiWidget::SetWidgetProperty(name, type, value, length))
        return 1;
    if (name != kCenterColorKey)
        return 0;
    m_centerColor = HmiParseULong(value);
    return 1;
}

void CHmiWidgetValve::CreateWidgetRootItems(COptionTree& tree)
{
    CHmiWidget::CreateWidgetRootItems(tree);
    m_pValveRootItem = CreateNewRootItem("Valve", "Valve Widget Properties.");
    m_pValveRootItem->Expand();
}

void CHmiWidgetValve::CreateWidgetPropertyTree(COptionTree& tree)
{
    CHmiWidget::CreateWidgetPropertyTree(tree);
    CreateNewPropColorItem(m_pValveRootItem, kCenterColorKey, "Valve Center Color.", m_centerColor);
}

void CHmiWidgetValve::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    CHmiWidget::UpdateWidgetPropByTree(item);
    if (item && item->GetLabelText() == kCenterColorKey)
        m_centerColor = item->GetColor();
}

void CHmiWidgetValve::SaveWidgetProperties(std::string& archive) const
{
    CHmiWidget::SaveWidgetProperties(archive);
    SaveWidgetProperty(archive, kCenterColorKey, "ulong", nullptr, std::int32_t(m_centerColor));
}
