// A canvas keeps the drawings of its widgets from paint to paint. Painting from them must give
// the pixels of painting every widget anew, on any background, through any clip and shift.

#include "catalogue/curvesettings.h"
#include "catalogue/gradientpainter.h"
#include "tests/support/mixedwindow.h"
#include "tests/support/registryscope.h"
#include "tests/support/tempdir.h"
#include "widgets/hmipainterdc.h"
#include "widgets/tamlodoc.h"
#include "widgets/windowpainter.h"

#include <QImage>
#include <QPainter>
#include <QRegion>

#include <gtest/gtest.h>

#include <ctime>
#include <functional>
#include <random>
#include <utility>

namespace {

using PainterSetUp = std::function<void(QPainter&)>;

// The window painted as the canvas paints it, over a background of a different colour at each
// pixel, so that a drawing that covered what it should leave shows. The curves' samples start
// over each time, so that every paint draws the same values.
QImage Paint(const CTamloDoc& document, CHmiDrawingCache* drawings, const PainterSetUp& setUp)
{
    QImage image(kMixedWindowWidth, kMixedWindowHeight, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb(x & 0xFF, y & 0xFF, (x ^ y) & 0xFF);
    }
    CurveSettings::RandomSample() = [engine = std::minstd_rand()]() mutable { return int(engine() % 32768); };
    QPainter painter(&image);
    setUp(painter);
    CHmiPainterDC dc(painter, drawings);
    DrawWindow(document, dc);
    return image;
}

} // namespace

TEST(KeptDrawings, PaintTheWidgetsAsPaintingThemAnewDoesThroughClipsAndShifts)
{
    const CRegistryScope registry;
    const auto savedLabelTime = std::exchange(CurveSettings::LabelTime(), [] { return std::tm{}; });
    const auto savedSample = CurveSettings::RandomSample();
    const std::pair<const char*, PainterSetUp> setUps[] = {
        {"whole", [](QPainter&) {}},
        {"shifted", [](QPainter& painter) { painter.translate(-37, 23); }},
        {"clipped", [](QPainter& painter) { painter.setClipRect(101, 57, 333, 211); }},
        {"two areas", [](QPainter& painter) {
             painter.setClipRegion(QRegion(0, 0, 300, 700) + QRegion(520, 340, 504, 90));
         }},
        {"scaled", [](QPainter& painter) { painter.scale(2, 2); }}, // painted anew: no whole pixels
    };
    for (const unsigned seed : {1u, 2u}) {
        CTamloDoc document;
        FillMixedWindow(document, 400, seed);
        // One cache for every set-up, as a canvas repaints different areas from the same one;
        // and one too small for all the drawings, which make room for one another.
        constexpr std::size_t kTightBytes = std::size_t(1) << 20;
        CHmiDrawingCache drawings;
        CHmiDrawingCache tight(kTightBytes);
        for (const auto& [name, setUp] : setUps) {
            const QImage anew = Paint(document, nullptr, setUp);
            // Noted on the first paint, kept on the second, painted from on the third.
            for (int paint = 1; paint <= 3; ++paint) {
                EXPECT_TRUE(Paint(document, &drawings, setUp) == anew) << name << ", seed " << seed << ", paint " << paint;
                EXPECT_TRUE(Paint(document, &tight, setUp) == anew) << name << ", seed " << seed << ", tight, paint " << paint;
            }
        }
        EXPECT_GT(drawings.Bytes(), kTightBytes) << "the gradients are kept";
        EXPECT_LE(tight.Bytes(), kTightBytes);
        EXPECT_GT(tight.Bytes(), kTightBytes / 2) << "a full cache keeps the drawings that fit";
    }
    CurveSettings::LabelTime() = savedLabelTime;
    CurveSettings::RandomSample() = savedSample;
}

// The rings of a flat ellipse reach past its rectangle along its longer side: painting from the
// kept drawings must paint those pixels too.
TEST(KeptDrawings, FlatEllipseGradientsPaintWhatReachesPastTheirRectangle)
{
    for (const std::int32_t code : {0, 1, 2}) {
        for (const HmiRect rect : {HmiRect{154, 651, 963, 765}, HmiRect{651, 154, 765, 963}}) {
            const auto paint = [&](CHmiDrawingCache* drawings) {
                QImage image(1024, 1024, QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::white);
                QPainter painter(&image);
                CHmiPainterDC dc(painter, drawings);
                PaintEllipseGradient(dc, rect, HmiRgb(250, 80, 60), HmiRgb(20, 200, 130), code);
                return image;
            };
            const QImage anew = paint(nullptr);
            CHmiDrawingCache drawings;
            for (int time = 1; time <= 3; ++time)
                EXPECT_TRUE(paint(&drawings) == anew) << "code " << code << ", " << rect.Width() << " wide, paint " << time;
        }
    }
}

// Through a clip, a flat ellipse gradient, whose ring the painter fills a row lower than its
// rectangle and whose rings reach past its ends, sets the pixels there that it sets drawn
// whole, and no others.
TEST(KeptDrawings, FlatEllipsesThroughAClipSetWhatTheySetWholeThereAndNothingElse)
{
    HmiRect rect{40, 60, 60, 62};
    const auto paint = [&](const QRect& through) { // an empty clip lets nothing through
        QImage image(400, 300, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setClipRect(through);
        CHmiPainterDC dc(painter);
        PaintEllipseGradient(dc, rect, HmiRgb(250, 80, 60), HmiRgb(20, 200, 130), 2);
        return image;
    };
    const QRect clip(0, 0, 100, 61);
    QImage clipped = paint(clip);
    EXPECT_TRUE(clipped.copy(clip) == paint(QRect(0, 0, 400, 300)).copy(clip)) << "inside";
    QPainter(&clipped).fillRect(clip, Qt::white);
    EXPECT_TRUE(clipped == paint(QRect())) << "outside";

    // Flat and tall ones, some running past the image, through clips beside them too.
    std::minstd_rand engine(3);
    const auto upTo = [&engine](int n) { return int(engine() % unsigned(n)); };
    for (int n = 0; n < 300; ++n) {
        const QSize size = upTo(2) == 0 ? QSize(20 + upTo(400), 3 + upTo(12)) : QSize(3 + upTo(12), 20 + upTo(300));
        rect = HmiRect{upTo(300) - 50, upTo(200) - 50, 0, 0};
        rect.right = rect.left + size.width();
        rect.bottom = rect.top + size.height();
        const QImage whole = paint(QRect(0, 0, 400, 300));
        for (int c = 0; c < 10; ++c) {
            const QRect through(upTo(400), upTo(300), 1 + upTo(100), 1 + upTo(60));
            EXPECT_TRUE(paint(through).copy(through) == whole.copy(through))
                << rect.left << "," << rect.top << "," << rect.right << "," << rect.bottom << " through " << through.x()
                << "," << through.y() << " " << through.width() << "x" << through.height();
        }
    }
}

// The painter stretches a picture that its clip cuts from where the clip begins, a column or a
// row off from the picture stretched whole: through any clip, at any scale, kept or not, a
// stretched picture sets the pixels it sets drawn whole, and no others.
TEST(KeptDrawings, StretchedPicturesThroughAClipSetWhatTheySetWholeThereAndNothingElse)
{
    const TempDir dir;
    QImage tiles(97, 61, QImage::Format_RGB32);
    for (int y = 0; y < tiles.height(); ++y)
        for (int x = 0; x < tiles.width(); ++x)
            tiles.setPixel(x, y, qRgb(x * 2, y * 4, (x * y) & 0xFF));
    const std::string path = dir.Path("tiles.png");
    ASSERT_TRUE(tiles.save(QString::fromStdString(path)));
    const HmiColor black = 0x000000; // the first column and row, left out

    struct Case {
        HmiRect rect;
        const HmiColor* transparent;
        double scale;
    };
    const auto paint = [&](const Case& at, const QRegion& clip, CHmiDrawingCache* drawings) {
        QImage image(1024, 768, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setClipRegion(clip);
        painter.scale(at.scale, at.scale);
        CHmiPainterDC dc(painter, drawings);
        dc.DrawPictureFile(path, at.rect, at.transparent);
        return image;
    };
    std::minstd_rand engine(7);
    const auto someClip = [&engine] {
        const auto area = [&engine] {
            return QRect(int(engine() % 1000), int(engine() % 740), 1 + int(engine() % 300), 1 + int(engine() % 200));
        };
        return engine() % 4 == 0 ? QRegion(area()) + QRegion(area()) : QRegion(area());
    };
    // Stretched beyond the largest kept picture, shrunk, off the device's left and top, zoomed.
    for (const Case& at : {Case{{257, 119, 1003, 675}, nullptr, 1}, Case{{257, 119, 1003, 675}, &black, 1},
                           Case{{40, 30, 110, 80}, &black, 1}, Case{{-73, -41, 610, 388}, nullptr, 1},
                           Case{{13, 7, 110, 68}, nullptr, 2}, Case{{80, 293, 978, 643}, nullptr, 2},
                           Case{{80, 293, 978, 643}, &black, 2}, Case{{13, 7, 410, 268}, &black, 1.5},
                           Case{{-13, 7, 1500, 1268}, nullptr, 0.75}, Case{{13, 37, 771, 593}, &black, 1.25}}) {
        const QImage whole = paint(at, QRegion(0, 0, 1024, 768), nullptr);
        CHmiDrawingCache drawings;
        for (int i = 0; i < 40; ++i) {
            const QRegion clip = someClip();
            QImage expected(whole.size(), whole.format());
            expected.fill(Qt::white);
            QPainter through(&expected);
            through.setClipRegion(clip);
            through.drawImage(0, 0, whole);
            through.end();
            const QRect box = clip.boundingRect();
            EXPECT_TRUE(paint(at, clip, nullptr) == expected)
                << at.rect.left << "," << at.rect.top << " at " << at.scale << " through " << box.x() << "," << box.y()
                << " " << box.width() << "x" << box.height();
            EXPECT_TRUE(paint(at, clip, &drawings) == expected) << "kept, clip " << i;
        }
    }
}
