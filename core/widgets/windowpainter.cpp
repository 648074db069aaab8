#include "windowpainter.h"

#include "hmictrlwidget.h"
#include "tamlodoc.h"

void DrawWindow(const CTamloDoc& document, CHmiDC& dc)
{
    // Loading reverses the list, so the window widget may stand anywhere in it.
    CHmiWidget* window = document.FindWindowWidget();
    if (window)
        window->Draw(dc);
    for (const HmiWidgetPtr& widget : document.Widgets()) {
        if (widget.get() == window)
            continue;
        if (!document.IsWidgetDeleted(widget.get()))
            widget->Draw(dc);
        else if (auto* control = dynamic_cast<CHmiCtrlWidget*>(widget.get()))
            control->Hide();
    }
}
