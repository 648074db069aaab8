#include "hmiwidgetrect.h"

#include "widgets/hmidraw.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetRect, CHmiWidget)

std::span<const PropertySpec<CHmiWidgetRect>> CHmiWidgetRect::Properties()
{
    static const PropertySpec<CHmiWidgetRect> properties[] = {
        {.key = "edgecolor",
         .label = "edgecolor",
         .description = "Set the edge color of rectangle",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetRect::m_edgeColor},
        {.key = "fillcolor",
         .label = "fillcolor",
         .description = "Set the fill color of rectangle",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetRect::m_fillColor},
    };
    return properties;
}

void CHmiWidgetRect::Draw(CHmiDC& dc)
{
    HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Solid, 1, m_edgeColor}, {false, m_fillColor});
    dc.Rectangle(m_rect);
}
