#include "hmiwidgetbmptext.h"

#include "base/numberparsers.h"
#include "widgets/hmidraw.h"
#include "widgets/hmiimagedc.h"
#include "widgets/optiontree.h"

#include <algorithm>
#include <iterator>

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetBmpText, CHmiWidget)

namespace {

constexpr const char* kGroup = "Text Display";
constexpr const char* kAlignChoices[] = {"Left", "Right", "Center"};
constexpr HmiColor kBackground = 0x00FFFFFF;
// Marks a point that carries its own colour; coordinates must stay below it.
constexpr int kColouredPoint = 0x800;
// A point's coordinates are written in three hexadecimal digits: the rendering stops where
// they would run over, so that a huge widget renders no more than this.
constexpr std::int32_t kMaxBitmapExtent = 0x1000;

// The font as the property list shows it: face, height and weight.
std::string DescribeFont(const HmiFont& font)
{
    return font.face + ", " + std::to_string(font.height) + ", " + std::to_string(font.weight);
}

} // namespace

CHmiWidgetBmpText::CHmiWidgetBmpText()
{
    DeclareProperty("font", "Font", "Set font", 0, kGroup, PROP_FONT);
    DeclareProperty("text", "Text", "Set text", 0, kGroup, PROP_TEXT);
    DeclareProperty("align", "Align", "Set align mode", 0, kGroup, PROP_COMBO)
        .SetComboList(kAlignChoices, std::int32_t(std::size(kAlignChoices)));
}

HmiWidgetPtr CHmiWidgetBmpText::Clone() const
{
    auto copy = std::make_unique<CHmiWidgetBmpText>();
    copy->m_font = m_font;
    copy->m_textColor = m_textColor;
    copy->m_strText = m_strText;
    copy->m_nAlign = m_nAlign;
    copy->m_strBitmap = m_strBitmap;
    copy->m_renderedFrom = m_renderedFrom;
    CopyTo(*copy);
    return HmiWidgetPtr(copy.release());
}

std::string CHmiWidgetBmpText::GetWidgetClassName() const
{
    return "bmptext";
}

void CHmiWidgetBmpText::DrawAt(CHmiDC& dc, const HmiRect& rect) const
{
    HmiTextState text(dc, m_textColor, HmiBkMode::Transparent, &m_font);
    std::uint32_t horizontal;
    switch (m_nAlign) {
    case 1: horizontal = HMI_DT_LEFT; break;
    case 2: horizontal = HMI_DT_RIGHT; break;
    case 3: horizontal = HMI_DT_CENTER; break;
    default: return;
    }
    dc.DrawText(m_strText, rect, horizontal | HMI_DT_WORDBREAK);
}

void CHmiWidgetBmpText::Draw(CHmiDC& dc)
{
    DrawAt(dc, m_rect.Normalized());
}

int CHmiWidgetBmpText::SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                         std::string_view length)
{
    if (CHmiWidget::SetWidgetProperty(name, type, value, length))
        return 1;
    if (name == "fontname")
        m_font.face = value;
    else if (name == "fontheight")
        m_font.height = HmiParseLong(value);
    else if (name == "fontweight")
        m_font.weight = HmiParseLong(value);
    else if (name == "fontitalic")
        m_font.italic = std::uint8_t(HmiParseLong(value));
    else if (name == "fontunderline")
        m_font.underline = std::uint8_t(HmiParseLong(value));
    else if (name == "fontstrikeout")
        m_font.strikeOut = std::uint8_t(HmiParseLong(value));
    else if (name == "fontcharset")
        m_font.charSet = std::uint8_t(HmiParseLong(value));
    else if (name == "color")
        m_textColor = HmiParseULong(value);
    else if (name == "text")
        m_strText = value;
    else if (name == "align")
        m_nAlign = HmiParseLong(value);
    else if (name == "bitmap") {
        m_strBitmap = value;
        m_renderedFrom.reset(); // read, not rendered here
    }
    else
        return 0;
    return 1;
}

int CHmiWidgetBmpText::GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const
{
    if (CHmiWidget::GetWidgetPropValue(prop, text))
        return 1;
    if (prop.m_strName == "font")
        text = DescribeFont(m_font);
    else if (prop.m_strName == "text")
        text = m_strText;
    else if (prop.m_strName == "align")
        text = std::to_string(m_nAlign - 1);
    else
        return 0;
    return 1;
}

void CHmiWidgetBmpText::CreateWidgetRootItems(COptionTree& tree)
{
    CHmiWidget::CreateWidgetRootItems(tree);
    CreateNewRootItem(kGroup, "Text widget properties")->Expand();
}

void CHmiWidgetBmpText::UpdateWidgetPropByTree(COptionTreeItem* item)
{
    CHmiWidget::UpdateWidgetPropByTree(item);
    const CHmiWidgetProp* prop = GetWidgetPropByTreeItem(item);
    if (!prop)
        return;
    if (prop->m_strName == "text")
        m_strText = item->GetEditText();
    else if (prop->m_strName == "align")
        m_nAlign = item->GetCurSel() + 1;
}

CHmiWidgetBmpText::RenderInputs CHmiWidgetBmpText::CurrentRenderInputs() const
{
    const HmiRect r = m_rect.Normalized();
    return {m_font, m_textColor, m_strText, m_nAlign, r.Width(), r.Height()};
}

std::string CHmiWidgetBmpText::RenderBitmap() const
{
    const HmiRect r = m_rect.Normalized();
    CHmiImageDC image(std::min(r.Width(), kMaxBitmapExtent), std::min(r.Height(), kMaxBitmapExtent));
    DrawAt(image, {0, 0, r.Width(), r.Height()});
    return EncodeBitmapPoints(image);
}

void CHmiWidgetBmpText::SaveWidgetProperties(std::string& archive) const
{
    CHmiWidget::SaveWidgetProperties(archive);
    if (CHmiImageDC::CanDrawText()) {
        RenderInputs inputs = CurrentRenderInputs();
        if (inputs != m_renderedFrom) {
            m_strBitmap = RenderBitmap();
            m_renderedFrom = std::move(inputs);
        }
    }
    SaveWidgetProperty(archive, "fontname", "string", nullptr, m_font.face);
    SaveWidgetProperty(archive, "fontheight", "long", nullptr, m_font.height);
    SaveWidgetProperty(archive, "fontweight", "long", nullptr, m_font.weight);
    SaveWidgetProperty(archive, "fontitalic", "uchar", nullptr, m_font.italic);
    SaveWidgetProperty(archive, "fontunderline", "uchar", nullptr, m_font.underline);
    SaveWidgetProperty(archive, "fontstrikeout", "uchar", nullptr, m_font.strikeOut);
    SaveWidgetProperty(archive, "fontcharset", "uchar", nullptr, m_font.charSet);
    SaveWidgetProperty(archive, "color", "ulong", nullptr, std::int32_t(m_textColor));
    SaveWidgetProperty(archive, "text", "string", nullptr, m_strText);
    SaveWidgetProperty(archive, "align", "ulong", nullptr, m_nAlign);
    const std::string length = std::to_string(m_strBitmap.size() + 1);
    SaveWidgetProperty(archive, "bitmap", "string", length.c_str(), m_strBitmap);
}

std::string EncodeBitmapPoints(const CHmiImageDC& image)
{
    static constexpr char kHexDigits[] = "0123456789ABCDEF";
    // Appends a value in upper-case hexadecimal with at least `digits` digits, as "%0<digits>X"
    // does (a coloured point's x beyond 0x7FF takes four).
    const auto appendHex = [](char*& out, std::uint32_t value, int digits) {
        while (digits < 8 && (value >> (4 * digits)) != 0)
            ++digits;
        for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
            *out++ = kHexDigits[(value >> shift) & 0xF];
    };
    std::string points;
    char record[16];
    for (int x = 0; x < image.Width(); ++x) {
        for (int y = 0; y < image.Height(); ++y) {
            const HmiColor color = image.GetPixel(x, y);
            if (color == kBackground)
                continue;
            char* end = record;
            appendHex(end, std::uint32_t(color == 0 ? x : x + kColouredPoint), 3);
            appendHex(end, std::uint32_t(y), 3);
            if (color != 0)
                appendHex(end, color, 6);
            points.append(record, end);
        }
    }
    return points;
}
