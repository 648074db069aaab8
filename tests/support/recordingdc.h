#pragma once

#include "widgets/core/hmidc.h"

#include <string>
#include <vector>

// A drawing target that records what is drawn, with the state in effect (pen, brush, font,
// text and background), so that drawing algorithms can be checked without painting pixels.
class RecordingDC : public CHmiDC {
public:
    struct Shape {
        std::string kind; // "rectangle", "ellipse", "polygon", "line", "fill", "text", "picture"
        HmiRect rect;     // for "line": from (left, top) to (right, bottom)
        HmiPen pen;
        HmiBrush brush;
        std::vector<HmiPoint> points; // "polygon"
        std::string text;             // "text"; the path for "picture"
        std::uint32_t format = 0;     // "text"
        HmiFont font;                 // "text"
        HmiColor color = 0;           // the text colour for "text", the colour for "fill"
        HmiBkMode bkMode = HmiBkMode::Opaque;
        bool transparent = false;     // "picture": a transparent colour was given (in color)
    };

    HmiPen SelectPen(const HmiPen& pen) override;
    HmiBrush SelectBrush(const HmiBrush& brush) override;
    HmiFont SelectFont(const HmiFont& font) override;
    HmiColor SetTextColor(HmiColor color) override;
    HmiColor SetBkColor(HmiColor color) override;
    HmiBkMode SetBkMode(HmiBkMode mode) override;
    HmiPoint MoveTo(HmiPoint point) override;
    void LineTo(HmiPoint point) override;
    void Rectangle(const HmiRect& rect) override;
    void Ellipse(const HmiRect& rect) override;
    void Polygon(std::span<const HmiPoint> points) override;
    void FillSolidRect(const HmiRect& rect, HmiColor color) override;
    void DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format) override;
    // Every character is 8 by 16 pixels.
    HmiPoint GetTextExtent(std::string_view text) override;
    bool DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent) override;
    HmiRect GetClipBox() const override;

    // The shapes of one kind, in drawing order.
    std::vector<Shape> ShapesOfKind(const std::string& kind) const;

    std::vector<Shape> shapes;
    // The state now in effect.
    HmiPen pen;
    HmiBrush brush;
    HmiFont font = HmiFont::DefaultGui();
    HmiColor textColor = 0;
    HmiColor bkColor = 0x00FFFFFF;
    HmiBkMode bkMode = HmiBkMode::Opaque;
    HmiPoint position;
    // What the target offers as its visible area: the whole drawing range unless a test narrows it.
    HmiRect clipBox{kHmiDrawingMin, kHmiDrawingMin, kHmiDrawingMax, kHmiDrawingMax};

private:
    Shape& Record(const char* kind, const HmiRect& rect);
};
