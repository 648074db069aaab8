#pragma once

#include "base/hmitypes.h"

#include <array>
#include <cstdint>

// How a canvas shows its window at the view's zoom: a client pixel shows the window point under
// its centre, as the scaled painter draws it, and a window point stands at the first pixel that
// shows it, so that hit tests meet what is drawn at every zoom. The
// zoom changes what the user sees only; the widgets' rectangles, and so the saved window, never
// change with it. Everything that converts between the two, painting, hit tests, drags, handles
// and guides, goes through this one mapping.
class CCanvasMapping {
public:
    // The zooms the user steps through, in percent.
    static constexpr std::array<int, 11> kSteps{25, 33, 50, 67, 75, 100, 125, 150, 200, 300, 400};
    static constexpr int kMinPercent = kSteps.front();
    static constexpr int kMaxPercent = kSteps.back();

    int Percent() const { return m_percent; }
    double Scale() const { return m_percent / 100.0; }
    // Held to the smallest and the largest step.
    void SetPercent(int percent);

    HmiPoint DocToClient(HmiPoint point) const;
    HmiPoint ClientToDoc(HmiPoint point) const;
    // Rectangles grow outward: the client pixels that show any part of a window rectangle, and
    // the window pixels any part of which a client rectangle shows.
    HmiRect DocRectToClient(const HmiRect& rect) const;
    HmiRect ClientRectToDoc(const HmiRect& rect) const;
    // A length of the window in client pixels, rounded up: room that must not fall short.
    int ClientLength(int docLength) const;

    // The next step above or below a zoom; the zoom itself at the end of the steps.
    static int StepIn(int percent);
    static int StepOut(int percent);
    // The largest zoom at which a window of this size fits into the room, held to the steps'
    // range; 100 for a window without size.
    static int FitPercent(HmiPoint windowSize, HmiPoint room);

private:
    std::int32_t DocToClient(std::int32_t doc) const;
    std::int32_t ClientToDoc(std::int32_t client) const;

    int m_percent = 100;
};
