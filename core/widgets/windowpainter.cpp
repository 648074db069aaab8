#include "windowpainter.h"

#include "hmictrlwidget.h"
#include "tamlodoc.h"

#include <algorithm>

namespace {

// How far ahead of the widget drawn the next ones are fetched into the processor's cache.
constexpr std::size_t kFetchAhead = 4;

template <typename Shown>
void DrawWidgets(const CTamloDoc& document, CHmiDC& dc, Shown shown)
{
    // Loading reverses the list, so the window widget may stand anywhere in it.
    CHmiWidget* window = document.FindWindowWidget();
    if (window)
        window->Draw(dc);
    const auto& widgets = document.Widgets();
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        // The widgets lie apart in memory: the ones a few ahead are fetched while this one draws.
        if (i + kFetchAhead < widgets.size()) {
            const CHmiWidget& ahead = *widgets[i + kFetchAhead];
            __builtin_prefetch(&ahead);
            __builtin_prefetch(&ahead.GetWidgetRect());
        }
        const HmiWidgetPtr& widget = widgets[i];
        if (widget.get() == window)
            continue;
        if (!document.IsWidgetDeleted(widget.get())) {
            if (shown(*widget))
                widget->Draw(dc);
        } else if (auto* control = dynamic_cast<CHmiCtrlWidget*>(widget.get())) {
            control->Hide();
        }
    }
}

bool Meets(const HmiRect& a, const HmiRect& b)
{
    return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

} // namespace

void DrawWindow(const CTamloDoc& document, CHmiDC& dc)
{
    DrawWidgets(document, dc, [](const CHmiWidget&) { return true; });
}

void DrawWindow(const CTamloDoc& document, CHmiDC& dc, std::span<const HmiRect> areas)
{
    DrawWidgets(document, dc, [areas](const CHmiWidget& widget) {
        const HmiRect rect = widget.GetWidgetRect().Normalized();
        return std::any_of(areas.begin(), areas.end(), [&rect](const HmiRect& area) { return Meets(rect, area); });
    });
}
