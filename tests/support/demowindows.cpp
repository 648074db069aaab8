#include "demowindows.h"

#include "dynamics/dynamictype.h"

#include <string_view>

namespace {

// The demo windows that together hold every widget kind.
constexpr const char* kDemoWindows[] = {"main.xml", "pumps.xml", "trends.xml"};
// Every seventh text is in Chinese, held as GB2312 like every text of the editor.
constexpr std::string_view kChineseLabel = "\xB1\xC3\xD4\xCB\xD0\xD0"; // "pump running"
constexpr int kWindowWidth = 1920;
constexpr int kWindowHeight = 1080;

// The gradient kinds and the code of their first direction; their property records say how many there are.
struct GradientDirections {
    std::string_view classKey;
    int firstCode;
};
constexpr GradientDirections kGradients[] = {{"gradrectangle", 32}, {"gradellipse", 0}, {"gradtriangle", 1}};

void VaryDirection(CHmiWidget& widget, int index)
{
    const CHmiWidgetProp* direction = widget.FindProperty("direction");
    if (!direction || direction->m_nComboCount <= 0)
        return;
    for (const GradientDirections& gradient : kGradients) {
        if (gradient.classKey == widget.GetWidgetClassName()) {
            const int code = gradient.firstCode + index % direction->m_nComboCount;
            widget.SetWidgetProperty("direction", "ulong", std::to_string(code), {});
        }
    }
}

void Bind(CHmiWidget& widget, int index)
{
    widget.AddWidgetDynProp("visible", "$plc.running" + std::to_string(index % 50));
    if (CHmiWidgetProp* left = widget.AddWidgetDynProp("left", "($plc.x1 > 3)?0xff:0x0")) {
        auto type = CreateDynamicType("color_digit");
        type->expression = "$plc.x1 > 3 && \"ok\"";
        left->SetDynamicType(std::move(type));
    }
}

} // namespace

CGeneratedWindows::CGeneratedWindows(const std::string& demoFolder)
{
    for (const char* window : kDemoWindows) {
        auto demo = std::make_unique<CTamloDoc>();
        if (!demo->Load(demoFolder + "/" + window)) {
            m_templates.clear();
            return;
        }
        for (const HmiWidgetPtr& widget : demo->Widgets())
            if (widget->GetWidgetClassName() != "window")
                m_templates.push_back(widget.get());
        m_demos.push_back(std::move(demo));
    }
}

CGeneratedWindows::~CGeneratedWindows() = default;

void CGeneratedWindows::Fill(CTamloDoc& document, int widgetCount) const
{
    document.OnNewDocument();
    document.GetWindowWidget()->SetWidgetRect({0, 0, kWindowWidth, kWindowHeight});
    for (int i = 0; i < widgetCount && IsValid(); ++i) {
        HmiWidgetPtr widget = m_templates[std::size_t(i) % m_templates.size()]->Clone();
        if (!widget)
            continue;
        widget->SetWidgetName(widget->GetWidgetClassName() + "_" + std::to_string(i));
        const HmiRect size = widget->GetWidgetRect().Normalized();
        const int x = (i * 37) % (kWindowWidth - size.Width());
        const int y = (i * 53) % (kWindowHeight - size.Height());
        widget->SetWidgetRect({x, y, x + size.Width(), y + size.Height()});
        if (widget->FindProperty("text")) {
            const std::string text = i % 7 == 0 ? std::string(kChineseLabel) + " " + std::to_string(i % 40)
                                                : "Tank " + std::to_string(i % 40) + " level";
            widget->SetWidgetProperty("text", "string", text, {});
        }
        VaryDirection(*widget, i);
        if (i % 3 == 0)
            Bind(*widget, i);
        if (i % 5 == 0)
            widget->SetWidgetEventCode("click", "setvar(\"$plc.x1\", " + std::to_string(i) + ");\nshowwindow(\"main\");");
        document.AddWidget(std::move(widget), false); // at the head, as a load puts it
    }
}
