#pragma once

#include "widgets/core/hmidc.h"

#include <string>
#include <vector>

// A drawing target that records what is drawn, with the pen and brush in effect, so that
// drawing algorithms can be checked without painting pixels.
class RecordingDC : public CHmiDC {
public:
    struct Shape {
        std::string kind; // "rectangle"
        HmiRect rect;
        HmiPen pen;
        HmiBrush brush;
    };

    HmiPen SelectPen(const HmiPen& pen) override;
    HmiBrush SelectBrush(const HmiBrush& brush) override;
    void Rectangle(const HmiRect& rect) override;

    std::vector<Shape> shapes;
    HmiPen pen;
    HmiBrush brush;
};
