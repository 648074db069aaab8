#include "curvesettings.h"

#include "widgets/core/hmidraw.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <deque>
#include <random>

namespace {

// The single-precision value nearest 1 / 32767, by which the panel scales its samples.
constexpr float kSampleScale = 3.051851e-5f;
constexpr std::int32_t kTextAlign = 1; // left-aligned, wrapped

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

void CurveSettings::DrawPreview(CHmiDC& dc, const HmiRect& rect) const
{
    const std::int32_t left = std::int16_t(rect.left);
    const std::int32_t top = std::int16_t(rect.top);
    const std::int32_t right = std::int16_t(rect.right);
    const std::int32_t bottom = std::int16_t(rect.bottom);
    HmiDrawRect(&dc, left, top, right, bottom, m_bkColor, m_bkColor);

    const std::int32_t plotTop = top + m_nFrameVSpace;
    const std::int32_t plotBottom = bottom - m_nFrameVSpace;
    const std::int32_t plotLeft = left + m_nFrameHSpace;
    const std::int32_t plotRight = right - m_nFrameHSpace;
    const std::int32_t height = plotBottom - plotTop;
    const std::int32_t width = plotRight - plotLeft;
    const std::int32_t rows = m_nVLines + 1;    // spaces between the horizontal lines
    const std::int32_t columns = m_nHLines + 1; // spaces between the vertical lines
    char text[64];

    if (rows != 0) {
        for (std::int32_t i = 0; i <= rows; ++i) {
            const float value = (m_fMaxValue - m_fMinValue) * float(i) / float(rows) + m_fMinValue;
            const std::int32_t y = plotBottom - i * height / rows;
            HmiDrawText(&dc, left + 5, y - 5, left + m_nFrameHSpace, y + 20, HmiFormatFloat(value, 2), 0, m_textColor,
                        kTextAlign);
        }
    }
    HmiDrawRect(&dc, plotLeft, plotTop, plotRight, plotBottom, m_frameColor, m_frameColor);
    if (columns != 0) {
        for (std::int32_t j = 1; j <= m_nHLines; ++j) {
            const std::int32_t x = plotLeft + j * width / columns;
            HmiDrawLine(&dc, x, plotTop, x, plotBottom, 1, 1, m_hLineColor);
        }
    }
    if (rows != 0) {
        for (std::int32_t k = 1; k <= m_nVLines; ++k) {
            const std::int32_t y = plotTop + k * height / rows;
            HmiDrawLine(&dc, plotLeft, y, plotRight, y, 1, 1, m_vLineColor);
        }
    }

    // A curve needs two points and a range to spread its values over.
    if (m_nXPoints < 2 || m_fMaxValue == m_fMinValue)
        return;
    const std::int32_t curves = std::min<std::int32_t>(m_nCurveNum, std::int32_t(kSeriesCount));
    for (std::int32_t c = 0; c < curves; ++c) {
        HmiSetPen(&dc, 0, m_dataColor[std::size_t(c)], false);
        for (std::int32_t p = 0; p < m_nXPoints; ++p) {
            const float sample = float(RandomSample()());
            const float value = std::clamp(sample * (m_fMaxValue - m_fMinValue) * kSampleScale + m_fMinValue,
                                           std::min(m_fMinValue, m_fMaxValue), std::max(m_fMinValue, m_fMaxValue));
            const std::int32_t y =
                plotBottom - std::int32_t((value - m_fMinValue) / (m_fMaxValue - m_fMinValue) * float(height));
            const std::int32_t x = plotLeft + width * p / (m_nXPoints - 1);
            if (p == 0)
                HmiMoveTo(&dc, x, y);
            HmiLineTo(&dc, x, y);
        }
        // The time labels stand under the left edge and each vertical line, all showing now.
        const bool labels = c == 0 && m_nHLines > 0 && m_nXPoints / m_nHLines > 0;
        for (std::int32_t t = 0; labels && t <= m_nHLines; ++t) {
            if (t > m_nXPoints / (m_nXPoints / m_nHLines))
                break;
            const std::time_t now = std::time(nullptr);
            std::tm local{};
            localtime_r(&now, &local);
            std::snprintf(text, sizeof text, "%d:%d:%d", local.tm_hour, local.tm_min, local.tm_sec);
            const std::int32_t x = plotLeft + width * t / columns;
            HmiDrawText(&dc, x, plotBottom, x + 100, plotBottom + 20, text, 0, m_textColor, kTextAlign);
        }
        HmiSetPen(&dc, 0, 0, true);
    }
}
