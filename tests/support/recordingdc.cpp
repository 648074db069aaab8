#include "recordingdc.h"

void RecordingDC::LineTo(HmiPoint point)
{
    Record("line", {position.x, position.y, point.x, point.y});
    position = point;
}

void RecordingDC::Polygon(std::span<const HmiPoint> points)
{
    Record("polygon", {}).points.assign(points.begin(), points.end());
}

void RecordingDC::DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format)
{
    Shape& shape = Record("text", rect);
    shape.text = text;
    shape.format = format;
    shape.color = textColor;
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
    return shapes.emplace_back(
        Shape{.kind = kind, .rect = rect, .pen = pen, .brush = brush, .font = font, .bkMode = bkMode});
}
