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

HmiFont RecordingDC::SelectFont(const HmiFont& newFont)
{
    return std::exchange(font, newFont);
}

HmiColor RecordingDC::SetTextColor(HmiColor color)
{
    return std::exchange(textColor, color);
}

HmiColor RecordingDC::SetBkColor(HmiColor color)
{
    return std::exchange(bkColor, color);
}

HmiBkMode RecordingDC::SetBkMode(HmiBkMode mode)
{
    return std::exchange(bkMode, mode);
}

HmiPoint RecordingDC::MoveTo(HmiPoint point)
{
    return std::exchange(position, point);
}

void RecordingDC::LineTo(HmiPoint point)
{
    Record("line", {position.x, position.y, point.x, point.y});
    position = point;
}

void RecordingDC::Rectangle(const HmiRect& rect)
{
    Record("rectangle", rect);
}

void RecordingDC::Ellipse(const HmiRect& rect)
{
    Record("ellipse", rect);
}

void RecordingDC::Polygon(std::span<const HmiPoint> points)
{
    Record("polygon", {}).points.assign(points.begin(), points.end());
}

void RecordingDC::FillSolidRect(const HmiRect& rect, HmiColor color)
{
    Record("fill", rect).color = color;
}

void RecordingDC::DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format)
{
    Shape& shape = Record("text", rect);
    shape.text = text;
    shape.format = format;
    shape.color = textColor;
}

HmiPoint RecordingDC::GetTextExtent(std::string_view text)
{
    return {std::int32_t(text.size()) * 8, 16};
}

bool RecordingDC::DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent)
{
    Shape& shape = Record("picture", rect);
    shape.text = path;
    shape.transparent = transparent != nullptr;
    shape.color = transparent ? *transparent : 0;
    return true;
}

std::vector<RecordingDC::Shape> RecordingDC::ShapesOfKind(const std::string& kind) const
{
    std::vector<Shape> found;
    for (const Shape& shape : shapes)
        if (shape.kind == kind)
            found.push_back(shape);
    return found;
}

RecordingDC::Shape& RecordingDC::Record(const char* kind, const HmiRect& rect)
{
    Shape& shape = shapes.emplace_back();
    shape.kind = kind;
    shape.rect = rect;
    shape.pen = pen;
    shape.brush = brush;
    shape.font = font;
    shape.bkMode = bkMode;
    return shape;
}

HmiRect RecordingDC::GetClipBox() const
{
    return clipBox;
}
