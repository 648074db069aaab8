#pragma once

#include "propertytable.h"

// A straight line from corner to corner of the widget's rectangle, which is its bounding box.
class CHmiWidgetLine : public CHmiTableWidget<CHmiWidgetLine> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetLine)
public:
    static constexpr const char* kClassKey = "line";
    static constexpr const char* kGroup = "Line";
    static constexpr const char* kRootText = "Line properties";
    static std::span<const PropertySpec<CHmiWidgetLine>> Properties();

    static constexpr std::int32_t kLeftTopToRightBottom = 1;

    void Draw(CHmiDC& dc) override;
    // A thin line is grabbed in a band three pixels either side of it; otherwise anywhere in
    // its bounding box.
    bool Intersects(HmiPoint point) const override;
    bool Intersects(const HmiRect& rect) const override;

    HmiColor m_color = 0x00000000;    // black
    std::int32_t m_nLineWidth = 1;    // pixels
    std::int32_t m_nDirection = kLeftTopToRightBottom;
    std::int32_t m_nStyle = 1;        // 1 solid, 2 dotted, 3 dashed

private:
    HmiRect HitRect() const;
};
