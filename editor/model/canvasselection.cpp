#include "canvasselection.h"

#include "canvasgeometry.h"

#include "widgets/hmiview.h"
#include "widgets/tamlodoc.h"

#include <algorithm>

CCanvasSelection::CCanvasSelection(CTamloDoc& document, CHmiView& view) : m_document(document), m_view(view) {}

bool CCanvasSelection::IsSelected(const CHmiWidget* widget) const
{
    return std::find(m_widgets.begin(), m_widgets.end(), widget) != m_widgets.end();
}

void CCanvasSelection::InvalidateWidget(const CHmiWidget& widget) const
{
    m_view.InvalidateDocRect(CanvasRect(widget).Normalized());
}

void CCanvasSelection::Select(CHmiWidget* widget, bool add)
{
    if (add) {
        if (CHmiWidget* window = m_document.FindWindowWidget(); window && window != widget)
            Remove(window);
    } else {
        m_view.InvalidateView();
        m_widgets.clear();
    }
    if (widget && IsSelected(widget))
        return;
    if (!widget)
        widget = m_document.FindWindowWidget();
    if (widget) {
        m_widgets.push_back(widget);
        InvalidateWidget(*widget);
    }
    if (m_onChanged)
        m_onChanged();
}

void CCanvasSelection::Deselect(CHmiWidget* widget)
{
    if (Remove(widget) && m_onChanged)
        m_onChanged();
}

bool CCanvasSelection::Remove(CHmiWidget* widget)
{
    const auto found = std::find(m_widgets.begin(), m_widgets.end(), widget);
    if (found == m_widgets.end())
        return false;
    InvalidateWidget(*widget);
    m_widgets.erase(found);
    return true;
}

void CCanvasSelection::SelectInRect(const HmiRect& clientRect, bool add)
{
    if (!add)
        Select(nullptr, false);
    const HmiPoint topLeft = m_view.ClientToDoc({clientRect.left, clientRect.top});
    const HmiPoint bottomRight = m_view.ClientToDoc({clientRect.right, clientRect.bottom});
    const HmiRect band = HmiRect{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y}.Normalized();
    // The window widget is the background: a band around everything selects what stands on it.
    const CHmiWidget* window = m_document.FindWindowWidget();
    for (const HmiWidgetPtr& widget : m_document.Widgets()) {
        if (widget.get() != window && !m_document.IsWidgetDeleted(widget.get()) && widget->Intersects(band))
            Select(widget.get(), true);
    }
}

void CCanvasSelection::Forget(const CHmiWidget* widget)
{
    std::erase(m_widgets, widget);
}
