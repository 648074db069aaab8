#include "mixedwindow.h"

#include "dynamics/dynamictype.h"
#include "memoryoptiontree.h"
#include "widgets/tamlodoc.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr const char* kTexts[] = {
    "Pump 1",
    "",
    "Tank level high: check the inlet valve, the pressure relief and the drain before restarting",
    "\xCB\xAE\xB1\xC3 2", // "water pump 2" in GB2312
    "A & B < C",
};

// std::mt19937 gives the same numbers everywhere; the standard's distributions do not.
class Random {
public:
    explicit Random(unsigned seed) : m_engine(seed) {}
    int Below(int bound) { return int(m_engine() % unsigned(bound)); }
    HmiColor Color() { return HmiColor(m_engine() & 0xFFFFFF); }

private:
    std::mt19937 m_engine;
};

// Mostly ordinary panel sizes within the window; then the sizes drawing must get right at its
// edges: one pixel thin, empty, reversed, larger than the window, and partly outside it.
HmiRect PlaceWidget(Random& random)
{
    int width = 8 + random.Below(150);
    int height = 6 + random.Below(100);
    const int shape = random.Below(100);
    if (shape < 8) {
        (random.Below(2) ? width : height) = 1;
    } else if (shape < 13) {
        (random.Below(2) ? width : height) = 0;
        if (random.Below(3) == 0)
            width = height = 0;
    } else if (shape < 17) {
        width = 300 + random.Below(900);
        height = 100 + random.Below(500);
    }
    int x = random.Below(kMixedWindowWidth - std::min(width, kMixedWindowWidth - 1));
    int y = random.Below(kMixedWindowHeight - std::min(height, kMixedWindowHeight - 1));
    if (shape >= 17 && shape < 25) { // across an edge of the window
        x = random.Below(kMixedWindowWidth + width) - width / 2 - (random.Below(2) ? 0 : kMixedWindowWidth / 2);
        y = random.Below(kMixedWindowHeight + height) - height / 2;
    }
    if (shape >= 25 && shape < 30)
        return {x + width, y + height, x, y};
    return {x, y, x + width, y + height};
}

// Sets the widget's own properties through an in-memory property list, as a user would: each
// kind converts the list's values to its own (a list position to a direction code, say).
// round counts how often the kind came up before, so that each list runs through its choices.
void VaryOwnProperties(CHmiWidget& widget, int round, Random& random)
{
    const std::size_t basicCount = CHmiWidget().GetProperties().size();
    MemoryOptionTree tree;
    widget.CreateWidgetPropertyTree(tree);
    const auto& properties = widget.GetProperties();
    for (std::size_t index = basicCount; index < properties.size(); ++index) {
        const CHmiWidgetProp& prop = *properties[index];
        COptionTreeItem* item = prop.m_pTreeItem;
        if (!item)
            continue;
        switch (prop.m_nItemType) {
        case PROP_COLOR:
            item->SetColor(random.Color());
            break;
        case PROP_COMBO:
            if (prop.m_nComboCount > 0)
                item->SetCurSel((round + int(index)) % prop.m_nComboCount);
            break;
        case PROP_CHECKBOX:
            item->SetCheck(random.Below(2) != 0);
            break;
        case PROP_TEXT:
            item->SetEditText(kTexts[random.Below(int(std::size(kTexts)))]);
            break;
        case PROP_EDIT:
            item->SetEditText(std::to_string(random.Below(5)));
            break;
        default:
            continue; // files are named below; fonts and variables keep their defaults
        }
        widget.UpdateWidgetPropByTree(item);
    }
    widget.ReleasePropertyTree();
    for (std::size_t index = basicCount; index < properties.size(); ++index)
        if (properties[index]->m_nItemType == PROP_FILE)
            widget.SetWidgetProperty(properties[index]->m_strName, "string",
                                     random.Below(4) ? "logo.png" : "missing.png", "");
}

void AddBindingsAndScripts(CHmiWidget& widget, int ordinal)
{
    if (ordinal % 3 == 0) {
        widget.AddWidgetDynProp("visible", "$plc.running");
        if (CHmiWidgetProp* left = widget.AddWidgetDynProp("left", "(x)?0xff:0x0")) {
            auto type = CreateDynamicType("color_digit");
            type->expression = "$plc.x1 > 3 && \"ok\"";
            left->SetDynamicType(std::move(type));
        }
    }
    if (ordinal % 5 == 0 && !widget.GetEvents().empty())
        widget.SetWidgetEventCode(widget.GetEvents().front().name,
                                  "setvar(\"$plc.x1\", 1);\nshowwindow(\"main\");");
}

} // namespace

void FillMixedWindow(CTamloDoc& document, int widgetCount, unsigned seed)
{
    document.OnNewDocument();
    document.GetWindowWidget()->SetWidgetRect({0, 0, kMixedWindowWidth, kMixedWindowHeight});
    document.SetPictureFolder(KELVO_DEMO_DIR);
    std::vector<std::string> keys;
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList)
        if (entry.m_strClassKey != "window")
            keys.push_back(entry.m_strClassKey);
    if (keys.empty())
        return;
    Random random(seed);
    for (int i = 0; i < widgetCount; ++i) {
        const std::string& key = keys[std::size_t(i) % keys.size()];
        HmiWidgetPtr widget = CHmiWidget::GetWidgetClass(key)->CreateObject();
        widget->SetWidgetName(key + std::to_string(i));
        widget->SetWidgetRect(PlaceWidget(random));
        VaryOwnProperties(*widget, i / int(keys.size()) + int(seed), random);
        AddBindingsAndScripts(*widget, i);
        document.AddWidget(std::move(widget), false);
    }
}
