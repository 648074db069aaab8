#pragma once

#include "widgets/hmidc.h"

#include <string>
#include <utility>
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

    HmiPen SelectPen(const HmiPen& newPen) override { return std::exchange(pen, newPen); }
    HmiBrush SelectBrush(const HmiBrush& newBrush) override { return std::exchange(brush, newBrush); }
    HmiFont SelectFont(const HmiFont& newFont) override { return std::exchange(font, newFont); }
    HmiColor SetTextColor(HmiColor color) override { return std::exchange(textColor, color); }
    HmiColor SetBkColor(HmiColor color) override { return std::exchange(bkColor, color); }
    HmiBkMode SetBkMode(HmiBkMode mode) override { return std::exchange(bkMode, mode); }
    HmiPoint MoveTo(HmiPoint point) override { return std::exchange(position, point); }
    void LineTo(HmiPoint point) override;
    void Rectangle(const HmiRect& rect) override { Record("rectangle", rect); }
    void Ellipse(const HmiRect& rect) override { Record("ellipse", rect); }
    void Polygon(std::span<const HmiPoint> points) override;
    void FillSolidRect(const HmiRect& rect, HmiColor color) override { Record("fill", rect).color = color; }
    void DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format) override;
    // Every character is 8 by 16 pixels.
    HmiPoint GetTextExtent(std::string_view text) override { return {std::int32_t(text.size()) * 8, 16}; }
    bool DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent) override;
    HmiRect GetClipBox() const override { return clipBox; }

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

// What a widget (or anything else with a Draw(CHmiDC&)) draws into a view of the given area.
template <class Drawable>
RecordingDC DrawnBy(Drawable& drawable, const HmiRect& view = RecordingDC().clipBox)
{
    RecordingDC dc;
    dc.clipBox = view;
    drawable.Draw(dc);
    return dc;
}
