#pragma once

#include <QRect>

#include <vector>

class QColor;
class QPainter;

// The pixels of one-pixel lines in one colour, gathered into runs along a row or a column, so
// that a painter fills each run at once rather than setting its pixels one by one.
class CPixelRuns {
public:
    // A run that meets or overlaps the last one along the same row or column joins it: pixels
    // that follow each other along a line, and lines that meet end to end.
    void Add(const QRect& run);

    // Each run as one filled rectangle where a pixel of the painter is one of its device;
    // otherwise each pixel as a point, which the painter maps as it maps a point.
    void Paint(QPainter& painter, const QColor& color, bool wholePixels) const;

private:
    std::vector<QRect> m_runs;
};
