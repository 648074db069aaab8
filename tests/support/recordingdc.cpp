#include "recordingdc.h"

#include <utility>

HmiPen RecordingDC::SelectPen(const HmiPen& newPen)
{
    return std::exchange(pen, newPen);
}

HmiBrush RecordingDC::SelectBrush(const HmiBrush& newBrush)
{
    return std::exchange(brush, newBrush);
}

void RecordingDC::Rectangle(const HmiRect& rect)
{
    shapes.push_back({"rectangle", rect, pen, brush});
}
