#include "hmiwidgetvalve.h"

#include "base/numberparsers.h"
#include "gradientpainter.h"
#include "widgets/hmidraw.h"
#include "widgets/optiontree.h"

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

void CHmiWidgetValve::Draw(CHmiDC& dc)
{
    constexpr HmiColor kGrey = 0x007E7E7E;
    const auto [left, top, right, bottom] = m_rect.ForDrawing();
    const std::int32_t w = right - left;
    const std::int32_t h = bottom - top;
    const std::int32_t hw = w / 2;
    const std::int32_t hh = h / 2;
    const std::int32_t ym = std::int16_t(top + hh);
    const std::int32_t xm = std::int16_t(right - hw);
    const std::int32_t axis = left + hw;

    // The two halves of the body point at the centre, apex to apex, as a valve symbol does:
    // the left half has its apex on its right side, the right half on its left side.
    PaintTriangleGradient(dc, {left, ym, xm, bottom}, kGrey, kGrey, 3);
    PaintTriangleGradient(dc, {axis, ym, right, bottom}, kGrey, kGrey, 4);
    HmiDrawLine(&dc, axis, top, axis, top + 3 * h / 4, 2, 1, kGrey);
    HmiDrawLine(&dc, left + w / 4, top, left + 3 * w / 4, top, 2, 1, kGrey);
    {
        const HmiBrush oldBrush = dc.SelectBrush({false, kGrey});
        dc.Ellipse({axis - h / 4, ym, axis + h / 4, bottom});
        dc.SelectBrush({false, m_centerColor});
        dc.Ellipse({axis - h / 6, ym + h / 8, axis + h / 6, bottom - h / 8});
        dc.SelectBrush(oldBrush);
    }
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
