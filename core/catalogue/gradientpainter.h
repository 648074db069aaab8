#pragma once

#include "widgets/hmidc.h"

#include <cstdint>

// Gradients painted the way the panel paints them: line by line (or, for one ellipse mode,
// ring by ring), each in its own solid colour, never with the platform's gradient fill. Only
// the lines and rings that can reach the target's visible area are painted, so that the work
// follows what can be seen, however large the rectangle; it is held to the drawing range.

// The colour of each of N + 1 steps from a start to an end colour. Per channel the step is
// (end - start) / N, divided in double precision and kept in single precision; the colour of
// step i is start + i * step truncated toward zero, low 8 bits kept.
class GradientSteps {
public:
    GradientSteps(HmiColor start, HmiColor end, std::int32_t count);
    HmiColor At(std::int32_t step) const;

private:
    std::int32_t m_start[3];
    float m_step[3];
};

// The gradient rectangle's directions, codes 32 to 47; other codes paint nothing.
void PaintRectGradient(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code);
// The gradient ellipse's directions, codes 0 to 2; other codes paint nothing.
void PaintEllipseGradient(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code);
// The gradient triangle's directions, codes 1 to 4; other codes paint nothing.
void PaintTriangleGradient(CHmiDC& dc, const HmiRect& rect, HmiColor start, HmiColor end, std::int32_t code);
