#pragma once

#include "hmidc.h"
#include "project/fileio.h"

#include <memory>

// An off-screen drawing target: an image of a fixed size, white to begin with, that can be
// read back pixel by pixel (the bitmap text encodes its rendering this way) or saved as PNG.
// Text needs a running QGuiApplication for fonts: without one, text is left out and measures
// nothing, and everything else is drawn.
class CHmiImageDC : public CHmiDC {
public:
    CHmiImageDC(int width, int height);
    ~CHmiImageDC() override;

    // Whether text can be drawn: fonts need a running QGuiApplication.
    static bool CanDrawText();

    int Width() const;
    int Height() const;
    // The colour at a pixel as 0x00BBGGRR; white outside the image.
    HmiColor GetPixel(int x, int y) const;
    FileResult SavePng(const std::string& path) const;

    HmiPen SelectPen(const HmiPen& pen) override;
    HmiBrush SelectBrush(const HmiBrush& brush) override;
    HmiFont SelectFont(const HmiFont& font) override;
    HmiColor SetTextColor(HmiColor color) override;
    HmiColor SetBkColor(HmiColor color) override;
    HmiBkMode SetBkMode(HmiBkMode mode) override;
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
    HmiRect GetClipBox() const override;

private:
    struct Canvas;
    std::unique_ptr<Canvas> m_canvas;
};
