#pragma once

#include <QObject>
#include <QPoint>

class CTamloView;
class QScrollArea;

// The view zoom of one canvas in its scroll area: steps in and out around a point that stays
// where it is on screen, the mouse's for Ctrl+wheel, else the middle of what is shown; fits the
// whole window into the area; shows it at 100 %.
class CCanvasZoomer : public QObject {
    Q_OBJECT
public:
    CCanvasZoomer(QScrollArea& scroller, CTamloView& view);

    void ZoomIn();
    void ZoomOut();
    void ZoomToActualSize();
    void FitWindow();
    // Zooms so that the window point shown at this point of the scroll area's viewport stays there.
    void ZoomAround(int percent, QPoint viewportPoint);

protected:
    // Ctrl+wheel over the canvas or one of its controls.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPoint ViewportCentre() const;

    QScrollArea& m_scroller;
    CTamloView& m_view;
    int m_wheelTurn = 0; // eighths of a degree not yet turned into a step, for fine wheels
};
