#include "canvasgeometry.h"

#include "widgets/catalogue/hmiwidgetwindow.h"

HmiPoint CanvasOrigin(const CHmiWidget& widget)
{
    if (dynamic_cast<const CHmiWidgetWindow*>(&widget))
        return {widget.GetWidgetRect().left, widget.GetWidgetRect().top};
    return {};
}

HmiRect CanvasRect(const CHmiWidget& widget)
{
    const HmiPoint origin = CanvasOrigin(widget);
    const HmiRect& rect = widget.GetWidgetRect();
    return {rect.left - origin.x, rect.top - origin.y, rect.right - origin.x, rect.bottom - origin.y};
}

HmiPoint ToWidgetSpace(const CHmiWidget& widget, HmiPoint canvasPoint)
{
    const HmiPoint origin = CanvasOrigin(widget);
    return {canvasPoint.x + origin.x, canvasPoint.y + origin.y};
}
