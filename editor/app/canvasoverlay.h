#pragma once

#include <QWidget>

#include <functional>

class QPainter;
class QRegion;

// A transparent layer over the whole canvas, above its live controls, for what must show on
// top of everything: the selection's handles and the drag's outlines. The mouse passes through
// it to the canvas and the controls. It paints wherever the canvas repaints, and only there.
// The canvas asks its repaints of the layer: Qt repaints what lies beneath a transparent widget
// with it. Had the canvas been asked too, Qt would paint it on its own first, and then again
// beneath the layer.
class CCanvasOverlay : public QWidget {
public:
    using Paint = std::function<void(QPainter& painter, const QRegion& region)>;

    CCanvasOverlay(QWidget& canvas, Paint paint);

protected:
    // Follows the canvas's size, and stays above controls the canvas gains later.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Paint m_paint;
};
