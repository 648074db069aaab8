#include "windowpainter.h"

#include "tamlodoc.h"

void DrawWindow(const CTamloDoc& document, CHmiDC& dc)
{
    // Loading reverses the list, so the window widget may stand anywhere in it.
    CHmiWidget* window = document.GetWindowWidget();
    if (window)
        window->Draw(dc);
    for (const HmiWidgetPtr& widget : document.Widgets())
        if (widget.get() != window)
            widget->Draw(dc);
}
