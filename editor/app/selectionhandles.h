#pragma once

#include <QImage>

#include <optional>

#include <cstdint>

class CCanvasMapping;
class CCanvasSelection;
struct CDocumentChange;
class QPainter;
class QRegion;

// The handles of a canvas's selection, in client coordinates. Those of a few widgets are drawn
// wherever the canvas repaints. Those of a large selection are drawn once into an image of the
// canvas and laid over the canvas from it, until the selection, a selected widget's
// rectangle, the zoom or the canvas's size changes: a band over thousands of widgets draws their
// tens of thousands of squares once, and a drag whose outlines follow the mouse above them does
// not draw them again at every move. The squares are solid and opaque and the rest of the image
// is clear, so laying it over the canvas sets the very pixels that drawing them there would.
class CSelectionHandles {
public:
    // maxImagePixels: a canvas larger than this, zoomed in on a large window, draws the handles
    // wherever it repaints rather than keep so large an image.
    CSelectionHandles(const CCanvasSelection& selection, const CCanvasMapping& mapping,
                      std::int64_t maxImagePixels);

    // The selection or the zoom changed.
    void Invalidate() { m_upToDate = false; }
    // The document changed: the handles are drawn anew, or, when the change moved every selected
    // widget and nothing else by the same step, as a drag or an arrow key does, the image shifts.
    void DocumentChanged(const CDocumentChange& change);
    // Draws the handles on a painter of the canvas, clipped to the region.
    void Paint(QPainter& painter, const QRegion& region);

private:
    // The step in client pixels by which the change moved every selected widget and nothing
    // else; none for any other change, or where the view's zoom makes steps uneven.
    std::optional<QPoint> CommonStep(const CDocumentChange& change) const;
    // Draws every handle; into the image's own pixels where it is given and the painter on it
    // maps whole pixels. Returns the area the squares drawn into the pixels cover, unclipped,
    // or the whole image where the painter drew.
    QRect Draw(QPainter& painter, QImage* image) const;

    const CCanvasSelection& m_selection;
    const CCanvasMapping& m_mapping;
    const std::int64_t m_maxImagePixels;
    // The canvas with a margin; made for the first large selection and kept, as the canvas keeps
    // its copy of the document, until the canvas's size changes.
    QImage m_image;
    bool m_upToDate = false;
    QRect m_drawn;  // what the squares cover in the image, where they stand now
    QPoint m_shift; // where in the image the canvas's origin stands
};
