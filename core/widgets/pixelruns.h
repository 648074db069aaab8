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
    void Add(const QRect& run)
    {
        if (!m_runs.empty() && Joins(m_runs.back(), run))
            m_runs.back() |= run;
        else
            m_runs.push_back(run);
    }

    // Each run as one filled rectangle where a pixel of the painter is one of its device;
    // otherwise each pixel as a point, which the painter maps as it maps a point.
    void Paint(QPainter& painter, const QColor& color, bool wholePixels) const;

private:
    static bool Joins(const QRect& last, const QRect& run)
    {
        const bool sameColumn = run.width() == 1 && last.width() == 1 && run.left() == last.left();
        const bool sameRow = run.height() == 1 && last.height() == 1 && run.top() == last.top();
        return (sameColumn && run.top() <= last.bottom() + 1 && last.top() <= run.bottom() + 1) ||
               (sameRow && run.left() <= last.right() + 1 && last.left() <= run.right() + 1);
    }

    std::vector<QRect> m_runs;
};
