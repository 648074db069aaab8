#include "toolboxicons.h"

#include <QIconEngine>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const QColor kInk(0x2b, 0x36, 0x45);
const QColor kPaper(0xff, 0xff, 0xff);
const QColor kTint(0xd4, 0xe3, 0xf6);
const QColor kAccent(0x2f, 0x6f, 0xc0);
const QColor kFace(0xe2, 0xe2, 0xe2);
const QColor kShade(0x8a, 0x8f, 0x96);
const QColor kGreen(0x2e, 0x9d, 0x4f);
const QColor kAmber(0xf2, 0xb1, 0x34);
const QColor kSun(0xf6, 0xc9, 0x3b);
const QColor kSky(0xcf, 0xe6, 0xfb);

// The drawings' 16-unit grid on a square of pixels. A stroke drawn through grid lines covers
// whole pixels (its width is a whole number of them), and an area reaches exactly to the outer
// edge of the strokes on its border, so nothing is smeared by antialiasing at any size.
class CIconGrid {
public:
    explicit CIconGrid(const QRect& square)
        : m_origin(square.topLeft()), m_scale(square.width() / 16.0), m_pen(std::max(1L, std::lround(m_scale)))
    {
    }

    qreal PenWidth(qreal weight = 1) const { return m_pen * weight; }
    QPen Stroke(const QColor& color, qreal weight = 1) const
    {
        QPen pen(color, PenWidth(weight));
        pen.setJoinStyle(Qt::MiterJoin);
        return pen;
    }
    QPen RoundStroke(const QColor& color, qreal weight = 1) const
    {
        return QPen(color, PenWidth(weight), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }
    // The point on which a one-unit stroke through grid point (x, y) is centred.
    QPointF At(qreal x, qreal y) const { return {Snap(x, m_origin.x()) + m_pen / 2.0, Snap(y, m_origin.y()) + m_pen / 2.0}; }
    // The outline through the grid lines l, t, r and b.
    QRectF Outline(qreal l, qreal t, qreal r, qreal b) const { return {At(l, t), At(r, b)}; }
    // The area that an outline through the same lines encloses, its stroke included.
    QRectF Area(qreal l, qreal t, qreal r, qreal b) const
    {
        return {QPointF(Snap(l, m_origin.x()), Snap(t, m_origin.y())),
                QPointF(Snap(r, m_origin.x()) + m_pen, Snap(b, m_origin.y()) + m_pen)};
    }
    QPolygonF Polygon(std::initializer_list<std::pair<qreal, qreal>> points) const
    {
        QPolygonF polygon;
        for (const auto& [x, y] : points)
            polygon << At(x, y);
        return polygon;
    }

private:
    qreal Snap(qreal units, int origin) const { return origin + std::round(units * m_scale); }

    QPoint m_origin;
    qreal m_scale;
    long m_pen;
};

void OutlinedRect(QPainter& p, const CIconGrid& g, const QRectF& rect, const QBrush& fill)
{
    p.setPen(g.Stroke(kInk));
    p.setBrush(fill);
    p.drawRect(rect);
}

QLinearGradient Gradient(QPointF from, QPointF to)
{
    QLinearGradient gradient(from, to);
    gradient.setColorAt(0, kPaper);
    gradient.setColorAt(1, kAccent);
    return gradient;
}

// An entry field: a white box across the middle of the icon.
QRectF Field(QPainter& p, const CIconGrid& g)
{
    const QRectF box = g.Outline(1, 4, 14, 11);
    OutlinedRect(p, g, box, kPaper);
    return box;
}

// The axes of a chart, with the curve drawn over them.
void Chart(QPainter& p, const CIconGrid& g, const QPainterPath& curve, const QColor& color)
{
    p.setPen(g.Stroke(kInk));
    p.drawPolyline(g.Polygon({{1, 1}, {1, 14}, {14, 14}}));
    p.setPen(g.RoundStroke(color, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawPath(curve);
}

void DrawPointer(QPainter& p, const CIconGrid& g)
{
    p.setPen(g.Stroke(kInk));
    p.setBrush(kPaper);
    p.drawPolygon(g.Polygon({{4, 1}, {4, 13}, {7, 10}, {9, 14.5}, {11, 13.5}, {9, 9.5}, {13, 9.5}}));
}

void DrawRectangle(QPainter& p, const CIconGrid& g)
{
    OutlinedRect(p, g, g.Outline(1, 3, 14, 12), kTint);
}

void DrawLine(QPainter& p, const CIconGrid& g)
{
    p.setPen(g.RoundStroke(kInk, 1.5));
    p.drawLine(g.At(2, 13), g.At(13, 2));
}

void DrawEllipse(QPainter& p, const CIconGrid& g)
{
    p.setPen(g.Stroke(kInk));
    p.setBrush(kTint);
    p.drawEllipse(g.Outline(1, 3, 14, 12));
}

void DrawText(QPainter& p, const CIconGrid& g)
{
    p.fillRect(g.Area(3, 2, 12, 3), kInk);
    p.fillRect(g.Area(7, 3, 8, 13), kInk);
}

void DrawPicture(QPainter& p, const CIconGrid& g)
{
    OutlinedRect(p, g, g.Outline(1, 2, 14, 13), kSky);
    p.setPen(Qt::NoPen);
    p.setBrush(kGreen);
    p.drawPolygon(g.Polygon({{1.5, 12.5}, {5.5, 7}, {8.5, 10.5}, {10.5, 8.5}, {13.5, 12.5}}));
    p.setBrush(kSun);
    p.drawEllipse(g.Area(9.5, 3.5, 11.5, 5.5));
}

void DrawGradientRectangle(QPainter& p, const CIconGrid& g)
{
    const QRectF rect = g.Outline(1, 3, 14, 12);
    OutlinedRect(p, g, rect, Gradient(rect.topLeft(), rect.topRight()));
}

void DrawGradientEllipse(QPainter& p, const CIconGrid& g)
{
    const QRectF rect = g.Outline(1, 3, 14, 12);
    p.setPen(g.Stroke(kInk));
    p.setBrush(Gradient(rect.topLeft(), rect.bottomRight()));
    p.drawEllipse(rect);
}

void DrawGradientTriangle(QPainter& p, const CIconGrid& g)
{
    const QPolygonF triangle = g.Polygon({{7.5, 1.5}, {14, 13}, {1, 13}});
    p.setPen(g.Stroke(kInk));
    p.setBrush(Gradient(triangle.boundingRect().topLeft(), triangle.boundingRect().bottomLeft()));
    p.drawPolygon(triangle);
}

void DrawTimer(QPainter& p, const CIconGrid& g)
{
    p.fillRect(g.Area(6, 0, 9, 1), kInk);
    p.setPen(g.Stroke(kInk));
    p.setBrush(kPaper);
    p.drawEllipse(g.Outline(1.5, 2.5, 13.5, 14.5));
    p.setPen(g.RoundStroke(kAccent));
    p.drawPolyline(g.Polygon({{7.5, 5}, {7.5, 8.5}, {10.5, 8.5}}));
}

void DrawDataInput(QPainter& p, const CIconGrid& g)
{
    Field(p, g);
    // A "#", as the widget shows "##" on the canvas.
    p.setPen(g.Stroke(kAccent));
    for (const qreal offset : {0.0, 3.0}) {
        p.drawLine(g.At(6 + offset, 5.5), g.At(6 + offset, 9.5));
        p.drawLine(g.At(4, 6 + offset), g.At(11, 6 + offset));
    }
}

void DrawTextInput(QPainter& p, const CIconGrid& g)
{
    Field(p, g);
    p.fillRect(g.Area(3, 7, 8, 8), kShade);
    p.setPen(g.Stroke(kAccent));
    p.drawLine(g.At(10, 6), g.At(10, 9));
}

void DrawButton(QPainter& p, const CIconGrid& g)
{
    // Raised: lit along its top and left, shaded along its bottom and right, inside its outline.
    p.fillRect(g.Area(1, 4, 14, 11), kFace);
    p.setPen(g.Stroke(kPaper));
    p.drawPolyline(g.Polygon({{2, 10}, {2, 5}, {13, 5}}));
    p.setPen(g.Stroke(kShade));
    p.drawPolyline(g.Polygon({{3, 10}, {13, 10}, {13, 6}}));
    OutlinedRect(p, g, g.Outline(1, 4, 14, 11), Qt::NoBrush);
    p.fillRect(g.Area(5, 7, 10, 7), kInk);
}

void DrawCheckbox(QPainter& p, const CIconGrid& g)
{
    OutlinedRect(p, g, g.Outline(2, 2, 13, 13), kPaper);
    p.setPen(g.RoundStroke(kAccent, 1.5));
    p.drawPolyline(g.Polygon({{4.5, 7.5}, {6.5, 9.5}, {10.5, 5}}));
}

void DrawCombobox(QPainter& p, const CIconGrid& g)
{
    const QRectF box = Field(p, g);
    OutlinedRect(p, g, QRectF(g.At(9, 4), box.bottomRight()), kFace);
    p.setPen(Qt::NoPen);
    p.setBrush(kInk);
    p.drawPolygon(g.Polygon({{10, 6.5}, {13, 6.5}, {11.5, 8.5}}));
}

void DrawAlarmWindow(QPainter& p, const CIconGrid& g)
{
    p.setPen(g.Stroke(kInk));
    p.setBrush(kAmber);
    p.drawPolygon(g.Polygon({{7.5, 1}, {14.5, 14}, {0.5, 14}}));
    p.fillRect(g.Area(7, 5, 8, 9), kInk);
    p.fillRect(g.Area(7, 11, 8, 12), kInk);
}

void DrawRealtimeCurve(QPainter& p, const CIconGrid& g)
{
    QPainterPath wave(g.At(3, 10));
    wave.cubicTo(g.At(5, 2), g.At(7, 2), g.At(8.5, 8));
    wave.cubicTo(g.At(10, 13), g.At(12, 10), g.At(13.5, 4));
    Chart(p, g, wave, kGreen);
}

void DrawHistoryCurve(QPainter& p, const CIconGrid& g)
{
    QPainterPath steps;
    steps.addPolygon(g.Polygon({{3, 11}, {5, 11}, {5, 7}, {8, 7}, {8, 9}, {11, 9}, {11, 4}, {13.5, 4}}));
    Chart(p, g, steps, kAccent);
}

void DrawVectorText(QPainter& p, const CIconGrid& g)
{
    p.setPen(g.RoundStroke(kInk, 1.5));
    p.drawPolyline(g.Polygon({{2.5, 13.5}, {7.5, 2}, {12.5, 13.5}}));
    p.drawLine(g.At(4.5, 9.5), g.At(10.5, 9.5));
    // The nodes of the outline, as a drawing program shows them.
    for (const auto& [x, y] : {std::pair{7.0, 1.5}, {2.0, 13.0}, {12.0, 13.0}})
        p.fillRect(g.Area(x, y, x + 1, y + 1), kAccent);
}

void DrawHistoryList(QPainter& p, const CIconGrid& g)
{
    p.fillRect(g.Area(1, 2, 14, 13), kPaper);
    p.fillRect(g.Area(1, 2, 14, 5), kFace);
    p.setPen(g.Stroke(kShade));
    p.drawLine(g.At(2, 8), g.At(13, 8));
    p.drawLine(g.At(2, 11), g.At(13, 11));
    p.drawLine(g.At(6, 6), g.At(6, 12));
    OutlinedRect(p, g, g.Outline(1, 2, 14, 13), Qt::NoBrush);
}

using Drawing = void (*)(QPainter&, const CIconGrid&);

// Draws its icon afresh at every size and mode asked for.
class CDrawnIconEngine final : public QIconEngine {
public:
    explicit CDrawnIconEngine(Drawing drawing) : m_drawing(drawing) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        QRect square(0, 0, side, side);
        square.moveCenter(rect.center());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled)
            painter->setOpacity(0.4);
        m_drawing(*painter, CIconGrid(square));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, image.rect(), mode, state);
        painter.end();
        return QPixmap::fromImage(std::move(image));
    }

    QIconEngine* clone() const override { return new CDrawnIconEngine(m_drawing); }

private:
    Drawing m_drawing;
};

constexpr std::pair<std::string_view, Drawing> kKindDrawings[] = {
    {"rectangle", DrawRectangle},
    {"line", DrawLine},
    {"ellipse", DrawEllipse},
    {"text", DrawText},
    {"picture", DrawPicture},
    {"gradrectangle", DrawGradientRectangle},
    {"gradellipse", DrawGradientEllipse},
    {"gradtriangle", DrawGradientTriangle},
    {"timer", DrawTimer},
    {"numinput", DrawDataInput},
    {"textinput", DrawTextInput},
    {"button", DrawButton},
    {"checkbox", DrawCheckbox},
    {"combobox", DrawCombobox},
    {"alarmwnd", DrawAlarmWindow},
    {"curve", DrawRealtimeCurve},
    {"hiscurve", DrawHistoryCurve},
    {"bmptext", DrawVectorText},
    {"hislist", DrawHistoryList},
};

} // namespace

QIcon BuiltinKindIcon(std::string_view classKey)
{
    const auto* found = std::find_if(std::begin(kKindDrawings), std::end(kKindDrawings),
                                     [classKey](const auto& entry) { return entry.first == classKey; });
    return found == std::end(kKindDrawings) ? QIcon() : QIcon(new CDrawnIconEngine(found->second));
}

QIcon PointerIcon()
{
    return QIcon(new CDrawnIconEngine(DrawPointer));
}

QIcon BlankIcon()
{
    return QIcon(new CDrawnIconEngine([](QPainter&, const CIconGrid&) {}));
}
