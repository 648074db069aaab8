#pragma once

#include "base/hmitypes.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>

// A drawing target with device-context semantics. A pen, a brush and a font are selected into
// it and stay in effect until replaced; shapes are drawn with them. Every Select/Set operation
// returns what it replaced, so that a drawing routine can put the previous object back before
// it returns, as every widget does.
//
// Pixel rules, in the target's coordinates:
// - a rectangle or ellipse (l, t, r, b) covers l to r - 1 and t to b - 1, outline included;
//   a rectangle with r < l or b < t covers the same area as its normalised copy;
// - a line does not paint its end point; LineTo leaves the current position at the end point;
// - a pen of width 0 paints one pixel wide, like a pen of width 1.
// Coordinates may be anything: a target draws with them held to the drawing range (hmitypes.h),
// and its work stays within what can be seen, however large a shape is.
enum class HmiPenStyle { Solid, Dash, Dot, Null };

struct HmiPen {
    HmiPenStyle style = HmiPenStyle::Solid;
    std::int32_t width = 1;
    HmiColor color = 0;

    friend bool operator==(const HmiPen&, const HmiPen&) = default;
};

struct HmiBrush {
    bool hollow = false; // a hollow brush leaves the interior unpainted
    HmiColor color = 0x00FFFFFF;

    friend bool operator==(const HmiBrush&, const HmiBrush&) = default;
};

// A logical font: the face is requested by name and the platform substitutes an installed face
// when it lacks it. The height is in pixels (a negative height means the same size measured
// without the internal leading); the weight runs from 100 to 900, 400 normal, 700 bold.
struct HmiFont {
    std::string face;
    std::int32_t height = 0;
    std::int32_t weight = 400;
    std::uint8_t italic = 0;
    std::uint8_t underline = 0;
    std::uint8_t strikeOut = 0;
    std::uint8_t charSet = 0;
    std::uint8_t pitchAndFamily = 0;

    // The platform's default GUI font, the font a target starts with.
    static HmiFont DefaultGui() { return {"MS Shell Dlg", -11, 400}; }

    friend bool operator==(const HmiFont&, const HmiFont&) = default;
};

// A solid one-pixel line in a colour of its own, from one point up to, not including, the other.
struct HmiThinLine {
    HmiPoint from;
    HmiPoint to;
    HmiColor color = 0;
};

// Whether text, dotted and dashed lines paint their background (the gaps, the area behind the
// glyphs) in the background colour.
enum class HmiBkMode { Transparent = 1, Opaque = 2 };

// How DrawText places text in its rectangle; combine with |.
enum HmiTextFormat : std::uint32_t {
    HMI_DT_LEFT = 0x0,
    HMI_DT_CENTER = 0x1,      // centred horizontally
    HMI_DT_RIGHT = 0x2,
    HMI_DT_VCENTER = 0x4,     // centred vertically; with HMI_DT_SINGLELINE only
    HMI_DT_WORDBREAK = 0x10,  // wrap at word boundaries within the rectangle's width
    HMI_DT_SINGLELINE = 0x20, // one line; line breaks are not honoured
    HMI_DT_NOPREFIX = 0x800,  // "&" is shown as is (without it, "&x" underlines x and "&&" shows "&")
};

// A key for CHmiDC::DrawReusable: the kind of drawing, then the numbers it is drawn from.
inline std::string HmiReuseKey(std::string_view kind, std::initializer_list<std::int64_t> numbers)
{
    std::string key(kind);
    for (const std::int64_t number : numbers)
        key.append(reinterpret_cast<const char*>(&number), sizeof number);
    return key;
}

class CHmiDC {
public:
    virtual ~CHmiDC() = default;

    virtual HmiPen SelectPen(const HmiPen& pen) = 0;
    virtual HmiBrush SelectBrush(const HmiBrush& brush) = 0;
    virtual HmiFont SelectFont(const HmiFont& font) = 0;
    virtual HmiColor SetTextColor(HmiColor color) = 0;
    virtual HmiColor SetBkColor(HmiColor color) = 0;
    virtual HmiBkMode SetBkMode(HmiBkMode mode) = 0;

    // Sets the current position; returns the previous one.
    virtual HmiPoint MoveTo(HmiPoint point) = 0;
    // A line from the current position to the point with the current pen; the point becomes the
    // current position and is itself not painted.
    virtual void LineTo(HmiPoint point) = 0;
    // Lines through the points in turn, as LineTo draws them one after the other: curves of
    // many points draw this way; a target may do it faster.
    virtual void PolylineTo(std::span<const HmiPoint> points)
    {
        for (const HmiPoint& point : points)
            LineTo(point);
    }

    // Many lines at once, later ones over earlier ones, each as a solid pen of width 1 in its
    // colour draws it from MoveTo to LineTo: the pen in effect stays, and the current position
    // ends at the last line's end point. Gradients paint this way; a target may do it faster.
    virtual void ThinLines(std::span<const HmiThinLine> lines)
    {
        for (const HmiThinLine& line : lines) {
            const HmiPen previous = SelectPen({HmiPenStyle::Solid, 1, line.color});
            MoveTo(line.from);
            LineTo(line.to);
            SelectPen(previous);
        }
    }

    // Outline with the current pen, interior with the current brush.
    virtual void Rectangle(const HmiRect& rect) = 0;
    virtual void Ellipse(const HmiRect& rect) = 0;
    virtual void Polygon(std::span<const HmiPoint> points) = 0;
    // Paints the rectangle in one colour, without outline, leaving pen and brush alone.
    virtual void FillSolidRect(const HmiRect& rect, HmiColor color) = 0;

    // Text in the editor's code page (GB2312 bytes), in the current font and text colour,
    // placed in the rectangle by the format flags and clipped to it.
    virtual void DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format) = 0;
    // The size in pixels of a single line of text in the current font.
    virtual HmiPoint GetTextExtent(std::string_view text) = 0;

    // Paints a picture file (BMP, PNG, JPEG, GIF, ...) stretched into the rectangle. When a
    // transparent colour is given, pixels of exactly that colour leave the target unchanged.
    // A file that is missing or cannot be decoded paints nothing. Returns whether it painted.
    virtual bool DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent) = 0;

    // Paints what `paint` draws on the target it is handed. A caller promises that the drawing
    // lies within the box and depends on nothing but the key, which names everything it is drawn
    // from, the box's place included, and that `paint` selects what it uses and puts it back. A
    // target may then keep the pixels under the key and paint them again while the key recurs.
    virtual void DrawReusable(const std::string& /*key*/, const HmiRect& /*box*/,
                              const std::function<void(CHmiDC&)>& paint)
    {
        paint(*this);
    }

    // The part of the target that drawing can change, in the target's coordinates: drawing
    // outside it changes nothing. Routines that draw in many steps leave out the steps that lie
    // wholly outside it.
    virtual HmiRect GetClipBox() const = 0;
};

// A target that keeps the drawing state as the selectors set it, for targets that read it only
// when they draw. The defaults are those of a fresh panel device context.
class CHmiStateDC : public CHmiDC {
public:
    HmiPen SelectPen(const HmiPen& pen) override { return std::exchange(m_pen, pen); }
    HmiBrush SelectBrush(const HmiBrush& brush) override { return std::exchange(m_brush, brush); }
    HmiFont SelectFont(const HmiFont& font) override { return std::exchange(m_font, font); }
    HmiColor SetTextColor(HmiColor color) override { return std::exchange(m_textColor, color); }
    HmiColor SetBkColor(HmiColor color) override { return std::exchange(m_bkColor, color); }
    HmiBkMode SetBkMode(HmiBkMode mode) override { return std::exchange(m_bkMode, mode); }
    HmiPoint MoveTo(HmiPoint point) override { return std::exchange(m_position, point); }

protected:
    HmiPen m_pen;
    HmiBrush m_brush;
    HmiFont m_font = HmiFont::DefaultGui();
    HmiColor m_textColor = 0;
    HmiColor m_bkColor = 0x00FFFFFF;
    HmiBkMode m_bkMode = HmiBkMode::Opaque;
    HmiPoint m_position;
};
