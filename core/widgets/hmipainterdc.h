#pragma once

#include "hmidc.h"

#include <QRegion>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

class QPainter;
class QRect;

// Drawings kept for CHmiPainterDC::DrawReusable under their keys, and the texts it draws, for a
// canvas that paints the same widgets again and again. Bounded: a drawing larger than a set
// size is never kept, and all of them with their keys take at most maxBytes.
class CHmiDrawingCache {
public:
    static constexpr std::size_t kDefaultMaxBytes = std::size_t(64) << 20;

    explicit CHmiDrawingCache(std::size_t maxBytes = kDefaultMaxBytes);
    ~CHmiDrawingCache();
    CHmiDrawingCache(const CHmiDrawingCache&) = delete;
    CHmiDrawingCache& operator=(const CHmiDrawingCache&) = delete;

    // What the kept drawings take, in bytes.
    std::size_t Bytes() const;

    struct Drawing; // what is kept of one drawing

private:
    friend class CHmiPainterDC;
    class Store;
    std::unique_ptr<Store> m_store;
};

// The drawing target over a QPainter, with antialiasing off and the device-context pixel
// rules of CHmiDC: the canvas creates one on its own painter, and CHmiImageDC on an image.
// One-pixel lines are rasterised here rather than by Qt, so that the end point is left out
// and dotted and dashed patterns run along the line as on the panel. The visible area is the
// painter's device, clip and transformation as they stand when the target is made. With a
// cache, reusable drawings and texts drawn before are painted from the pixels kept there wherever
// the painter maps whole pixels; they are opaque or absent pixel by pixel, so their copy paints
// the same pixels. A text's pixels are the same wherever its box stands, so they are kept by its
// look and box size alone.
class CHmiPainterDC : public CHmiStateDC {
public:
    explicit CHmiPainterDC(QPainter& painter, CHmiDrawingCache* cache = nullptr);
    // A target that paints part of a larger device through a layer: device is that device in
    // the layer's pixels, so that what is drawn depends on where it stands on the device, not on
    // where the layer begins.
    CHmiPainterDC(QPainter& painter, CHmiDrawingCache* cache, const QRect& device);

    HmiPen SelectPen(const HmiPen& pen) override;
    HmiPoint MoveTo(HmiPoint point) override;
    void LineTo(HmiPoint point) override;
    void PolylineTo(std::span<const HmiPoint> points) override;
    void ThinLines(std::span<const HmiThinLine> lines) override;
    void Rectangle(const HmiRect& rect) override;
    void Ellipse(const HmiRect& rect) override;
    void Polygon(std::span<const HmiPoint> points) override;
    void FillSolidRect(const HmiRect& rect, HmiColor color) override;
    void DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format) override;
    HmiPoint GetTextExtent(std::string_view text) override;
    bool DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent) override;
    void DrawReusable(const std::string& key, const HmiRect& box, const std::function<void(CHmiDC&)>& paint) override;
    HmiRect GetClipBox() const override;

protected:
    // Whether a pixel set in the painter's coordinates is exactly one pixel of its device.
    bool PaintsWholeDevicePixels() const;

private:
    // A line from one point up to, not including, the other, in the current pen.
    void DrawPenLine(HmiPoint from, HmiPoint to);
    void DrawThinLine(HmiPoint from, HmiPoint to);
    void DrawTextAnew(std::string_view text, const QRect& box, std::uint32_t format);
    // A stretched picture that the clip cuts, with the pixels it has drawn uncut.
    void DrawCutPicture(const QRect& target, const QImage& shown);
    // Draws into a layer of the device's pixels in reach, with the painter's transformation, and
    // lays down the part seen through the painter's clip; false when no layer could be made.
    bool DrawInLayer(const QRect& reach, const QRect& seen, const std::function<void(QPainter&)>& draw);
    // The largest drawing kept, in pixels, unless a kind of drawing asks for more.
    static constexpr std::int64_t kMaxKeptPixels = std::int64_t(1) << 20;
    // The drawing kept under the key for paint's drawing of the area, kept now if the key has
    // come before, its pixels lie within inner and the area holds no more than maxPixels; null
    // when there is none, and the caller paints anew.
    const CHmiDrawingCache::Drawing* Kept(const std::string& key, const HmiRect& area, const HmiRect& inner,
                                          const std::function<void(CHmiDC&)>& paint,
                                          std::int64_t maxPixels = kMaxKeptPixels);
    void ApplyPenAndBrush();

    QPainter& m_painter;
    CHmiDrawingCache* m_cache;
    std::uint64_t m_paint; // which paint this is, from the first target made on
    QRect m_device; // the device in its own pixels
    HmiRect m_deviceArea; // the device in the painter's coordinates
    HmiRect m_clipBox;
    std::optional<QRegion> m_clip; // in the painter's coordinates, when it clips
    int m_patternPhase = 0; // where a dotted line's pattern stands, carried from segment to segment
};
