#include "hmiwidgetline.h"

#include "widgets/hmidraw.h"

#include <algorithm>

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetLine, CHmiWidget)

namespace {

constexpr const char* kDirectionChoices[] = {"Left top to right bottom", "Left bottom to right top"};
constexpr const char* kStyleChoices[] = {"Solid", "Dotted", "Dash"};

// How far a thin line's grab band reaches to either side.
constexpr std::int32_t kGrabMargin = 3;
constexpr std::int32_t kThinLineExtent = 7;

} // namespace

std::span<const PropertySpec<CHmiWidgetLine>> CHmiWidgetLine::Properties()
{
    static const PropertySpec<CHmiWidgetLine> properties[] = {
        {.key = "color",
         .label = "color",
         .description = "Set line color",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetLine::m_color},
        {.key = "linewidth",
         .label = "linewidth",
         .description = "Set line width",
         .number = &CHmiWidgetLine::m_nLineWidth},
        {.key = "direction",
         .label = "direction",
         .description = "Set line direction",
         .itemType = PROP_COMBO,
         .number = &CHmiWidgetLine::m_nDirection,
         .choices = kDirectionChoices,
         .codeOffset = 1},
        {.key = "style",
         .label = "style",
         .description = "Set line style",
         .itemType = PROP_COMBO,
         .number = &CHmiWidgetLine::m_nStyle,
         .choices = kStyleChoices,
         .codeOffset = 1},
    };
    return properties;
}

void CHmiWidgetLine::Draw(CHmiDC& dc)
{
    HmiSelectedPen selected(dc, {HmiPenStyleOfCode(m_nStyle), m_nLineWidth, m_color});
    const HmiRect r = m_rect.Normalized();
    if (m_nDirection == kLeftTopToRightBottom) {
        dc.MoveTo({r.left, r.top});
        dc.LineTo({r.right, r.bottom});
    } else {
        dc.MoveTo({r.right, r.top});
        dc.LineTo({r.left, r.bottom});
    }
}

HmiRect CHmiWidgetLine::HitRect() const
{
    HmiRect r = m_rect.Normalized();
    if (r.Height() < kThinLineExtent) {
        r.top -= kGrabMargin;
        r.bottom += kGrabMargin;
    }
    if (r.Width() < kThinLineExtent) {
        r.left -= kGrabMargin;
        r.right += kGrabMargin;
    }
    return r;
}

bool CHmiWidgetLine::Intersects(HmiPoint point) const
{
    return HitRect().Contains(point);
}

bool CHmiWidgetLine::Intersects(const HmiRect& rect) const
{
    const HmiRect band = HitRect();
    const HmiRect other = rect.Normalized();
    return std::max(band.left, other.left) < std::min(band.right, other.right) &&
           std::max(band.top, other.top) < std::min(band.bottom, other.bottom);
}
