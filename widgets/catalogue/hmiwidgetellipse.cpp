#include "hmiwidgetellipse.h"

#include "widgets/core/hmidraw.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetEllipse, CHmiWidget)

std::span<const ShapeProperty<CHmiWidgetEllipse>> CHmiWidgetEllipse::Properties()
{
    static const ShapeProperty<CHmiWidgetEllipse> properties[] = {
        {"edgecolor", "Set the edge color of ellipse", PROP_COLOR, &CHmiWidgetEllipse::m_edgeColor},
        {"fillcolor", "Set the fill color of ellipse", PROP_COLOR, &CHmiWidgetEllipse::m_fillColor},
    };
    return properties;
}

void CHmiWidgetEllipse::Draw(CHmiDC& dc)
{
    HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Solid, 1, m_edgeColor}, {false, m_fillColor});
    dc.Ellipse(m_rect);
}
