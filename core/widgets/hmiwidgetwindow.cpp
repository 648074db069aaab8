#include "hmiwidgetwindow.h"

#include "base/numberparsers.h"
#include "hmidraw.h"
#include "optiontree.h"
#include "widgetchoices.h"

#include <iterator>

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetWindow, CHmiWidget)

namespace {

constexpr const char* kGroup = "Window";
constexpr HmiRect kDefaultScreen = {0, 0, 1024, 768};

// Bits of the "style" property, the form in which the panel reads the two flags.
constexpr std::uint32_t kStyleCaption = 0x1;
constexpr std::uint32_t kStyleCenter = 0x4;

constexpr const char* kCaptionChoices[] = {"No caption", "Has caption"};
constexpr const char* kCenterChoices[] = {"Not align center", "Align center"};

} // namespace

CHmiWidgetWindow::CHmiWidgetWindow()
{
    m_rect = kDefaultScreen;
    DeclareProperty("hascaption", "caption", "Set if window has caption", 0, kGroup, PROP_COMBO)
        .SetComboList(kCaptionChoices, std::int32_t(std::size(kCaptionChoices)));
    DeclareProperty("centerwnd", "centerwnd", "Set if window align center", 0, kGroup, PROP_COMBO)
        .SetComboList(kCenterChoices, std::int32_t(std::size(kCenterChoices)));
    DeclareProperty("bkcolor", "bkcolor", "Set window background color", 0, kGroup, PROP_COLOR);
    DeclareProperty("security_level", "security level", "Set security level", 0, kGroup, PROP_EDIT);
    DeclareProperty("security_mode", "security handle mode", "set security handle mode when no permission", 0,
                    kGroup, PROP_COMBO)
        .SetComboList(kSecurityModeChoices, std::int32_t(std::size(kSecurityModeChoices)));
}

HmiWidgetPtr CHmiWidgetWindow::Clone() const
{
    auto copy = std::make_unique<CHmiWidgetWindow>();
    copy->m_nHasCaption = m_nHasCaption;
    copy->m_nCenterWnd = m_nCenterWnd;
    copy->m_bkColor = m_bkColor;
    copy->m_nSecurityLevel = m_nSecurityLevel;
    copy->m_nSecurityMode = m_nSecurityMode;
    CopyTo(*copy);
    return HmiWidgetPtr(copy.release());
}

void CHmiWidgetWindow::Draw(CHmiDC& dc)
{
    HmiSelectedPenAndBrush selected(dc, {HmiPenStyle::Dot, 1, 0x000000}, {false, m_bkColor});
    dc.Rectangle({0, 0, m_rect.Width(), m_rect.Height()});
}

std::string CHmiWidgetWindow::GetWidgetClassName() const
{
    return kWindowClassKey;
}

bool IsWindowWidget(const CHmiWidget& widget)
{
    return widget.GetWidgetClassName() == kWindowClassKey;
}

int CHmiWidgetWindow::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                        std::string_view length)
{
    if (CHmiWidget::SetWidgetProperty(name, type, value, length))
        return 1;
    if (name == "style") {
        // A clear bit does not reset its flag.
        const std::uint32_t style = HmiParseULong(value);
        if (style & kStyleCaption)
            m_nHasCaption = 1;
        if (style & kStyleCenter)
            m_nCenterWnd = 1;
    } else if (name == "bkcolor") {
        m_bkColor = HmiParseULong(value);
    } else if (name == "security_level") {
        m_nSecurityLevel = std::int32_t(HmiParseULong(value));
    } else if (name == "security_mode") {
        m_nSecurityMode = std::int32_t(HmiParseULong(value));
    } else {
        return 0;
    }
    return 1;
}

int CHmiWidgetWindow::GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const
{
    if (CHmiWidget::GetWidgetPropValue(prop, text))
        return 1;
    const std::string& name = prop.m_strName;
    std::int32_t value;
    if (name == "hascaption")
        value = m_nHasCaption;
    else if (name == "centerwnd")
        value = m_nCenterWnd;
    else if (name == "bkcolor")
        value = std::int32_t(m_bkColor);
    else if (name == "security_level")
        value = m_nSecurityLevel;
    else if (name == "security_mode")
        value = m_nSecurityMode;
    else
        return 0;
    text = std::to_string(value);
    return 1;
}

void CHmiWidgetWindow::CreateWidgetRootItems(COptionTree& tree)
{
    CHmiWidget::CreateWidgetRootItems(tree);
    CreateNewRootItem(kGroup, "Window properties")->Expand();
}

void CHmiWidgetWindow::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    CHmiWidget::UpdateWidgetPropByTree(item);
    const CHmiWidgetProp* prop = GetWidgetPropByTreeItem(item);
    if (!prop)
        return;
    const std::string& name = prop->m_strName;
    if (name == "hascaption")
        m_nHasCaption = item->GetCurSel();
    else if (name == "centerwnd")
        m_nCenterWnd = item->GetCurSel();
    else if (name == "bkcolor")
        m_bkColor = item->GetColor();
    else if (name == "security_level")
        m_nSecurityLevel = HmiDecimalToLong(item->GetEditText());
    else if (name == "security_mode")
        m_nSecurityMode = item->GetCurSel();
}

void CHmiWidgetWindow::SaveWidgetProperties(std::string& archive) const
{
    CHmiWidget::SaveWidgetProperties(archive);
    std::uint32_t style = 0;
    if (m_nHasCaption)
        style |= kStyleCaption;
    if (m_nCenterWnd)
        style |= kStyleCenter;
    SaveWidgetProperty(archive, "style", "ulong", nullptr, std::int32_t(style));
    SaveWidgetProperty(archive, "bkcolor", "ulong", nullptr, std::int32_t(m_bkColor));
    SaveWidgetProperty(archive, "security_level", "ushort", nullptr, m_nSecurityLevel);
    SaveWidgetProperty(archive, "security_mode", "uchar", nullptr, m_nSecurityMode);
}

void CHmiWidgetWindow::CreateEventItems()
{
    // These replace the base's click events rather than adding to them.
    DeclareEvent("open", "open", "activate this event then open window");
    DeclareEvent("close", "close", "activate this event then close window");
}
