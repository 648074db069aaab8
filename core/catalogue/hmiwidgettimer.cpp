#include "hmiwidgettimer.h"

#include "base/numberparsers.h"
#include "widgets/optiontree.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetTimer, CHmiWidget)

namespace {

constexpr const char* kGroup = "Timer";

} // namespace

CHmiWidgetTimer::CHmiWidgetTimer()
{
    DeclareProperty("interval", "interval", "Set timer interval(miniseconds)", 0, kGroup, PROP_EDIT);
}

HmiWidgetPtr CHmiWidgetTimer::Clone() const
{
    auto copy = std::make_unique<CHmiWidgetTimer>();
    copy->m_nInterval = m_nInterval;
    CopyTo(*copy);
    return HmiWidgetPtr(copy.release());
}

std::string CHmiWidgetTimer::GetWidgetClassName() const
{
    return "timer";
}

int CHmiWidgetTimer::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                       std::string_view length)
{
    if (CHmiWidget::SetWidgetProperty(name, type, value, length))
        return 1;
    if (name != "interval")
        return 0;
    m_nInterval = HmiDecimalToLong(value);
    return 1;
}

int CHmiWidgetTimer::GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const
{
    if (CHmiWidget::GetWidgetPropValue(prop, text))
        return 1;
    if (prop.m_strName != "interval")
        return 0;
    text = std::to_string(m_nInterval);
    return 1;
}

void CHmiWidgetTimer::CreateWidgetRootItems(COptionTree& tree)
{
    CHmiWidget::CreateWidgetRootItems(tree);
    CreateNewRootItem(kGroup, "Timer properties")->Expand();
}

void CHmiWidgetTimer::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    CHmiWidget::UpdateWidgetPropByTree(item);
    const CHmiWidgetProp* prop = GetWidgetPropByTreeItem(item);
    if (prop && prop->m_strName == "interval")
        m_nInterval = HmiDecimalToLong(item->GetEditText());
}

void CHmiWidgetTimer::SaveWidgetProperties(std::string& archive) const
{
    CHmiWidget::SaveWidgetProperties(archive);
    SaveWidgetProperty(archive, "interval", "ulong", nullptr, m_nInterval);
}

void CHmiWidgetTimer::CreateEventItems()
{
    // The timer is invisible: it cannot be touched, so it has no click events, only its own.
    DeclareEvent("timer", "timer", "activate this event when time out");
}
