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
    const HmiRect& rect = widget.GetWidgetRect();
    if (CanvasOrigin(widget) != HmiPoint{})
        return {0, 0, rect.Width(), rect.Height()}; // the window from its own top-left corner
    return rect;
}

HmiPoint ToWidgetSpace(const CHmiWidget& widget, HmiPoint canvasPoint)
{
    const HmiPoint origin = CanvasOrigin(widget);
    return {canvasPoint.x + origin.x, canvasPoint.y + origin.y};
}
