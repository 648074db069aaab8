#include "hmiwidgetrect.h"

#include "widgets/core/hmidraw.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetRect, CHmiWidget)

std::span<const ShapeProperty<CHmiWidgetRect>> CHmiWidgetRect::Properties()
{
    static const ShapeProperty<CHmiWidgetRect> properties[] = {
        {"edgecolor", "Set the edge color of rectangle", PROP_COLOR, &CHmiWidgetRect::m_edgeColor},
        {"fillcolor", "Set the fill color of rectangle", PROP_COLOR, &CHmiWidgetRect::m_fillColor},
    };
    return properties;
}

void CHmiWidgetRect::Draw(CHmiDC& dc)
{
    HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Solid, 1, m_edgeColor}, {false, m_fillColor});
    dc.Rectangle(m_rect);
}
