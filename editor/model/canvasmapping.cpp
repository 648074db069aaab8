#include "canvasmapping.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

constexpr std::int64_t kPercent = 100;

std::int64_t FloorDiv(std::int64_t value, std::int64_t divisor)
{
    const std::int64_t quotient = value / divisor;
    return quotient * divisor > value ? quotient - 1 : quotient;
}

std::int64_t CeilDiv(std::int64_t value, std::int64_t divisor)
{
    return -FloorDiv(-value, divisor);
}

std::int32_t Saturated(std::int64_t value)
{
    return std::int32_t(std::clamp<std::int64_t>(value, std::numeric_limits<std::int32_t>::min(),
                                                 std::numeric_limits<std::int32_t>::max()));
}

} // namespace

void CCanvasMapping::SetPercent(int percent)
{
    m_percent = std::clamp(percent, kMinPercent, kMaxPercent);
}

// A client pixel shows what the painter puts at its centre: the window point c + 1/2 divided by
// the zoom falls in. A window point is first shown by the pixel whose centre is at or past it.
std::int32_t CCanvasMapping::ClientToDoc(std::int32_t client) const
{
    return Saturated(FloorDiv((2 * std::int64_t(client) + 1) * kPercent, 2 * std::int64_t(m_percent)));
}

std::int32_t CCanvasMapping::DocToClient(std::int32_t doc) const
{
    return Saturated(CeilDiv(2 * std::int64_t(doc) * m_percent - kPercent, 2 * kPercent));
}

HmiPoint CCanvasMapping::DocToClient(HmiPoint point) const
{
    return {DocToClient(point.x), DocToClient(point.y)};
}

HmiPoint CCanvasMapping::ClientToDoc(HmiPoint point) const
{
    return {ClientToDoc(point.x), ClientToDoc(point.y)};
}

HmiRect CCanvasMapping::DocRectToClient(const HmiRect& rect) const
{
    const HmiRect r = rect.Normalized();
    return {Saturated(FloorDiv(std::int64_t(r.left) * m_percent, kPercent)),
            Saturated(FloorDiv(std::int64_t(r.top) * m_percent, kPercent)),
            Saturated(CeilDiv(std::int64_t(r.right) * m_percent, kPercent)),
            Saturated(CeilDiv(std::int64_t(r.bottom) * m_percent, kPercent))};
}

HmiRect CCanvasMapping::ClientRectToDoc(const HmiRect& rect) const
{
    const HmiRect r = rect.Normalized();
    return {Saturated(FloorDiv(r.left * kPercent, m_percent)), Saturated(FloorDiv(r.top * kPercent, m_percent)),
            Saturated(CeilDiv(r.right * kPercent, m_percent)), Saturated(CeilDiv(r.bottom * kPercent, m_percent))};
}

int CCanvasMapping::ClientLength(int docLength) const
{
    return Saturated(CeilDiv(std::int64_t(docLength) * m_percent, kPercent));
}

int CCanvasMapping::StepIn(int percent)
{
    const auto* next = std::upper_bound(kSteps.begin(), kSteps.end(), percent);
    return next == kSteps.end() ? std::min(percent, kMaxPercent) : *next;
}

int CCanvasMapping::StepOut(int percent)
{
    const auto* next = std::lower_bound(kSteps.begin(), kSteps.end(), percent);
    return next == kSteps.begin() ? std::max(percent, kMinPercent) : *(next - 1);
}

int CCanvasMapping::FitPercent(HmiPoint windowSize, HmiPoint room)
{
    if (windowSize.x <= 0 || windowSize.y <= 0)
        return 100;
    const std::int64_t across = std::int64_t(std::max(room.x, 0)) * kPercent / windowSize.x;
    const std::int64_t down = std::int64_t(std::max(room.y, 0)) * kPercent / windowSize.y;
    return int(std::clamp<std::int64_t>(std::min(across, down), kMinPercent, kMaxPercent));
}
