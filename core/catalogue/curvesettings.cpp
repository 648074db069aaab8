#include "curvesettings.h"

#include "widgets/hmidraw.h"
#include "widgets/hmisteps.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <deque>
#include <random>
#include <vector>

namespace {

// The single-precision value nearest 1 / 32767, by which the panel scales its samples.
constexpr float kSampleScale = 3.051851e-5f;
constexpr std::int32_t kTextAlign = 1; // left-aligned, wrapped
// The most points a curve shows: the panel keeps the count in 16 bits.
constexpr std::int32_t kMaxPoints = 65535;

} // namespace

const char* LastingText(std::string text)
{
    static std::deque<std::string> texts;
    return texts.emplace_back(std::move(text)).c_str();
}

std::vector<const char*> CurveSeriesSaveOrder()
{
    std::vector<const char*> keys;
    for (std::size_t n = 1; n <= kSeriesCount; ++n)
        for (const char* stem : {"dataname", "datacolor", "adddata", "valuevarname"})
            keys.push_back(LastingText(stem + std::to_string(n)));
    return keys;
}

std::function<int()>& CurveSettings::RandomSample()
{
    static std::function<int()> sample = [engine = std::minstd_rand()]() mutable {
        return int(engine() % 32768);
    };
    return sample;
}

std::function<std::tm()>& CurveSettings::LabelTime()
{
    static std::function<std::tm()> now = [] {
        const std::time_t time = std::time(nullptr);
        std::tm local{};
        localtime_r(&time, &local);
        return local;
    };
    return now;
}

void CurveSettings::DrawPreview(CHmiDC& dc, const HmiRect& rect) const
{
    const std::int32_t left = std::int16_t(rect.left);
    const std::int32_t top = std::int16_t(rect.top);
    const std::int32_t right = std::int16_t(rect.right);
    const std::int32_t bottom = std::int16_t(rect.bottom);
    HmiDrawRect(&dc, left, top, right, bottom, m_bkColor, m_bkColor);

    // The margins are held to the drawing range like coordinates. The counts are taken as they
    // are, and only what can be seen is drawn: the labels and lines whose place lies in the
    // visible area, and of several on one pixel only the first (a line drawn again adds nothing,
    // and labels on one pixel row cannot be told apart).
    const HmiRect box = dc.GetClipBox();
    const std::int32_t hSpace = HmiDrawingCoordinate(m_nFrameHSpace);
    const std::int32_t vSpace = HmiDrawingCoordinate(m_nFrameVSpace);
    const std::int32_t plotTop = top + vSpace;
    const std::int32_t plotBottom = bottom - vSpace;
    const std::int32_t plotLeft = left + hSpace;
    const std::int32_t plotRight = right - hSpace;
    const std::int32_t height = plotBottom - plotTop;
    const std::int32_t width = plotRight - plotLeft;
    const std::int64_t rows = std::int64_t(m_nVLines) + 1;    // spaces between the horizontal lines
    const std::int64_t columns = std::int64_t(m_nHLines) + 1; // spaces between the vertical lines
    char text[64];

    if (rows != 0) {
        // A value label stands from y - 5 to y + 20.
        const auto labelY = [&](std::int64_t i) { return plotBottom - i * height / rows; };
        const HmiSteps seen = HmiStepsWithin(0, rows + 1, box.top - 19, box.bottom + 5, labelY);
        HmiForEachNewPlace(seen.first, seen.end, labelY, [&](std::int64_t i) {
            const float value = (m_fMaxValue - m_fMinValue) * float(i) / float(rows) + m_fMinValue;
            const auto y = std::int32_t(labelY(i));
            HmiDrawText(&dc, left + 5, y - 5, left + hSpace, y + 20, HmiFormatFloat(value, 2), 0, m_textColor,
                        kTextAlign);
        });
    }
    HmiDrawRect(&dc, plotLeft, plotTop, plotRight, plotBottom, m_frameColor, m_frameColor);
    if (columns != 0) {
        const auto lineX = [&](std::int64_t j) { return plotLeft + j * width / columns; };
        const HmiSteps seen = HmiStepsWithin(1, columns, box.left, box.right, lineX);
        HmiForEachNewPlace(seen.first, seen.end, lineX, [&](std::int64_t j) {
            const auto x = std::int32_t(lineX(j));
            HmiDrawLine(&dc, x, plotTop, x, plotBottom, 1, 1, m_hLineColor);
        });
    }
    if (rows != 0) {
        const auto lineY = [&](std::int64_t k) { return plotTop + k * height / rows; };
        const HmiSteps seen = HmiStepsWithin(1, rows, box.top, box.bottom, lineY);
        HmiForEachNewPlace(seen.first, seen.end, lineY, [&](std::int64_t k) {
            const auto y = std::int32_t(lineY(k));
            HmiDrawLine(&dc, plotLeft, y, plotRight, y, 1, 1, m_vLineColor);
        });
    }

    // A curve needs two points and a range to spread its values over.
    if (m_nXPoints < 2 || m_fMaxValue == m_fMinValue)
        return;
    // The points whose segments can reach the visible columns: those standing in them and one
    // on either side.
    const std::int32_t points = std::min(m_nXPoints, kMaxPoints);
    const auto pointX = [&](std::int64_t p) { return plotLeft + width * p / (points - 1); };
    const HmiSteps inView = HmiStepsWithin(0, points, box.left, box.right, pointX);
    const HmiSteps drawn{std::max<std::int64_t>(inView.first - 1, 0), std::min<std::int64_t>(inView.end + 1, points)};
    const std::int32_t curves = std::min<std::int32_t>(m_nCurveNum, std::int32_t(kSeriesCount));
    std::vector<HmiPoint> line;
    line.reserve(std::size_t(drawn.end - drawn.first));
    for (std::int32_t c = 0; c < curves; ++c) {
        HmiSetPen(&dc, 0, m_dataColor[std::size_t(c)], false);
        line.clear();
        for (std::int64_t p = drawn.first; p < drawn.end; ++p) {
            const float sample = float(RandomSample()());
            const float value = std::clamp(sample * (m_fMaxValue - m_fMinValue) * kSampleScale + m_fMinValue,
                                           std::min(m_fMinValue, m_fMaxValue), std::max(m_fMinValue, m_fMaxValue));
            const float rise = (value - m_fMinValue) / (m_fMaxValue - m_fMinValue) * float(height);
            line.push_back({std::int32_t(pointX(p)), plotBottom - (std::isfinite(rise) ? std::int32_t(rise) : 0)});
        }
        // The line starts where its first point stands, and the first point is drawn to as well.
        if (!line.empty()) {
            dc.MoveTo(line.front());
            dc.PolylineTo(line);
        }
        // The time labels stand under the left edge and each vertical line, all showing now.
        if (c == 0 && m_nHLines > 0 && m_nXPoints / m_nHLines > 0) {
            const std::int64_t labels = std::int64_t(std::min(m_nHLines, m_nXPoints / (m_nXPoints / m_nHLines))) + 1;
            const std::tm local = LabelTime()();
            std::snprintf(text, sizeof text, "%d:%d:%d", local.tm_hour, local.tm_min, local.tm_sec);
            // A time label stands from x to x + 100.
            const auto labelX = [&](std::int64_t t) { return plotLeft + width * t / columns; };
            const HmiSteps seen = HmiStepsWithin(0, labels, box.left - 99, box.right, labelX);
            HmiForEachNewPlace(seen.first, seen.end, labelX, [&](std::int64_t t) {
                const auto x = std::int32_t(labelX(t));
                HmiDrawText(&dc, x, plotBottom, x + 100, plotBottom + 20, text, 0, m_textColor, kTextAlign);
            });
        }
        HmiSetPen(&dc, 0, 0, true);
    }
}
