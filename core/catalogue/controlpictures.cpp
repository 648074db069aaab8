#include "controlpictures.h"

#include "widgets/hmidraw.h"

#include <algorithm>

namespace {

constexpr HmiColor kWhite = 0x00FFFFFF;
constexpr HmiColor kFace = 0x00F0F0F0;
constexpr HmiColor kBorder = 0x00A0A0A0;
constexpr HmiColor kText = 0x00000000;
constexpr std::int32_t kHeaderHeight = 20;
constexpr std::int32_t kBoxSize = 13;

void DrawLabel(CHmiDC& dc, std::string_view text, const HmiRect& rect, std::uint32_t horizontal)
{
    const HmiFont font = HmiFont::DefaultGui();
    HmiTextState state(dc, kText, HmiBkMode::Transparent, &font);
    dc.DrawText(text, rect, horizontal | HMI_DT_VCENTER | HMI_DT_SINGLELINE | HMI_DT_NOPREFIX);
}

} // namespace

void DrawCheckboxPicture(CHmiDC& dc, const HmiRect& rect, std::string_view caption)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    const std::int32_t top = r.top + (r.Height() - kBoxSize) / 2;
    HmiDrawRect(&dc, r.left, top, r.left + kBoxSize, top + kBoxSize, kBorder, kWhite);
    DrawLabel(dc, caption, {r.left + kBoxSize + 4, r.top, r.right, r.bottom}, HMI_DT_LEFT);
}

void DrawComboPicture(CHmiDC& dc, const HmiRect& rect, std::string_view firstItem)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    const std::int32_t button = std::min(r.Height(), r.Width());
    HmiDrawRect(&dc, r.left, r.top, r.right, r.bottom, kBorder, kWhite);
    HmiDrawRect(&dc, r.right - button, r.top, r.right, r.bottom, kBorder, kFace);
    const std::int32_t cx = r.right - button / 2;
    const std::int32_t cy = r.top + r.Height() / 2;
    const HmiPoint arrow[] = {{cx - 4, cy - 2}, {cx + 4, cy - 2}, {cx, cy + 2}};
    HmiDrawPolygon(&dc, arrow, kText, kText);
    DrawLabel(dc, firstItem, {r.left + 4, r.top, r.right - button, r.bottom}, HMI_DT_LEFT);
}

void DrawEditPicture(CHmiDC& dc, const HmiRect& rect)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    HmiDrawRect(&dc, r.left, r.top, r.right, r.bottom, kBorder, kWhite);
}

void DrawListPicture(CHmiDC& dc, const HmiRect& rect, const std::vector<ListColumn>& columns)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    HmiDrawRect(&dc, r.left, r.top, r.right, r.bottom, kBorder, kWhite);
    const std::int32_t headerBottom = std::min(r.bottom, r.top + kHeaderHeight);
    // The headings end at the list's right edge, or earlier where the target shows no more.
    const HmiRect box = dc.GetClipBox();
    const std::int32_t end = std::min(r.right, box.right);
    std::int32_t x = r.left;
    for (const ListColumn& column : columns) {
        if (x >= end)
            break;
        const auto right = std::int32_t(std::min<std::int64_t>(r.right, std::int64_t(x) + column.width));
        // A column without width shows nothing, as in the list itself.
        if (right <= x)
            continue;
        if (right > box.left) {
            HmiDrawRect(&dc, x, r.top, right, headerBottom, kBorder, kFace);
            DrawLabel(dc, column.field, {x + 2, r.top, right - 2, headerBottom}, HMI_DT_CENTER);
        }
        x = right;
    }
}
