#include "tankgauge.h"

#include "widgets/hmidc.h"
#include "widgets/hmidraw.h"

#include <algorithm>

HMI_IMPLEMENT_WIDGET_CLASS(CTankGauge, CHmiWidget)

std::span<const PropertySpec<CTankGauge>> CTankGauge::Properties()
{
    // One entry per property, in the order of the rows and of the window file. bindable 1 lets
    // the user bind the property to an expression of process variables, which the panel
    // evaluates at run time; the level is what the panel moves.
    static const PropertySpec<CTankGauge> properties[] = {
        {.key = "level", .label = "Level", .description = "The filled part of the tank in percent (0 to 100)",
         .bindable = 1, .xmlType = "long", .number = &CTankGauge::m_level, .read = FileNumber::Signed},
        {.key = "liquidcolor", .label = "Liquid Color", .description = "The colour of the liquid",
         .itemType = PROP_COLOR, .bindable = 1, .color = &CTankGauge::m_liquidColor, .read = FileNumber::Unsigned},
        {.key = "shellcolor", .label = "Shell Color", .description = "The colour of the empty part of the tank",
         .itemType = PROP_COLOR, .bindable = 0, .color = &CTankGauge::m_shellColor, .read = FileNumber::Unsigned},
        // A static row: its "..." button opens the library's own dialog (see library.cpp).
        {.key = "alarmlevel", .label = "Alarm Level",
         .description = "The level in percent above which the overflow event runs",
         .itemType = PROP_STATIC, .bindable = 0, .xmlType = "long", .number = &CTankGauge::m_alarmLevel,
         .read = FileNumber::Signed},
    };
    return properties;
}

namespace {

constexpr HmiColor kBlack = 0x00000000;
constexpr HmiColor kRed = 0x000000FF;
constexpr std::int32_t kTickCount = 10;

// The height within the tank's inside (top to bottom) at a percentage of it, counted upwards.
std::int32_t HeightAt(const HmiRect& inside, std::int32_t percent)
{
    const std::int64_t height = std::int64_t(inside.bottom) - inside.top;
    return std::int32_t(inside.bottom - height * std::clamp(percent, 0, 100) / 100);
}

} // namespace

void CTankGauge::Draw(CHmiDC& dc)
{
    // ForDrawing holds coordinates that a hand-edited file may carry to what a target can draw.
    const HmiRect tank = m_rect.ForDrawing().Normalized();
    // Every pen and brush selected here is selected back when the guard goes.
    const HmiSelectedPenAndBrush outline(dc, {HmiPenStyle::Solid, 1, kBlack}, {false, m_shellColor});
    dc.Rectangle(tank);

    // A rectangle covers left to right - 1, so its outline leaves this inside.
    const HmiRect inside = tank.Inflated(-1, -1);
    if (inside.Width() <= 0 || inside.Height() <= 0)
        return;
    dc.FillSolidRect({inside.left, HeightAt(inside, m_level), inside.right, inside.bottom}, m_liquidColor);

    // Ticks on the left side, the middle one twice as long.
    for (std::int32_t tick = 1; tick < kTickCount; ++tick) {
        const std::int32_t y = HeightAt(inside, tick * 100 / kTickCount);
        const std::int32_t length = inside.Width() / (tick == kTickCount / 2 ? 3 : 6);
        dc.MoveTo({inside.left, y});
        dc.LineTo({inside.left + length, y});
    }

    const std::int32_t alarm = HeightAt(inside, m_alarmLevel);
    HmiDrawLine(&dc, inside.left, alarm, inside.right, alarm, 1, 1, kRed);
}

void CTankGauge::CreateEventItems()
{
    CHmiTableWidget::CreateEventItems();
    DeclareEvent("overflow", "Overflow", "runs when the level rises above the alarm level");
}
