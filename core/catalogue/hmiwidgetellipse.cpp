#include "hmiwidgetellipse.h"

#include "widgets/hmidraw.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetEllipse, CHmiWidget)

std::span<const PropertySpec<CHmiWidgetEllipse>> CHmiWidgetEllipse::Properties()
{
    static const PropertySpec<CHmiWidgetEllipse> properties[] = {
        {.key = "edgecolor",
         .label = "edgecolor",
         .description = "Set the edge color of ellipse",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetEllipse::m_edgeColor},
        {.key = "fillcolor",
         .label = "fillcolor",
         .description = "Set the fill color of ellipse",
         .itemType = PROP_COLOR,
         .color = &CHmiWidgetEllipse::m_fillColor},
    };
    return properties;
}

void CHmiWidgetEllipse::Draw(CHmiDC& dc)
{
    HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Solid, 1, m_edgeColor}, {false, m_fillColor});
    dc.Ellipse(m_rect);
}
