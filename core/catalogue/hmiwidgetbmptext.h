#pragma once

#include "widgets/hmidc.h"
#include "widgets/hmiwidget.h"

#include <optional>
#include <string>

// A text in any installed font. The panel has no such fonts, so when the window is saved the
// editor renders the text and writes its pixels into the window file as the "bitmap" point
// list, which the panel paints.
class CHmiWidgetBmpText : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetBmpText)
public:
    CHmiWidgetBmpText();

    HmiWidgetPtr Clone() const override;
    std::string GetWidgetClassName() const override;
    void Draw(CHmiDC& dc) override;
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override;
    void CreateWidgetRootItems(COptionTree& tree) override;
    void UpdateWidgetPropByTree(COptionTreeItem* item) override;
    // Renders the text for the "bitmap" property when fonts are at hand (a running application)
    // and anything it is drawn from changed since the last rendering, or the point list was read
    // since; otherwise the point list last read or rendered is written again.
    void SaveWidgetProperties(std::string& archive) const override;

    // The point list of the text drawn at the origin over white: column by column, each black
    // pixel as "%03X%03X" (x, y) and each other non-white one as x + 0x800, y and its colour
    // "%06X"; white is left out, and so is every pixel beyond 0xFFF in either direction, which
    // three digits cannot hold.
    std::string RenderBitmap() const;

    HmiFont m_font = HmiFont::DefaultGui();
    HmiColor m_textColor = 0x00000000;
    std::string m_strText = "Text";
    std::int32_t m_nAlign = 1; // 1 left, 2 right, 3 centre
    mutable std::string m_strBitmap;

private:
    // Everything the rendering depends on.
    struct RenderInputs {
        HmiFont font;
        HmiColor textColor;
        std::string text;
        std::int32_t align;
        std::int32_t width;
        std::int32_t height;
        friend bool operator==(const RenderInputs&, const RenderInputs&) = default;
    };

    void DrawAt(CHmiDC& dc, const HmiRect& rect) const;
    RenderInputs CurrentRenderInputs() const;

    // What m_strBitmap was rendered from; empty when it was read or never rendered.
    mutable std::optional<RenderInputs> m_renderedFrom;
};

class CHmiImageDC;

// The point-list encoding of a rendered image, as described for RenderBitmap.
std::string EncodeBitmapPoints(const CHmiImageDC& image);
