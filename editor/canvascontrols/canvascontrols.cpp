#include "canvascontrols.h"

#include "controlmouseforwarder.h"

#include "editor/extensions/editorextensions.h"

#include "widgets/hmiview.h"
#include "widgets/tamlodoc.h"

#include <QWidget>

namespace {

constexpr std::size_t kControlsRepaintedOneByOne = 64;

} // namespace

CCanvasControls::CCanvasControls(QWidget& canvas, const CHmiView& view, CTamloDoc& document)
    : m_canvas(canvas), m_view(view), m_document(document), m_forwarder(new CControlMouseForwarder(canvas))
{
    Sync();
}

CCanvasControls::~CCanvasControls()
{
    for (const HmiWidgetPtr& widget : m_document.Widgets()) {
        auto* controlWidget = dynamic_cast<CHmiCtrlWidget*>(widget.get());
        if (controlWidget && ControlOf(*controlWidget))
            controlWidget->SetCtrlWndProc(nullptr);
    }
}

CCanvasControl* CCanvasControls::ControlOf(const CHmiCtrlWidget& widget) const
{
    auto* control = dynamic_cast<CCanvasControl*>(widget.GetControl());
    return control && control->Widget() && control->Widget()->parentWidget() == &m_canvas ? control : nullptr;
}

void CCanvasControls::DocumentChanged(const CDocumentChange& change)
{
    if (change.Has(DocChange::Reloaded))
        return Sync();
    // Each control that moves repaints the canvas where it stood and stands; many of them
    // repaint it once, as gathering so many areas would cost more than painting it.
    const bool many = change.widgets.size() > kControlsRepaintedOneByOne;
    if (many)
        m_canvas.setUpdatesEnabled(false);
    for (const HmiWidgetChange& entry : change.widgets)
        if (auto* controlWidget = dynamic_cast<CHmiCtrlWidget*>(entry.widget))
            Update(*controlWidget, entry.what);
    if (many)
        m_canvas.setUpdatesEnabled(true);
}

void CCanvasControls::SetHidden(bool hidden)
{
    for (const HmiWidgetPtr& widget : m_document.Widgets())
        if (auto* controlWidget = dynamic_cast<CHmiCtrlWidget*>(widget.get()))
            if (CCanvasControl* control = ControlOf(*controlWidget))
                control->Widget()->setVisible(!hidden && !m_document.IsWidgetDeleted(controlWidget));
}

void CCanvasControls::PlaceAll()
{
    for (const HmiWidgetPtr& widget : m_document.Widgets())
        if (auto* controlWidget = dynamic_cast<CHmiCtrlWidget*>(widget.get()))
            controlWidget->PlaceControl();
}

void CCanvasControls::Sync()
{
    for (const HmiWidgetPtr& widget : m_document.Widgets())
        if (auto* controlWidget = dynamic_cast<CHmiCtrlWidget*>(widget.get()))
            Update(*controlWidget, DocChange::Added | DocChange::Properties | DocChange::Geometry);
}

void CCanvasControls::Update(CHmiCtrlWidget& widget, DocChange what)
{
    if (HasAny(what, DocChange::Added) && !widget.GetControl())
        CreateControl(widget);
    CCanvasControl* control = ControlOf(widget);
    if (!control)
        return;
    if (HasAny(what, DocChange::Properties))
        control->Refresh();
    if (HasAny(what, DocChange::Geometry))
        widget.PlaceControl();
    if (HasAny(what, DocChange::Added | DocChange::Removed)) {
        const bool removed = HasAny(what, DocChange::Removed) || m_document.IsWidgetDeleted(&widget);
        control->Widget()->setVisible(!removed);
    }
}

void CCanvasControls::CreateControl(CHmiCtrlWidget& widget)
{
    const CanvasControlFactory* factory = FindCanvasControl(widget.GetRuntimeClass());
    std::unique_ptr<CCanvasControl> control =
        factory ? (*factory)(widget, m_canvas,
                             [this, &widget] { m_document.WidgetChanged(widget, DocChange::Properties); })
                : nullptr;
    if (!control)
        return;
    m_forwarder->Attach(*control->Widget());
    const HmiRect rect = widget.GetWidgetRect();
    const HmiPoint topLeft = m_view.DocToClient({rect.left, rect.top});
    const HmiPoint bottomRight = m_view.DocToClient({rect.right, rect.bottom});
    control->MoveTo({topLeft.x, topLeft.y, bottomRight.x, bottomRight.y});
    widget.SetCtrlWndProc(std::move(control));
}
