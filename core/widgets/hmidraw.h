#pragma once

#include "hmidc.h"

#include <cstdint>
#include <span>
#include <string_view>

// Small drawing helpers shared by the button, the inputs and the curves. Each takes the
// target by pointer: without a target (no device context) it draws nothing. Every pen and
// brush a helper selects is selected back before it returns, except HmiSetPen's.

// A rectangle with a 1-pixel outline in the edge colour and an interior in the fill colour.
// Returns 0.
int HmiDrawRect(CHmiDC* dc, std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom,
                HmiColor edge, HmiColor fill);

// A line from (x1, y1) to (x2, y2), the end point not painted. With a width of at least 1 or a
// colour other than 0 it draws with its own pen of that width, colour and style (1 solid,
// 2 dotted, 3 dashed, other codes solid); otherwise with the pen already selected.
void HmiDrawLine(CHmiDC* dc, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                 std::int32_t width, std::int32_t style, HmiColor color);

void HmiMoveTo(CHmiDC* dc, std::int32_t x, std::int32_t y);
void HmiLineTo(CHmiDC* dc, std::int32_t x, std::int32_t y);

// One process-wide slot for a current pen. With restore set, selects back the pen that the
// slot's pen replaced and empties the slot. Otherwise restores any pen still in the slot, then
// selects a solid pen of the width and colour and keeps the pen it replaced. Returns 1, or 0
// without a target.
int HmiSetPen(CHmiDC* dc, std::int32_t width, HmiColor color, bool restore);

// Text wrapped at word boundaries in the rectangle, in the colour and the default GUI font;
// align 2 is right-aligned, anything else left-aligned. A length of 0 means the whole text; a
// longer length than the text is held to it. Leaves the background mode transparent and the
// text colour set; puts the previous font back.
void HmiDrawText(CHmiDC* dc, std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom,
                 std::string_view text, std::int32_t length, HmiColor color, std::int32_t align);

// A filled polygon with a 1-pixel outline in the edge colour and an interior in the fill
// colour. Returns 1, or 0 without a target.
int HmiDrawPolygon(CHmiDC* dc, std::span<const HmiPoint> points, HmiColor edge, HmiColor fill);

// The pen style of a line style code: 1 solid, 2 dotted, 3 dashed, any other solid.
HmiPenStyle HmiPenStyleOfCode(std::int32_t code);

// Selects a pen and a brush for the lifetime of the object and then selects the previous ones
// back, as every drawing routine must.
class HmiSelectedPenAndBrush {
public:
    HmiSelectedPenAndBrush(CHmiDC& dc, const HmiPen& pen, const HmiBrush& brush)
        : m_dc(dc), m_oldPen(dc.SelectPen(pen)), m_oldBrush(dc.SelectBrush(brush))
    {
    }
    ~HmiSelectedPenAndBrush()
    {
        m_dc.SelectBrush(m_oldBrush);
        m_dc.SelectPen(m_oldPen);
    }
    HmiSelectedPenAndBrush(const HmiSelectedPenAndBrush&) = delete;
    HmiSelectedPenAndBrush& operator=(const HmiSelectedPenAndBrush&) = delete;

private:
    CHmiDC& m_dc;
    HmiPen m_oldPen;
    HmiBrush m_oldBrush;
};

// Selects a pen for the lifetime of the object.
class HmiSelectedPen {
public:
    HmiSelectedPen(CHmiDC& dc, const HmiPen& pen) : m_dc(dc), m_oldPen(dc.SelectPen(pen)) {}
    ~HmiSelectedPen() { m_dc.SelectPen(m_oldPen); }
    HmiSelectedPen(const HmiSelectedPen&) = delete;
    HmiSelectedPen& operator=(const HmiSelectedPen&) = delete;

private:
    CHmiDC& m_dc;
    HmiPen m_oldPen;
};

// Sets the text colour, background mode and font for the lifetime of the object. Without a
// font (null) the current font stays.
class HmiTextState {
public:
    HmiTextState(CHmiDC& dc, HmiColor color, HmiBkMode mode, const HmiFont* font)
        : m_dc(dc), m_oldColor(dc.SetTextColor(color)), m_oldMode(dc.SetBkMode(mode)), m_fontSelected(font)
    {
        if (font)
            m_oldFont = dc.SelectFont(*font);
    }
    ~HmiTextState()
    {
        if (m_fontSelected)
            m_dc.SelectFont(m_oldFont);
        m_dc.SetBkMode(m_oldMode);
        m_dc.SetTextColor(m_oldColor);
    }
    HmiTextState(const HmiTextState&) = delete;
    HmiTextState& operator=(const HmiTextState&) = delete;

private:
    CHmiDC& m_dc;
    HmiColor m_oldColor;
    HmiBkMode m_oldMode;
    bool m_fontSelected;
    HmiFont m_oldFont;
};
