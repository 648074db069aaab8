#include "pixelruns.h"

#include <QPainter>

void CPixelRuns::Paint(QPainter& painter, const QColor& color, bool wholePixels) const
{
    if (m_runs.empty())
        return;
    if (wholePixels) {
        // Filled without an outline, as fillRect fills; pen and brush are set only when they
        // change, as runs of one colour follow each other.
        if (painter.pen().style() != Qt::NoPen)
            painter.setPen(Qt::NoPen);
        if (painter.brush().style() != Qt::SolidPattern || painter.brush().color() != color)
            painter.setBrush(color);
        painter.drawRects(m_runs.data(), int(m_runs.size()));
        return;
    }
    std::vector<QPoint> points;
    for (const QRect& run : m_runs)
        for (int y = run.top(); y <= run.bottom(); ++y)
            for (int x = run.left(); x <= run.right(); ++x)
                points.emplace_back(x, y);
    QPen pen(color, 1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.drawPoints(points.data(), int(points.size()));
}
