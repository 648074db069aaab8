#include "canvascontrols.h"

#include "controlkinds.h"
#include "controlmouseforwarder.h"

#include "widgets/hmiview.h"
#include "widgets/tamlodoc.h"

#include <QWidget>

CCanvasControls::CCanvasControls(QWidget& canvas, const CHmiView& view, CTamloDoc& document)
    : m_canvas(canvas), m_view(view), m_document(document), m_forwarder(new CControlMouseForwarder(canvas))
{
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

void CCanvasControls::Sync()
{
    for (const HmiWidgetPtr& widget : m_document.Widgets()) {
        auto* controlWidget = dynamic_cast<CHmiCtrlWidget*>(widget.get());
        if (!controlWidget)
            continue;
        if (!controlWidget->GetControl())
            CreateControl(*controlWidget);
        if (CCanvasControl* control = ControlOf(*controlWidget)) {
            control->Refresh();
            control->Widget()->setVisible(!m_document.IsWidgetDeleted(controlWidget));
        }
    }
}

void CCanvasControls::CreateControl(CHmiCtrlWidget& widget)
{
    std::unique_ptr<CCanvasControl> control = CreateCanvasControl(widget, m_canvas, [this] {
        m_document.SetModifiedFlag();
        emit columnResized();
    });
    if (!control)
        return;
    m_forwarder->Attach(*control->Widget());
    const HmiRect rect = widget.GetWidgetRect();
    const HmiPoint topLeft = m_view.DocToClient({rect.left, rect.top});
    const HmiPoint bottomRight = m_view.DocToClient({rect.right, rect.bottom});
    control->MoveTo({topLeft.x, topLeft.y, bottomRight.x, bottomRight.y});
    widget.SetCtrlWndProc(std::move(control));
}
