// Pixels painted by the real painter target on an image.

#include "tests/support/clippeddrawing.h"
#include "tests/support/tempdir.h"
#include "widgets/hmiimagedc.h"
#include "widgets/hmipainterdc.h"
#include "widgets/pngencoder.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <filesystem>
#include <functional>
#include <random>
#include <set>
#include <sys/stat.h>

namespace {

constexpr HmiColor kWhite = 0xFFFFFF;
constexpr HmiColor kBlack = 0x000000;
constexpr HmiColor kRed = 0x0000FF;
constexpr HmiColor kBlue = 0xFF0000;

// The pixels of a width x height area where the rule holds, as "x,y" texts so that failures show
// where.
std::set<std::string> PixelsWhere(int width, int height, const std::function<bool(int x, int y)>& rule)
{
    std::set<std::string> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            if (rule(x, y))
                pixels.insert(std::to_string(x) + "," + std::to_string(y));
    return pixels;
}

std::set<std::string> PixelsOf(const CHmiImageDC& dc, HmiColor color)
{
    return PixelsWhere(dc.Width(), dc.Height(), [&](int x, int y) { return dc.GetPixel(x, y) == color; });
}

std::set<std::string> Span(int x0, int y0, int x1, int y1)
{
    return PixelsWhere(x1 + 1, y1 + 1, [=](int x, int y) { return x >= x0 && y >= y0; });
}

std::set<HmiColor> ColoursIn(const CHmiImageDC& dc)
{
    std::set<HmiColor> colours;
    for (int y = 0; y < dc.Height(); ++y)
        for (int x = 0; x < dc.Width(); ++x)
            colours.insert(dc.GetPixel(x, y));
    return colours;
}

// The smallest rectangle, bounds included, that holds every pixel of one colour.
HmiRect ExtentOf(const CHmiImageDC& dc, HmiColor color)
{
    HmiRect extent{INT_MAX, INT_MAX, INT_MIN, INT_MIN};
    for (int y = 0; y < dc.Height(); ++y)
        for (int x = 0; x < dc.Width(); ++x)
            if (dc.GetPixel(x, y) == color)
                extent = {std::min(extent.left, x), std::min(extent.top, y), std::max(extent.right, x),
                          std::max(extent.bottom, y)};
    return extent;
}

void DrawLine(CHmiDC& dc, HmiPoint from, HmiPoint to)
{
    dc.MoveTo(from);
    dc.LineTo(to);
}

} // namespace

TEST(PainterDC, RectangleAndEllipseCoverLeftToRightMinusOneOutlineIncluded)
{
    for (const bool hollow : {false, true})
        for (const HmiRect rect : {HmiRect{2, 3, 6, 7}, HmiRect{6, 7, 2, 3}}) {
            CHmiImageDC dc(10, 10);
            dc.SelectBrush({hollow, kRed});
            dc.Rectangle(rect);
            EXPECT_EQ(PixelsOf(dc, kRed), hollow ? std::set<std::string>{} : Span(3, 4, 4, 5));
            EXPECT_EQ(ExtentOf(dc, kBlack), (HmiRect{2, 3, 5, 6}));
            EXPECT_EQ(PixelsOf(dc, kBlack).size(), 12u) << "the outline is one pixel wide around the fill";
        }

    CHmiImageDC ellipse(14, 14);
    ellipse.SelectBrush({false, kRed});
    ellipse.Ellipse({1, 1, 11, 11});
    EXPECT_EQ(ellipse.GetPixel(6, 6), kRed);
    EXPECT_EQ(ExtentOf(ellipse, kBlack), (HmiRect{1, 1, 10, 10})) << "the outline reaches right - 1 and bottom - 1";
}

// Every short line in every direction, drawn alone or among others at once, paints pixel i of
// its steps (as many as its longer side) at from + i * (to - from) / steps, rounded half away
// from zero, up to but not including its end, also where the image cuts it off.
TEST(PainterDC, ThinLinesPaintTheRoundedPixelsUpToTheirEndInEveryDirection)
{
    constexpr int kSize = 16;
    const HmiPoint from{7, 7};
    for (int x = from.x - 12; x <= from.x + 12; ++x)
        for (int y = from.y - 12; y <= from.y + 12; ++y) {
            const int dx = x - from.x, dy = y - from.y, steps = std::max(std::abs(dx), std::abs(dy));
            const auto expected = PixelsWhere(kSize, kSize, [&](int px, int py) {
                for (int i = 0; i < steps; ++i)
                    if (px == from.x + std::lround(double(i) * dx / steps) && py == from.y + std::lround(double(i) * dy / steps))
                        return true;
                return false;
            });
            CHmiImageDC alone(kSize, kSize);
            alone.SelectPen({HmiPenStyle::Solid, x % 2, kBlack}); // a pen of width 0 paints one pixel wide
            DrawLine(alone, from, {x, y});
            EXPECT_EQ(PixelsOf(alone, kBlack), expected) << "to " << x << "," << y;
            CHmiImageDC together(kSize, kSize);
            const HmiThinLine lines[] = {{{0, y}, {kSize, x}, kRed}, {from, {x, y}, kBlack}};
            together.ThinLines(lines);
            EXPECT_EQ(PixelsOf(together, kBlack), expected) << "among others, to " << x << "," << y;
        }
    CHmiImageDC wide(12, 12);
    wide.SelectPen({HmiPenStyle::Solid, 3, kBlack});
    DrawLine(wide, {2, 6}, {9, 6});
    EXPECT_EQ(std::pair(ExtentOf(wide, kBlack).top, ExtentOf(wide, kBlack).bottom), std::pair(5, 7));
}

// Lines handed over at once paint what they paint one by one, later ones over earlier ones,
// also on a painter that is moved or scaled, and leave the pen and position as those would.
TEST(PainterDC, ThinLinesAndPolylinesAtOnceEqualThemDrawnOneByOne)
{
    std::vector<HmiThinLine> fan;
    std::vector<HmiThinLine> columns; // up and down, of every length, some on the same place
    std::vector<HmiPoint> zigzag; // through the fan's ends, in and out of the image
    for (int i = 0; i < 40; ++i) {
        fan.push_back({{20, 15}, {i * 3 - 20, (i * 7) % 50 - 10}, HmiRgb(std::uint8_t(i * 6), 90, std::uint8_t(i))});
        zigzag.push_back(fan.back().to);
        const int x = (i * 7) % 56 - 3;
        columns.push_back({{x, (i * 11) % 46 - 3}, {x, (i * 17) % 46 - 3}, HmiRgb(40, std::uint8_t(i * 6), 200)});
    }
    const HmiPen dotted{HmiPenStyle::Dot, 1, kBlue};
    const HmiPen curve{HmiPenStyle::Solid, 0, kRed};
    for (const QTransform& transform : {QTransform(), QTransform::fromTranslate(3, -2), QTransform::fromScale(2, 2)})
        for (const bool clipped : {false, true}) {
            QImage oneByOne(50, 40, QImage::Format_RGB32);
            oneByOne.fill(Qt::white);
            QImage atOnce = oneByOne;
            const auto paint = [&](QImage& image, const std::function<void(CHmiPainterDC&)>& draw) {
                QPainter painter(&image);
                painter.setTransform(transform);
                if (clipped)
                    painter.setClipRect(7, 3, 30, 25);
                CHmiPainterDC dc(painter);
                draw(dc);
            };
            paint(oneByOne, [&](CHmiPainterDC& dc) {
                for (const auto* lines : {&fan, &columns})
                    for (const HmiThinLine& line : *lines) {
                        dc.SelectPen({HmiPenStyle::Solid, 1, line.color});
                        DrawLine(dc, line.from, line.to);
                    }
                dc.SelectPen(curve);
                dc.MoveTo(zigzag.front());
                for (const HmiPoint& point : zigzag)
                    dc.LineTo(point);
                dc.SelectPen(dotted);
                dc.LineTo({0, 39});
            });
            paint(atOnce, [&](CHmiPainterDC& dc) {
                dc.SelectPen(dotted);
                dc.ThinLines(fan);
                dc.ThinLines(columns);
                dc.SelectPen(curve);
                dc.MoveTo(zigzag.front());
                dc.PolylineTo(zigzag);
                dc.SelectPen(dotted);
                dc.LineTo({0, 39});
            });
            EXPECT_TRUE(atOnce == oneByOne) << transform.dx() << "," << transform.m11() << (clipped ? ", clipped" : "");
        }
}

TEST(PainterDC, DottedPensFillTheirGapsWithTheBackgroundWhenOpaque)
{
    CHmiImageDC dc(14, 4);
    dc.SelectPen({HmiPenStyle::Dot, 1, kBlack});
    dc.SetBkMode(HmiBkMode::Opaque);
    dc.SetBkColor(kBlue);
    DrawLine(dc, {0, 2}, {13, 2});
    EXPECT_EQ(PixelsOf(dc, kBlue), (std::set<std::string>{"3,2", "4,2", "5,2", "9,2", "10,2", "11,2"}));
}

TEST(PainterDC, TextIsTwoColouredWrapsAlignsAndFillsItsBackgroundWhenOpaque)
{
    CHmiImageDC wrapped(60, 60);
    wrapped.SelectFont({"DejaVu Sans", -12, 400});
    wrapped.SetBkMode(HmiBkMode::Transparent);
    wrapped.DrawText("wide words wrap", {0, 0, 60, 60}, HMI_DT_WORDBREAK);
    EXPECT_EQ(ColoursIn(wrapped), (std::set<HmiColor>{kWhite, kBlack})) << "no antialiasing";
    EXPECT_GT(ExtentOf(wrapped, kBlack).bottom, 20) << "the words go on a second line";

    auto rightmostInk = [](HmiColor ink, std::uint32_t format) {
        CHmiImageDC target(100, 20);
        target.SelectFont({"DejaVu Sans", -12, 400});
        target.SetBkColor(kBlue);
        target.DrawText("ab", {0, 0, 100, 20}, format | HMI_DT_SINGLELINE);
        return ExtentOf(target, ink).right;
    };
    EXPECT_LT(rightmostInk(kBlack, HMI_DT_LEFT), 30);
    EXPECT_GT(rightmostInk(kBlack, HMI_DT_RIGHT), 90);
    EXPECT_GT(rightmostInk(kBlue, HMI_DT_CENTER), 50) << "opaque text fills its background";
    EXPECT_LT(rightmostInk(kBlue, HMI_DT_CENTER), 70);
}

TEST(PainterDC, PicturesAreStretchedWithTheirTransparentColourLeftOut)
{
    TempDir dir;
    const uchar redGreenBlueBlack[] = {255, 0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0};
    const QImage picture(redGreenBlueBlack, 2, 2, 6, QImage::Format_RGB888);
    const std::string path = dir.Path("tiles.png");
    ASSERT_TRUE(picture.save(QString::fromStdString(path)));

    CHmiImageDC dc(6, 6);
    const HmiColor grey = 0x808080, green = 0x00FF00;
    dc.FillSolidRect({0, 0, 6, 6}, grey);
    ASSERT_TRUE(dc.DrawPictureFile(path, {1, 1, 5, 5}, &green));
    EXPECT_EQ(PixelsOf(dc, kRed), Span(1, 1, 2, 2));
    EXPECT_EQ(PixelsOf(dc, kBlue), Span(1, 3, 2, 4));
    EXPECT_EQ(PixelsOf(dc, kBlack), Span(3, 3, 4, 4)) << "stretched up to right - 1 and bottom - 1";
    EXPECT_EQ(PixelsOf(dc, grey).size(), 6u * 6u - 12u) << "the transparent colour leaves the target as it was";
}

TEST(PainterDC, PicturesAreReadFromRegularFilesWithinTheSizeLimit)
{
    TempDir dir;
    QImage red(2, 2, QImage::Format_RGB32);
    red.fill(Qt::red);
    // A picture followed by zeros up to a given size: its decoder stops at the picture's end.
    auto padded = [&](const char* name, std::uint64_t size) {
        const std::string path = dir.Path(name);
        EXPECT_TRUE(red.save(QString::fromStdString(path), "PNG"));
        std::filesystem::resize_file(path, size);
        return path;
    };
    CHmiImageDC atLimit(6, 6);
    EXPECT_TRUE(atLimit.DrawPictureFile(padded("limit.png", kMaxFileSize), {0, 0, 6, 6}, nullptr));
    EXPECT_EQ(ColoursIn(atLimit), std::set<HmiColor>{kRed});

    ASSERT_EQ(::mkfifo(dir.Path("fifo.png").c_str(), 0644), 0);
    for (const std::string& path : {padded("big.png", kMaxFileSize + 1), dir.Path("fifo.png"), std::string("/dev/zero"),
                                    dir.Path("none.png"), dir.Write("bad.png", "no picture")}) {
        CHmiImageDC refused(6, 6);
        EXPECT_FALSE(refused.DrawPictureFile(path, {0, 0, 6, 6}, nullptr)) << path;
        EXPECT_EQ(ColoursIn(refused), std::set<HmiColor>{kWhite}) << path;
    }
}

// Rows stored as they are and rows equal to the one above alike decode to the pixels given.
TEST(PainterDC, SavedPngsDecodeToTheirPixels)
{
    // 0xAARRGGBB rows, 5 values apart, of which 4 are the image: noise, a row equal to it, one that
    // differs in its last pixel, one in alpha alone. The fifth value of each row must not show.
    std::minstd_rand random(7);
    std::vector<std::uint32_t> values(5 * 4);
    for (std::uint32_t& value : values)
        value = std::uint32_t(random());
    std::copy_n(values.begin(), 5, values.begin() + 5);
    std::copy_n(values.begin(), 3, values.begin() + 10);
    for (int x = 0; x < 4; ++x)
        values[15 + x] = values[x] ^ 0xFF000000u;
    const std::string png = EncodeRgbPng({values.data(), 4, 4, 5});
    const QImage decoded = QImage::fromData(reinterpret_cast<const uchar*>(png.data()), qsizetype(png.size()));
    ASSERT_EQ(decoded.size(), QSize(4, 4));
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(decoded.pixel(x, y), values[std::size_t(5 * y + x)] | 0xFF000000u) << x << "," << y;
    EXPECT_TRUE(EncodeRgbPng({values.data(), 0, 4, 5}).empty());

    TempDir dir;
    CHmiImageDC drawn(1, 3);
    drawn.FillSolidRect({0, 1, 1, 2}, kRed);
    ASSERT_TRUE(drawn.SavePng(dir.Path("drawn.png")));
    EXPECT_EQ(QImage(QString::fromStdString(dir.Path("drawn.png"))).pixel(0, 1), qRgb(255, 0, 0));
    EXPECT_FALSE(CHmiImageDC(0, 0).SavePng(dir.Path("empty.png")));
    EXPECT_EQ(dir.Entries(), std::vector<std::string>{"drawn.png"});
}

TEST(PainterDC, ShapesRunningPastTheImageKeepEveryPixelInside)
{
    const struct {
        HmiPenStyle style;
        std::int32_t width;
        bool opaque;
    } pens[] = {{HmiPenStyle::Solid, 1, true}, {HmiPenStyle::Dot, 1, true}, {HmiPenStyle::Dash, 0, false},
                {HmiPenStyle::Solid, 5, true}, {HmiPenStyle::Dot, 3, true}};
    for (const auto& pen : pens) {
        const std::string changed = FirstPixelChangedByClipping([&](CHmiDC& dc, HmiPoint at) {
            const auto p = [&](std::int32_t x, std::int32_t y) { return HmiPoint{at.x + x, at.y + y}; };
            dc.SelectPen({pen.style, pen.width, kBlack});
            dc.SetBkMode(pen.opaque ? HmiBkMode::Opaque : HmiBkMode::Transparent);
            dc.SetBkColor(kBlue);
            dc.SelectBrush({true, 0});
            for (const HmiPoint to : {p(170, 130), p(-130, 120), p(160, -100), p(37, 129), p(-129, -99)}) {
                dc.MoveTo(p(-7, -3));
                dc.LineTo(to);
                dc.LineTo(p(25, 20));
            }
            dc.Rectangle({p(-117, -93).x, p(-117, -93).y, p(161, 111).x, p(161, 111).y});
            dc.SelectBrush({false, kRed});
            dc.Ellipse({p(-90, -61).x, p(-90, -61).y, p(104, 83).x, p(104, 83).y});
            // Qt patterns a polygon's outline from where it enters the image: drawn solid.
            dc.SelectPen({HmiPenStyle::Solid, pen.width, kBlack});
            const HmiPoint polygon[] = {p(-120, 10), p(20, -95), p(165, 125), p(30, 12)};
            dc.Polygon(polygon);
        });
        EXPECT_EQ(changed, "") << "pen style " << int(pen.style) << ", width " << pen.width;
    }
}

TEST(PainterDC, CoordinatesAreHeldToTheDrawingRangeAndOnlyTheImageIsDrawn)
{
    CHmiImageDC diagonal(40, 30);
    DrawLine(diagonal, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX});
    EXPECT_EQ(PixelsOf(diagonal, kBlack), PixelsWhere(40, 30, [](int x, int y) { return x == y; }))
        << "from corner to corner of the drawing range";

    CHmiImageDC dotted(40, 30);
    dotted.SelectPen({HmiPenStyle::Dot, 1, kBlack});
    dotted.SetBkMode(HmiBkMode::Transparent);
    DrawLine(dotted, {INT_MIN, 5}, {INT_MAX, 5});
    const auto dots = [](int x, int y) { return y == 5 && (x - kHmiDrawingMin) % 6 < 3; };
    EXPECT_EQ(PixelsOf(dotted, kBlack), PixelsWhere(40, 30, dots)) << "the pattern runs on from the range's left end";

    for (const auto huge : {HmiRect{INT_MIN, INT_MIN, INT_MAX, INT_MAX}, HmiRect{INT_MAX, INT_MAX, INT_MIN, INT_MIN}}) {
        CHmiImageDC shapes(40, 30);
        shapes.SelectPen({HmiPenStyle::Dash, INT_MAX, kBlack});
        shapes.SelectBrush({false, kRed});
        shapes.Rectangle(huge);
        EXPECT_EQ(ColoursIn(shapes), std::set<HmiColor>{kRed}) << "the outline lies outside";
        shapes.SelectBrush({false, kBlue});
        shapes.Ellipse(huge);
        EXPECT_EQ(ColoursIn(shapes), std::set<HmiColor>{kBlue});
        DrawLine(shapes, {INT_MIN, 20}, {INT_MAX, 20});
        EXPECT_EQ(ColoursIn(shapes), std::set<HmiColor>{kBlack}) << "a pen as wide as the range";
        shapes.FillSolidRect(huge, kWhite);
        shapes.SelectPen({});
        const HmiPoint triangle[] = {{INT_MIN, INT_MIN}, {INT_MAX, 0}, {0, INT_MAX}};
        shapes.Polygon(triangle);
        EXPECT_EQ(shapes.GetPixel(39, 29), kBlue);
        shapes.SelectFont({"DejaVu Sans", INT_MIN, 400});
        shapes.DrawText("text", huge, HMI_DT_CENTER | HMI_DT_WORDBREAK);
        EXPECT_FALSE(shapes.DrawPictureFile("missing.png", huge, nullptr));
    }
}

TEST(PainterDC, TheClipBoxIsThePainterDeviceAsFarAsItsClipLetsThrough)
{
    QImage image(50, 40, QImage::Format_RGB32);
    QPainter painter(&image);
    EXPECT_EQ(CHmiPainterDC(painter).GetClipBox(), (HmiRect{0, 0, 50, 40}));
    painter.translate(-20, 5);
    painter.setClipRect(QRect(25, 0, 100, 10));
    EXPECT_EQ(CHmiPainterDC(painter).GetClipBox(), (HmiRect{25, 0, 70, 10}));
    EXPECT_EQ(CHmiImageDC(30, 20).GetClipBox(), (HmiRect{0, 0, 30, 20}));
}
