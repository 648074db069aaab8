#pragma once

#include "hmiwidget.h"

// The class key of the window widget, which is also the name a new window gives it.
inline constexpr const char* kWindowClassKey = "window";

// Whether a widget is the window itself, known by its class key (a custom widget may carry it too).
bool IsWindowWidget(const CHmiWidget& widget);

// The HMI window itself: every window document holds exactly one, which carries the window's
// own properties (caption, centring, background, security) and its "open" and "close" scripts.
// Its rectangle starts as the panel's default screen.
class CHmiWidgetWindow : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetWindow)
public:
    CHmiWidgetWindow();

    HmiWidgetPtr Clone() const override;
    // The window's background: its colour inside a dotted black frame, from the origin.
    void Draw(CHmiDC& dc) override;
    std::string GetWidgetClassName() const override;
    // Reads "style" (the packed caption and centring flags), "bkcolor", "security_level" and
    // "security_mode", each decimal or hexadecimal.
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override;
    void CreateWidgetRootItems(COptionTree& tree) override;
    void UpdateWidgetPropByTree(COptionTreeItem* item) override;
    // Writes the caption and centring flags packed into one "style" property.
    void SaveWidgetProperties(std::string& archive) const override;
    void CreateEventItems() override;

    // The three choices are stored as their list indexes.
    std::int32_t m_nHasCaption = 0;    // 0 no caption, 1 has caption
    std::int32_t m_nCenterWnd = 0;     // 0 not centred, 1 centred on the screen
    HmiColor m_bkColor = 0x00FFFFFF;   // white
    std::int32_t m_nSecurityLevel = 0;
    std::int32_t m_nSecurityMode = 0;  // what the panel does when the operator lacks the level
};
