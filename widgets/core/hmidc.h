#pragma once

#include "hmitypes.h"

// A drawing target with device-context semantics: a current pen and brush are selected into
// it, and shapes are drawn with them. Coordinates are those of the target; a rectangle covers
// left to right - 1 and top to bottom - 1, outline included.
enum class HmiPenStyle { Solid, Dash, Dot, Null };

struct HmiPen {
    HmiPenStyle style = HmiPenStyle::Solid;
    std::int32_t width = 1; // 0 paints one pixel wide
    HmiColor color = 0;

    friend bool operator==(const HmiPen&, const HmiPen&) = default;
};

struct HmiBrush {
    bool hollow = false; // a hollow brush leaves the interior unpainted
    HmiColor color = 0x00FFFFFF;

    friend bool operator==(const HmiBrush&, const HmiBrush&) = default;
};

class CHmiDC {
public:
    virtual ~CHmiDC() = default;

    // Each returns the object it replaced, so that callers can select it back.
    virtual HmiPen SelectPen(const HmiPen& pen) = 0;
    virtual HmiBrush SelectBrush(const HmiBrush& brush) = 0;

    // Outline with the current pen, interior with the current brush.
    virtual void Rectangle(const HmiRect& rect) = 0;
};
