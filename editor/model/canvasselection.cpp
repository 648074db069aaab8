#include "canvasselection.h"

#include "canvasgeometry.h"

#include "widgets/hmiview.h"
#include "widgets/tamlodoc.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace {

// A selection change of more widgets than this repaints the whole canvas: their handles would
// cost more as so many separate areas.
constexpr std::size_t kTrackersRepaintedOneByOne = 32;

} // namespace

CCanvasSelection::CCanvasSelection(CTamloDoc& document, CHmiView& view) : m_document(document), m_view(view)
{
    m_document.AddObserver(this);
}

CCanvasSelection::~CCanvasSelection()
{
    m_document.RemoveObserver(this);
}

bool CCanvasSelection::IsSelected(const CHmiWidget* widget) const
{
    return std::find(m_widgets.begin(), m_widgets.end(), widget) != m_widgets.end();
}

void CCanvasSelection::InvalidateTrackers(const std::vector<CHmiWidget*>& widgets) const
{
    if (widgets.size() > kTrackersRepaintedOneByOne)
        return m_view.InvalidateView();
    for (const CHmiWidget* widget : widgets) {
        const HmiPoint origin = CanvasOrigin(*widget);
        for (int handle = 1; handle <= widget->GetHandleCount(); ++handle) {
            // The view repaints room for the handle's square around its point. A window file may
            // put a widget anywhere: the point is held to the drawing range first.
            const HmiPoint point = widget->GetHandle(handle);
            const std::int32_t x = HmiDrawingCoordinate(std::int64_t(point.x) - origin.x);
            const std::int32_t y = HmiDrawingCoordinate(std::int64_t(point.y) - origin.y);
            m_view.InvalidateDocRect({x, y, x, y});
        }
    }
}

void CCanvasSelection::Select(CHmiWidget* widget, bool add)
{
    if (add) {
        if (CHmiWidget* window = m_document.FindWindowWidget(); window && window != widget)
            Remove(window);
    } else {
        InvalidateTrackers(m_widgets);
        m_widgets.clear();
    }
    if (widget && IsSelected(widget))
        return;
    if (!widget)
        widget = m_document.FindWindowWidget();
    if (widget) {
        m_widgets.push_back(widget);
        InvalidateTrackers({widget});
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
    InvalidateTrackers({widget});
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
    CHmiWidget* window = m_document.FindWindowWidget();
    std::vector<CHmiWidget*> inside;
    for (const HmiWidgetPtr& widget : m_document.Widgets()) {
        if (widget.get() != window && !m_document.IsWidgetDeleted(widget.get()) && widget->Intersects(band) &&
            !IsSelected(widget.get()))
            inside.push_back(widget.get());
    }
    if (inside.empty())
        return;
    Remove(window);
    m_widgets.insert(m_widgets.end(), inside.begin(), inside.end());
    InvalidateTrackers(inside);
    if (m_onChanged)
        m_onChanged();
}

void CCanvasSelection::DocumentChanged(const CDocumentChange& change)
{
    std::size_t forgotten = 0;
    if (change.Has(DocChange::Reloaded)) {
        forgotten = std::exchange(m_widgets, {}).size();
    } else if (change.Has(DocChange::Removed)) {
        for (const HmiWidgetChange& entry : change.widgets)
            if (HasAny(entry.what, DocChange::Removed))
                forgotten += std::erase(m_widgets, entry.widget);
    }
    if (forgotten == 0)
        return;
    if (m_widgets.empty())
        Select(nullptr, false);
    else if (m_onChanged)
        m_onChanged();
}
