#include "hmiimagedc.h"

#include "hmipainterdc.h"
#include "pngencoder.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <optional>

struct CHmiImageDC::Canvas {
    Canvas(int width, int height) : image(std::max(width, 0), std::max(height, 0), QImage::Format_RGB32)
    {
        image.fill(Qt::white);
        // An empty image still gets an active painter, so that drawing on it is quietly lost.
        painter.begin(image.isNull() ? &scratch : &image);
        dc.emplace(painter);
    }

    QImage image;
    QImage scratch{1, 1, QImage::Format_RGB32};
    QPainter painter;
    std::optional<CHmiPainterDC> dc;
};

CHmiImageDC::CHmiImageDC(int width, int height) : m_canvas(std::make_unique<Canvas>(width, height)) {}

CHmiImageDC::~CHmiImageDC() = default;

bool CHmiImageDC::CanDrawText()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

int CHmiImageDC::Width() const
{
    return m_canvas->image.width();
}

int CHmiImageDC::Height() const
{
    return m_canvas->image.height();
}

HmiColor CHmiImageDC::GetPixel(int x, int y) const
{
    if (!m_canvas->image.valid(x, y))
        return 0x00FFFFFF;
    const QRgb pixel = m_canvas->image.pixel(x, y);
    return HmiRgb(std::uint8_t(qRed(pixel)), std::uint8_t(qGreen(pixel)), std::uint8_t(qBlue(pixel)));
}

FileResult CHmiImageDC::SavePng(const std::string& path) const
{
    // Encoded in memory and then saved whole, so that a full disk leaves an older image as it was.
    // The image's own 32-bit pixels are encoded as they stand, with no converted copy.
    const QImage& image = m_canvas->image;
    const std::string png = image.isNull() ? std::string()
                                           : EncodeRgbPng({reinterpret_cast<const std::uint32_t*>(image.constBits()),
                                                           image.width(), image.height(),
                                                           image.bytesPerLine() / qsizetype(sizeof(std::uint32_t))});
    if (png.empty())
        return FileResult::Failure("Cannot write the image " + path);
    return WriteFileAtomically(path, png);
}

// Everything else is the painter's, on the image.
HmiPen CHmiImageDC::SelectPen(const HmiPen& pen) { return m_canvas->dc->SelectPen(pen); }
HmiBrush CHmiImageDC::SelectBrush(const HmiBrush& brush) { return m_canvas->dc->SelectBrush(brush); }
HmiFont CHmiImageDC::SelectFont(const HmiFont& font) { return m_canvas->dc->SelectFont(font); }
HmiColor CHmiImageDC::SetTextColor(HmiColor color) { return m_canvas->dc->SetTextColor(color); }
HmiColor CHmiImageDC::SetBkColor(HmiColor color) { return m_canvas->dc->SetBkColor(color); }
HmiBkMode CHmiImageDC::SetBkMode(HmiBkMode mode) { return m_canvas->dc->SetBkMode(mode); }
HmiPoint CHmiImageDC::MoveTo(HmiPoint point) { return m_canvas->dc->MoveTo(point); }
void CHmiImageDC::LineTo(HmiPoint point) { m_canvas->dc->LineTo(point); }
void CHmiImageDC::PolylineTo(std::span<const HmiPoint> points) { m_canvas->dc->PolylineTo(points); }
void CHmiImageDC::ThinLines(std::span<const HmiThinLine> lines) { m_canvas->dc->ThinLines(lines); }
void CHmiImageDC::Rectangle(const HmiRect& rect) { m_canvas->dc->Rectangle(rect); }
void CHmiImageDC::Ellipse(const HmiRect& rect) { m_canvas->dc->Ellipse(rect); }
void CHmiImageDC::Polygon(std::span<const HmiPoint> points) { m_canvas->dc->Polygon(points); }
void CHmiImageDC::FillSolidRect(const HmiRect& rect, HmiColor color) { m_canvas->dc->FillSolidRect(rect, color); }
void CHmiImageDC::DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format)
{
    if (CanDrawText())
        m_canvas->dc->DrawText(text, rect, format);
}
HmiPoint CHmiImageDC::GetTextExtent(std::string_view text)
{
    return CanDrawText() ? m_canvas->dc->GetTextExtent(text) : HmiPoint{};
}
HmiRect CHmiImageDC::GetClipBox() const { return m_canvas->dc->GetClipBox(); }
bool CHmiImageDC::DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent)
{
    return m_canvas->dc->DrawPictureFile(path, rect, transparent);
}
