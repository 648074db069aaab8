#include "hmidraw.h"

#include <algorithm>
#include <optional>

namespace {

// HmiSetPen's slot: the pen it replaced, while its own pen is selected.
std::optional<HmiPen> g_penReplacedBySetPen;

} // namespace

HmiPenStyle HmiPenStyleOfCode(std::int32_t code)
{
    switch (code) {
    case 2:
        return HmiPenStyle::Dot;
    case 3:
        return HmiPenStyle::Dash;
    default:
        return HmiPenStyle::Solid;
    }
}

int HmiDrawRect(CHmiDC* dc, std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom,
                HmiColor edge, HmiColor fill)
{
    if (!dc)
        return 0;
    HmiSelectedPenAndBrush selected(*dc, {HmiPenStyle::Solid, 1, edge}, {false, fill});
    dc->Rectangle({left, top, right, bottom});
    return 0;
}

void HmiDrawLine(CHmiDC* dc, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                 std::int32_t width, std::int32_t style, HmiColor color)
{
    if (!dc)
        return;
    std::optional<HmiSelectedPen> ownPen;
    if (width >= 1 || color != 0)
        ownPen.emplace(*dc, HmiPen{HmiPenStyleOfCode(style), width, color});
    dc->MoveTo({x1, y1});
    dc->LineTo({x2, y2});
}

void HmiMoveTo(CHmiDC* dc, std::int32_t x, std::int32_t y)
{
    if (dc)
        dc->MoveTo({x, y});
}

void HmiLineTo(CHmiDC* dc, std::int32_t x, std::int32_t y)
{
    if (dc)
        dc->LineTo({x, y});
}

int HmiSetPen(CHmiDC* dc, std::int32_t width, HmiColor color, bool restore)
{
    if (!dc)
        return 0;
    if (g_penReplacedBySetPen) {
        dc->SelectPen(*g_penReplacedBySetPen);
        g_penReplacedBySetPen.reset();
    }
    if (restore)
        return 1;
    g_penReplacedBySetPen = dc->SelectPen({HmiPenStyle::Solid, width, color});
    return 1;
}

void HmiDrawText(CHmiDC* dc, std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom,
                 std::string_view text, std::int32_t length, HmiColor color, std::int32_t align)
{
    if (!dc)
        return;
    if (length > 0)
        text = text.substr(0, std::min<std::size_t>(std::size_t(length), text.size()));
    // The background mode and text colour stay set afterwards; only the font is put back.
    dc->SetBkMode(HmiBkMode::Transparent);
    dc->SetTextColor(color);
    const HmiFont oldFont = dc->SelectFont(HmiFont::DefaultGui());
    const std::uint32_t horizontal = align == 2 ? HMI_DT_RIGHT : HMI_DT_LEFT;
    dc->DrawText(text, {left, top, right, bottom}, horizontal | HMI_DT_WORDBREAK);
    dc->SelectFont(oldFont);
}

int HmiDrawPolygon(CHmiDC* dc, std::span<const HmiPoint> points, HmiColor edge, HmiColor fill)
{
    if (!dc)
        return 0;
    HmiSelectedPenAndBrush selected(*dc, {HmiPenStyle::Solid, 1, edge}, {false, fill});
    dc->Polygon(points);
    return 1;
}
