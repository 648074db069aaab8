#include "hmipainterdc.h"

#include "base/textcodec.h"
#include "hmisteps.h"
#include "pixelruns.h"
#include "project/fileio.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFontMetrics>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <list>
#include <map>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

QColor ToQColor(HmiColor color)
{
    return QColor(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF));
}

QRect ToQRect(const HmiRect& rect)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    return QRect(r.left, r.top, r.Width(), r.Height());
}

std::int32_t DrawingCoordinateOf(double value)
{
    return std::int32_t(std::clamp<double>(value, kHmiDrawingMin, kHmiDrawingMax));
}

// What the painter can change, in its own coordinates: its device, or as far as its clip lets
// through. A device's size in device pixels is at least its size in the painter's units.
HmiRect VisibleArea(const QPainter& painter, const QRect& device, bool clipped)
{
    bool invertible = false;
    const QTransform toPainter = painter.combinedTransform().inverted(&invertible);
    if (!invertible)
        return {kHmiDrawingMin, kHmiDrawingMin, kHmiDrawingMax, kHmiDrawingMax};
    QRectF area = toPainter.mapRect(QRectF(device));
    if (clipped && painter.hasClipping())
        area &= painter.clipBoundingRect();
    return {DrawingCoordinateOf(std::floor(area.left())), DrawingCoordinateOf(std::floor(area.top())),
            DrawingCoordinateOf(std::ceil(area.right())), DrawingCoordinateOf(std::ceil(area.bottom()))};
}

QString ToQString(std::string_view gb2312)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(gb2312));
}

// Dotted and dashed one-pixel pens as on the panel: three pixels on and three off, and
// eighteen on and six off. The pattern runs on across the segments of a shape's outline.
struct DashPattern {
    int on;
    int period;
};

const DashPattern* PatternOf(HmiPenStyle style)
{
    static constexpr DashPattern kDot{3, 6};
    static constexpr DashPattern kDash{18, 24};
    switch (style) {
    case HmiPenStyle::Dot:
        return &kDot;
    case HmiPenStyle::Dash:
        return &kDash;
    default:
        return nullptr;
    }
}

Qt::PenStyle ToQtPenStyle(HmiPenStyle style)
{
    switch (style) {
    case HmiPenStyle::Dot:
        return Qt::DotLine;
    case HmiPenStyle::Dash:
        return Qt::DashLine;
    case HmiPenStyle::Null:
        return Qt::NoPen;
    default:
        return Qt::SolidLine;
    }
}

// A pen paints at least one pixel wide, and no wider than the drawing range.
int PenWidth(const HmiPen& pen)
{
    return std::clamp(pen.width, 1, kHmiDrawingMax);
}

// Rounds a / b to the nearest integer, halves away from zero (b > 0).
int RoundedQuotient(long long a, long long b)
{
    return int(a >= 0 ? (2 * a + b) / (2 * b) : -((-2 * a + b) / (2 * b)));
}

// The pixels of a one-pixel line: pixel i of the steps from one point towards the other, as many
// as the longer side, lies at from + i * (to - from) / steps on each axis, rounded half away from
// zero. The end point itself is not one of them.
class LinePixels {
public:
    LinePixels(HmiPoint from, HmiPoint to)
        : m_from(from), m_dx(to.x - from.x), m_dy(to.y - from.y), m_steps(std::max(std::abs(m_dx), std::abs(m_dy)))
    {
    }

    std::int64_t Steps() const { return m_steps; }

    QPoint At(std::int64_t i) const
    {
        return QPoint(m_from.x + RoundedQuotient(i * m_dx, m_steps), m_from.y + RoundedQuotient(i * m_dy, m_steps));
    }

    // The steps whose pixels lie in the box: along the line, x and y each move one way only.
    HmiSteps Within(const HmiRect& box) const
    {
        const HmiPoint to{m_from.x + m_dx, m_from.y + m_dy};
        if (box.Contains(m_from) && box.Contains(to)) // then so does every pixel between them
            return {0, m_steps};
        const HmiSteps columns =
            HmiStepsWithin(0, m_steps, box.left, box.right, [&](std::int64_t i) { return At(i).x(); });
        return HmiStepsWithin(columns.first, columns.end, box.top, box.bottom,
                              [&](std::int64_t i) { return At(i).y(); });
    }

    // Calls visit(i, x, y) for each of the steps in order, carrying the rounding from pixel to
    // pixel instead of dividing for each.
    template <class Visit>
    void Walk(const HmiSteps& steps, Visit visit) const
    {
        if (steps.first >= steps.end)
            return;
        Axis x(m_from.x, m_dx, m_steps, steps.first);
        Axis y(m_from.y, m_dy, m_steps, steps.first);
        for (std::int64_t i = steps.first; i < steps.end; ++i) {
            visit(i, x.Place(), y.Place());
            x.Advance();
            y.Advance();
        }
    }

    // Calls visit(rect) for each run of the steps' pixels along a row (a line wider than tall)
    // or a column, in order. Pixel i lies i pixels along the longer side; on the shorter side
    // it is offset by floor((2i|d| + steps) / 2steps), which reaches k at step
    // ceil((2k - 1)steps / 2|d|): that quotient is carried from run to run.
    template <class Visit>
    void Runs(const HmiSteps& steps, Visit visit) const
    {
        if (steps.first >= steps.end)
            return;
        const bool alongRows = std::abs(m_dx) >= std::abs(m_dy);
        const std::int64_t across = alongRows ? std::abs(m_dy) : std::abs(m_dx);
        const int alongSign = (alongRows ? m_dx : m_dy) < 0 ? -1 : 1;
        const int acrossSign = (alongRows ? m_dy : m_dx) < 0 ? -1 : 1;
        std::int64_t k = (2 * steps.first * across + m_steps) / (2 * m_steps);
        // The step at which the offset reaches k + 1, as quotient and remainder by 2|d|.
        const std::int64_t divisor = std::max<std::int64_t>(2 * across, 1);
        const std::int64_t numerator = (2 * k + 1) * m_steps + divisor - 1;
        std::int64_t nextQuotient = numerator / divisor;
        std::int64_t nextRemainder = numerator % divisor;
        const std::int64_t growthQuotient = 2 * m_steps / divisor;
        const std::int64_t growthRemainder = 2 * m_steps % divisor;
        for (std::int64_t first = steps.first; first < steps.end; ++k) {
            const std::int64_t end = across == 0 ? steps.end : std::min(steps.end, nextQuotient);
            const int from = int(alongSign * first);
            const int to = int(alongSign * (end - 1));
            const int offset = int(acrossSign * k);
            visit(alongRows ? QRect(QPoint(m_from.x + std::min(from, to), m_from.y + offset),
                                    QPoint(m_from.x + std::max(from, to), m_from.y + offset))
                            : QRect(QPoint(m_from.x + offset, m_from.y + std::min(from, to)),
                                    QPoint(m_from.x + offset, m_from.y + std::max(from, to))));
            first = end;
            nextQuotient += growthQuotient;
            nextRemainder += growthRemainder;
            if (nextRemainder >= divisor) {
                nextRemainder -= divisor;
                ++nextQuotient;
            }
        }
    }

private:
    // One coordinate of pixel i: origin + sign * floor((2i|d| + steps) / 2steps), with the
    // quotient and remainder kept up to date as i grows.
    class Axis {
    public:
        Axis(std::int32_t origin, std::int32_t delta, std::int64_t steps, std::int64_t first)
            : m_origin(origin), m_sign(delta < 0 ? -1 : 1), m_twiceDelta(2 * std::int64_t(std::abs(delta))),
              m_twiceSteps(2 * steps)
        {
            const std::int64_t numerator = first * m_twiceDelta + steps;
            m_quotient = numerator / m_twiceSteps;
            m_remainder = numerator % m_twiceSteps;
        }
        int Place() const { return int(m_origin + m_sign * m_quotient); }
        void Advance()
        {
            // |d| <= steps, so the quotient grows by one at most.
            m_remainder += m_twiceDelta;
            if (m_remainder >= m_twiceSteps) {
                m_remainder -= m_twiceSteps;
                ++m_quotient;
            }
        }

    private:
        std::int64_t m_origin;
        std::int64_t m_sign;
        std::int64_t m_twiceDelta;
        std::int64_t m_twiceSteps;
        std::int64_t m_quotient = 0;
        std::int64_t m_remainder = 0;
    };

    HmiPoint m_from;
    std::int32_t m_dx;
    std::int32_t m_dy;
    std::int64_t m_steps;
};

// The most pixels of one layer of thin lines: a larger area is painted in bands of rows.
constexpr qsizetype kMaxLayerPixels = qsizetype(1) << 20;

// Sets the pixels of the lines that lie in the band, in the layer that covers it, each line over
// those before it.
void SetLinePixels(QImage& layer, const HmiRect& band, std::span<const HmiThinLine> lines)
{
    QRgb* const bits = reinterpret_cast<QRgb*>(layer.bits());
    const qsizetype stride = layer.bytesPerLine() / qsizetype(sizeof(QRgb));
    for (const HmiThinLine& line : lines) {
        const LinePixels pixels(line.from.ForDrawing(), line.to.ForDrawing());
        const QRgb color = ToQColor(line.color).rgb();
        pixels.Walk(pixels.Within(band), [&](std::int64_t, int x, int y) {
            bits[(y - band.top) * stride + (x - band.left)] = color;
        });
    }
}

// SetLinePixels for columns, row after row rather than column after column through the whole
// layer: a row holds the pixels of the columns that run over it, the last one at a place over
// those before it, and the rows between two where a column begins or ends hold the same pixels.
void SetColumnPixels(QImage& layer, const HmiRect& band, std::span<const HmiThinLine> columns)
{
    struct Column {
        int x;
        int top;
        int bottom;
        QRgb color;
    };
    std::vector<Column> seen;
    std::vector<int> changes;
    for (const HmiThinLine& line : columns) {
        const HmiPoint from = line.from.ForDrawing();
        const HmiPoint to = line.to.ForDrawing();
        // A column stops one pixel short of its end, as every line does.
        const int top = std::max(band.top, from.y <= to.y ? from.y : to.y + 1);
        const int bottom = std::min(band.bottom, from.y <= to.y ? to.y : from.y + 1);
        if (from.x < band.left || from.x >= band.right || top >= bottom)
            continue;
        seen.push_back({from.x - band.left, top, bottom, ToQColor(line.color).rgb()});
        changes.push_back(top);
        changes.push_back(bottom);
    }
    std::sort(changes.begin(), changes.end());
    changes.erase(std::unique(changes.begin(), changes.end()), changes.end());
    const std::size_t rowBytes = std::size_t(band.right - band.left) * sizeof(QRgb);
    for (std::size_t i = 0; i + 1 < changes.size(); ++i) {
        const int first = changes[i];
        auto* const row = reinterpret_cast<QRgb*>(layer.scanLine(first - band.top));
        for (const Column& column : seen)
            if (column.top <= first && first < column.bottom)
                row[column.x] = column.color;
        for (int y = first + 1; y < changes[i + 1]; ++y)
            std::memcpy(layer.scanLine(y - band.top), row, rowBytes);
    }
}

QFont ToQFont(const HmiFont& font)
{
    QFont qfont(QString::fromStdString(Gb2312ToUtf8OrKeep(font.face)));
    qfont.setStyleStrategy(QFont::NoAntialias);
    qfont.setWeight(QFont::Weight(std::clamp(font.weight == 0 ? 400 : font.weight, 100, 900)));
    qfont.setItalic(font.italic != 0);
    qfont.setUnderline(font.underline != 0);
    qfont.setStrikeOut(font.strikeOut != 0);
    // No taller than the drawing range reaches.
    const std::int32_t height = HmiDrawingCoordinate(font.height);
    if (height < 0) {
        qfont.setPixelSize(-height); // the height of the characters themselves
    } else if (height > 0) {
        // A positive height is the whole cell, leading included: scale the characters to it.
        qfont.setPixelSize(height);
        const int cell = QFontMetrics(qfont).height();
        if (cell > height)
            qfont.setPixelSize(std::max(1, height * height / cell));
    } else {
        qfont.setPixelSize(12);
    }
    return qfont;
}

// A picture file read as every file is (a regular file within the size limit), so that a window
// naming a device or a FIFO as its picture neither stalls nor exhausts drawing. Null when the
// file cannot be read or decoded.
QImage ReadPicture(const std::string& path)
{
    std::string bytes;
    if (!ReadWholeFile(path, bytes))
        return {};
    QByteArray data = QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size()));
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    return reader.read();
}

// The picture as it is painted: with 16 bits per channel and without transparency, it becomes
// 32-bit RGB, which paints the same pixels without the painter converting each of them at every
// paint, in half the room; any other stays as it is.
QImage ForPainting(QImage picture)
{
    if (picture.format() != QImage::Format_RGBX64)
        return picture;
    return std::move(picture).convertToFormat(QImage::Format_RGB32);
}

// The picture with its pixels of the transparent colour made transparent.
QImage Masked(const QImage& picture, HmiColor transparent)
{
    QImage masked = picture.convertToFormat(QImage::Format_ARGB32);
    const QRgb key = ToQColor(transparent).rgb();
    const int width = masked.width();
    for (int y = 0; y < masked.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(masked.scanLine(y));
        for (int x = 0; x < width; ++x)
            if ((line[x] | 0xFF000000u) == key)
                line[x] = 0;
    }
    return masked;
}

// A decoded picture file, and its copies masked for the transparent colours it is shown with.
class Picture {
public:
    explicit Picture(QImage decoded) : m_decoded(std::move(decoded)) {}

    // The decoded pixels: the same as long as the file is.
    const QImage& Decoded() const { return m_decoded; }

    // The picture as it is painted: masked when a transparent colour is given.
    const QImage& Shown(const HmiColor* transparent)
    {
        if (!transparent)
            return m_decoded;
        auto masked = m_masked.find(*transparent);
        if (masked == m_masked.end()) {
            if (m_masked.size() >= kMaxMaskedCopies)
                m_masked.clear();
            masked = m_masked.emplace(*transparent, Masked(m_decoded, *transparent)).first;
        }
        return masked->second;
    }

private:
    // Widgets may show one picture with different transparent colours.
    static constexpr std::size_t kMaxMaskedCopies = 16;
    QImage m_decoded;
    std::map<HmiColor, QImage> m_masked; // by transparent colour
};

// Decoded pictures, so that repainting a canvas does not decode its files again, nor mask them
// again for the same transparent colour. An entry is replaced when its file changes on disk,
// which is looked at once in each paint, however many widgets show the file.
class PictureCache {
public:
    // The picture of the file; null when the file cannot be read or decoded.
    Picture* Find(const std::string& path, std::uint64_t paint)
    {
        auto found = m_entries.find(path);
        if (found == m_entries.end() || found->second.lookedAtInPaint != paint) {
            const QFileInfo info(QString::fromStdString(path));
            const bool isFile = info.isFile();
            const QDateTime modified = isFile ? info.lastModified() : QDateTime();
            if (found == m_entries.end() || found->second.modified != modified) {
                if (m_entries.size() >= kMaxEntries)
                    m_entries.clear();
                Picture picture(isFile ? ForPainting(ReadPicture(path)) : QImage());
                found = m_entries.insert_or_assign(path, Entry{modified, std::move(picture), 0}).first;
            }
            found->second.lookedAtInPaint = paint;
        }
        Picture& picture = found->second.picture;
        return picture.Decoded().isNull() ? nullptr : &picture;
    }

private:
    static constexpr std::size_t kMaxEntries = 64;
    struct Entry {
        QDateTime modified; // invalid: not a regular file
        Picture picture;
        std::uint64_t lookedAtInPaint;
    };
    std::map<std::string, Entry> m_entries;
};

// Counts the drawing targets made, each one paint.
std::uint64_t g_paints = 0;

PictureCache& Pictures()
{
    static PictureCache cache;
    return cache;
}

bool Meets(const HmiRect& a, const HmiRect& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

} // namespace

// What the drawing cache keeps of one drawing: the pixels it sets, from origin in its area, and
// where it leaves the current position. No image: the drawing has partly transparent pixels,
// whose copy would blend them once more, or it could not be drawn aside; it is then painted anew
// each time.
struct CHmiDrawingCache::Drawing {
    QImage image;
    QPoint origin;
    HmiPoint position;
};

namespace {

using KeptDrawing = CHmiDrawingCache::Drawing;

// An entry's own bookkeeping counts as some bytes besides its pixels and key.
constexpr std::size_t kBytesPerEntry = 128;
// The largest stretched picture kept, in pixels; one that the clip cuts, whose repaints would
// otherwise stretch it whole, is kept up to the size of a large screen.
constexpr std::int64_t kMaxKeptPicturePixels = 128 * 128;
constexpr std::int64_t kMaxKeptCutPicturePixels = 1920 * 1080;

HmiRect Intersection(const HmiRect& a, const HmiRect& b)
{
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

// Draws what paint draws, alone, into an image of the area, as a drawing to keep: pixels that
// are opaque or untouched throughout can be painted again as they are. Only the part that
// holds pixels is kept, so that a short text in a large box keeps little. A drawing with pixels
// in the area but outside inner may have more past the area, which would be lost: no image.
KeptDrawing DrawAside(const HmiRect& area, const HmiRect& inner, const std::function<void(CHmiDC&)>& paint)
{
    QImage image(area.Width(), area.Height(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    KeptDrawing drawing;
    {
        QPainter painter(&image);
        painter.translate(-area.left, -area.top);
        CHmiPainterDC target(painter);
        paint(target);
        drawing.position = target.MoveTo({});
    }
    int left = image.width();
    int right = -1;
    int top = image.height();
    int bottom = -1;
    std::int64_t opaquePixels = 0;
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            const int alpha = qAlpha(line[x]);
            if (alpha == 0)
                continue;
            if (alpha != 255)
                return {};
            ++opaquePixels;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (right < 0) // nothing drawn: one transparent pixel paints as little
        left = right = top = bottom = 0;
    else if (area.left + left < inner.left || area.left + right >= inner.right || area.top + top < inner.top ||
             area.top + bottom >= inner.bottom)
        return {};
    const QRect used(QPoint(left, top), QPoint(right, bottom));
    if (used != image.rect())
        image = image.copy(used);
    drawing.origin = used.topLeft();
    // An opaque drawing is copied rather than blended.
    const bool opaque = opaquePixels == std::int64_t(used.width()) * used.height();
    drawing.image = opaque ? std::move(image).convertToFormat(QImage::Format_RGB32) : std::move(image);
    return drawing;
}

} // namespace

// The drawings by key, the most recently painted first. A drawing is kept the second time its
// key is painted, so that a window painted once, as by opening it, pays nothing for keeping.
// When they do not all fit, room is made from what the last two paints have not used, and for a
// drawing also from larger drawings: drawing a text or a small box anew costs its set-up
// whatever its size, so a small drawing saves more for each byte it takes than a large one,
// which costs by its pixels either way. A window whose drawings do not all fit so keeps its
// smallest ones from paint to paint rather than replacing them in turn, and keys that come and go
// in every paint, such as a moving widget's, take no room from drawings in use.
class CHmiDrawingCache::Store {
public:
    struct Entry;

private:
    using Entries = std::list<std::pair<std::string, Entry>>;

public:
    struct Entry {
        std::optional<KeptDrawing> drawing; // none yet: painted once, or no room for it
        std::uint64_t lastPaint = 0;
        std::multimap<std::size_t, Entries::iterator>::iterator bySize; // when a drawing is kept
    };

    explicit Store(std::size_t maxBytes) : m_maxBytes(maxBytes) {}

    // Starts a paint: what it uses stays.
    void BeginPaint() { ++m_paint; }

    // The entry of the key, now the most recently painted; null when the key is new, which is
    // then noted.
    Entry* Use(const std::string& key)
    {
        const auto found = m_index.find(key);
        if (found == m_index.end()) {
            Add(key);
            return nullptr;
        }
        m_entries.splice(m_entries.begin(), m_entries, found->second);
        Entry& entry = found->second->second;
        entry.lastPaint = m_paint;
        return &entry;
    }

    // Makes room for a drawing of so many bytes; false when only what is in use and no larger
    // fills the store.
    bool MakeRoom(std::size_t bytes) { return MakeRoom(bytes, true); }

    void Keep(const std::string& key, KeptDrawing drawing)
    {
        const Entries::iterator entry = m_index.at(key);
        const std::size_t bytes = std::size_t(drawing.image.sizeInBytes());
        m_bytes += bytes;
        entry->second.drawing = std::move(drawing);
        entry->second.bySize = m_bySize.emplace(bytes, entry);
    }

    std::size_t Bytes() const { return m_bytes; }

private:
    static std::size_t SizeOf(const Entries::value_type& entry)
    {
        const std::optional<KeptDrawing>& drawing = entry.second.drawing;
        return entry.first.size() + kBytesPerEntry + (drawing ? std::size_t(drawing->image.sizeInBytes()) : 0);
    }

    bool MakeRoom(std::size_t bytes, bool fromLarger)
    {
        while (m_bytes + bytes > m_maxBytes) {
            if (!m_entries.empty() && m_entries.back().second.lastPaint + 1 < m_paint)
                Remove(std::prev(m_entries.end()));
            else if (fromLarger && !m_bySize.empty() && m_bySize.rbegin()->first > bytes)
                Remove(std::prev(m_bySize.end())->second);
            else
                return false;
        }
        return true;
    }

    void Add(const std::string& key)
    {
        if (!MakeRoom(key.size() + kBytesPerEntry, false))
            return;
        m_entries.emplace_front(key, Entry{{}, m_paint, {}});
        m_index.emplace(m_entries.front().first, m_entries.begin());
        m_bytes += SizeOf(m_entries.front());
    }

    void Remove(Entries::iterator entry)
    {
        m_bytes -= SizeOf(*entry);
        if (entry->second.drawing)
            m_bySize.erase(entry->second.bySize);
        m_index.erase(entry->first);
        m_entries.erase(entry);
    }

    Entries m_entries;
    std::unordered_map<std::string_view, Entries::iterator> m_index; // views of the keys in m_entries
    std::multimap<std::size_t, Entries::iterator> m_bySize; // the kept drawings by their pixels' bytes
    std::size_t m_maxBytes;
    std::size_t m_bytes = 0;
    std::uint64_t m_paint = 0;
};

CHmiDrawingCache::CHmiDrawingCache(std::size_t maxBytes) : m_store(std::make_unique<Store>(maxBytes)) {}

CHmiDrawingCache::~CHmiDrawingCache() = default;

std::size_t CHmiDrawingCache::Bytes() const
{
    return m_store->Bytes();
}

CHmiPainterDC::CHmiPainterDC(QPainter& painter, CHmiDrawingCache* cache)
    : CHmiPainterDC(painter, cache, QRect(0, 0, painter.device()->width(), painter.device()->height()))
{
}

CHmiPainterDC::CHmiPainterDC(QPainter& painter, CHmiDrawingCache* cache, const QRect& device)
    : m_painter(painter), m_cache(cache), m_paint(++g_paints), m_device(device),
      m_deviceArea(VisibleArea(painter, device, false)), m_clipBox(VisibleArea(painter, device, true))
{
    if (painter.hasClipping())
        m_clip = painter.clipRegion();
    m_painter.setRenderHint(QPainter::Antialiasing, false);
    m_painter.setRenderHint(QPainter::TextAntialiasing, false);
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    if (m_cache)
        m_cache->m_store->BeginPaint();
}

// A new pen or a new start begins a dotted line's pattern afresh.
HmiPen CHmiPainterDC::SelectPen(const HmiPen& pen)
{
    m_patternPhase = 0;
    return CHmiStateDC::SelectPen(pen);
}

HmiPoint CHmiPainterDC::MoveTo(HmiPoint point)
{
    m_patternPhase = 0;
    return CHmiStateDC::MoveTo(point);
}

void CHmiPainterDC::LineTo(HmiPoint point)
{
    DrawPenLine(m_position.ForDrawing(), point.ForDrawing());
    m_position = point;
}

void CHmiPainterDC::DrawPenLine(HmiPoint from, HmiPoint to)
{
    if (m_pen.style == HmiPenStyle::Null || from == to)
        return;
    if (m_pen.width <= 1) {
        DrawThinLine(from, to);
        return;
    }
    QPen pen(ToQColor(m_pen.color), PenWidth(m_pen), ToQtPenStyle(m_pen.style), Qt::RoundCap, Qt::RoundJoin);
    m_painter.setPen(pen);
    m_painter.drawLine(from.x, from.y, to.x, to.y);
}

void CHmiPainterDC::DrawThinLine(HmiPoint from, HmiPoint to)
{
    const LinePixels line(from, to);
    const DashPattern* pattern = PatternOf(m_pen.style);
    if (!pattern && (from.x == to.x || from.y == to.y)) {
        // The common solid horizontal or vertical line: one filled run of pixels.
        const int steps = int(line.Steps());
        const QRect run = from.x == to.x ? QRect(from.x, std::min(from.y, to.y + 1), 1, steps)
                                         : QRect(std::min(from.x, to.x + 1), from.y, steps, 1);
        m_painter.fillRect(run, ToQColor(m_pen.color));
        return;
    }
    const HmiSteps seen = line.Within(m_clipBox);
    const bool wholePixels = PaintsWholeDevicePixels();
    CPixelRuns on;
    if (!pattern) {
        line.Runs(seen, [&](const QRect& run) { on.Add(run); });
        on.Paint(m_painter, ToQColor(m_pen.color), wholePixels);
        return;
    }
    CPixelRuns off;
    line.Walk(seen, [&](std::int64_t i, int x, int y) {
        const bool isOn = (m_patternPhase + i) % pattern->period < pattern->on;
        (isOn ? on : off).Add(QRect(x, y, 1, 1));
    });
    m_patternPhase = int((m_patternPhase + line.Steps()) % pattern->period);
    on.Paint(m_painter, ToQColor(m_pen.color), wholePixels);
    if (m_bkMode == HmiBkMode::Opaque)
        off.Paint(m_painter, ToQColor(m_bkColor), wholePixels);
}

void CHmiPainterDC::PolylineTo(std::span<const HmiPoint> points)
{
    // A solid one-pixel pen gathers the runs of pixels of all the lines, to fill them at once.
    if (m_pen.style != HmiPenStyle::Solid || m_pen.width > 1 || !PaintsWholeDevicePixels())
        return CHmiDC::PolylineTo(points);
    CPixelRuns runs;
    for (const HmiPoint& point : points) {
        const LinePixels line(m_position.ForDrawing(), point.ForDrawing());
        line.Runs(line.Within(m_clipBox), [&](const QRect& run) { runs.Add(run); });
        m_position = point;
    }
    runs.Paint(m_painter, ToQColor(m_pen.color), true);
}

bool CHmiPainterDC::PaintsWholeDevicePixels() const
{
    const QTransform transform = m_painter.combinedTransform();
    return transform.type() <= QTransform::TxTranslate && transform.dx() == std::floor(transform.dx()) &&
           transform.dy() == std::floor(transform.dy()) && m_painter.opacity() == 1.0 &&
           m_painter.compositionMode() == QPainter::CompositionMode_SourceOver;
}

void CHmiPainterDC::ThinLines(std::span<const HmiThinLine> lines)
{
    if (lines.empty())
        return;
    // Rows are filled runs each. Other lines set their pixels in a layer of their own, which is
    // then laid over the target: that takes whole pixels, which the painter's transformation must
    // keep. Columns go to the layer too, since a filled run one pixel wide is filled pixel by pixel.
    const bool rows = std::all_of(lines.begin(), lines.end(), [](const HmiThinLine& line) {
        return line.from.y == line.to.y;
    });
    if (rows || !PaintsWholeDevicePixels()) {
        CHmiDC::ThinLines(lines);
        return;
    }
    HmiRect area{kHmiDrawingMax, kHmiDrawingMax, kHmiDrawingMin, kHmiDrawingMin};
    for (const HmiThinLine& line : lines) {
        const HmiRect box = HmiRect{line.from.x, line.from.y, line.to.x, line.to.y}.ForDrawing().Normalized();
        area = {std::min(area.left, box.left), std::min(area.top, box.top), std::max(area.right, box.right + 1),
                std::max(area.bottom, box.bottom + 1)};
    }
    area = {std::max(area.left, m_clipBox.left), std::max(area.top, m_clipBox.top),
            std::min(area.right, m_clipBox.right), std::min(area.bottom, m_clipBox.bottom)};
    const bool columns = std::all_of(lines.begin(), lines.end(), [](const HmiThinLine& line) {
        return line.from.x == line.to.x;
    });
    const int width = area.right - area.left;
    const int bandHeight = width > 0 ? int(std::max<qsizetype>(1, kMaxLayerPixels / width)) : 0;
    for (int top = area.top; width > 0 && top < area.bottom; top += bandHeight) {
        const HmiRect band{area.left, top, area.right, std::min(area.bottom, top + bandHeight)};
        QImage layer(width, band.bottom - band.top, QImage::Format_ARGB32_Premultiplied);
        if (layer.isNull())
            break; // out of memory: the lines are left out rather than the program
        layer.fill(Qt::transparent);
        if (columns)
            SetColumnPixels(layer, band, lines);
        else
            SetLinePixels(layer, band, lines);
        m_painter.drawImage(QPoint(band.left, band.top), layer);
    }
    m_position = lines.back().to;
    m_patternPhase = 0;
}

void CHmiPainterDC::ApplyPenAndBrush()
{
    QPen pen(ToQColor(m_pen.color), PenWidth(m_pen), ToQtPenStyle(m_pen.style));
    pen.setCosmetic(m_pen.width <= 1);
    m_painter.setPen(pen);
    m_painter.setBrush(m_brush.hollow ? QBrush(Qt::NoBrush) : QBrush(ToQColor(m_brush.color)));
}

void CHmiPainterDC::Rectangle(const HmiRect& rect)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    if (r.Width() <= 0 || r.Height() <= 0)
        return;
    if (!m_brush.hollow)
        m_painter.fillRect(ToQRect(r), ToQColor(m_brush.color));
    if (m_pen.style == HmiPenStyle::Null)
        return;
    if (m_pen.width > 1) {
        ApplyPenAndBrush();
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(QRect(r.left, r.top, r.Width() - 1, r.Height() - 1));
        return;
    }
    if (r.Width() == 1 || r.Height() == 1) {
        m_painter.fillRect(ToQRect(r), ToQColor(m_pen.color));
        return;
    }
    // The outline as one closed run of pixels, so that a dotted pattern runs on around it.
    const HmiPoint corners[] = {{r.left, r.top}, {r.right - 1, r.top}, {r.right - 1, r.bottom - 1}, {r.left, r.bottom - 1}};
    m_patternPhase = 0;
    for (int i = 0; i < 4; ++i)
        DrawThinLine(corners[i], corners[(i + 1) % 4]);
    m_patternPhase = 0;
}

void CHmiPainterDC::Ellipse(const HmiRect& rect)
{
    const HmiRect r = rect.ForDrawing().Normalized();
    if (r.Width() <= 0 || r.Height() <= 0)
        return;
    ApplyPenAndBrush();
    const QRect box(r.left, r.top, r.Width() - 1, r.Height() - 1);
    // The painter's ellipses may set pixels past its clip, as a flat one's fill does on the row
    // below. Their pixels reach past the box too: by the pen, and along the longer side of a flat
    // one by a tenth of its length or so, which a whole length each way allows for. One that the
    // clip may cut is drawn in a layer of the part that can be seen, which the painter then lays
    // down through its clip.
    const int pen = PenWidth(m_pen) + 1;
    const QRect pixels = box.adjusted(-box.width() - pen, -box.height() - pen, box.width() + pen, box.height() + pen);
    if (!m_clip || !PaintsWholeDevicePixels() || QRegion(pixels).subtracted(*m_clip).isEmpty()) {
        m_painter.drawEllipse(box);
        return;
    }
    const QRect seen = m_painter.combinedTransform().mapRect(pixels & ToQRect(m_clipBox));
    DrawInLayer(seen, seen, [&](QPainter& layer) {
        layer.setPen(m_painter.pen());
        layer.setBrush(m_painter.brush());
        layer.drawEllipse(box);
    });
}

void CHmiPainterDC::Polygon(std::span<const HmiPoint> points)
{
    if (points.size() < 2)
        return;
    QPolygon polygon;
    polygon.reserve(int(points.size()));
    for (const HmiPoint& point : points) {
        const HmiPoint p = point.ForDrawing();
        polygon.append(QPoint(p.x, p.y));
    }
    ApplyPenAndBrush();
    m_painter.drawPolygon(polygon, Qt::OddEvenFill);
}

void CHmiPainterDC::FillSolidRect(const HmiRect& rect, HmiColor color)
{
    m_painter.fillRect(ToQRect(rect), ToQColor(color));
}

void CHmiPainterDC::DrawText(std::string_view text, const HmiRect& rect, std::uint32_t format)
{
    // The same text in the same look and box size sets the same pixels wherever the box stands,
    // so a canvas paints texts it has drawn before from their pixels.
    const QRect box = ToQRect(rect);
    const HmiRect area{box.left(), box.top(), box.left() + box.width(), box.top() + box.height()};
    if (Meets(area, m_clipBox)) {
        std::string key = HmiReuseKey("text", {box.width(), box.height(), format, m_textColor, m_bkColor,
                                               std::int64_t(m_bkMode), m_font.height, m_font.weight, m_font.italic,
                                               m_font.underline, m_font.strikeOut, m_font.charSet,
                                               m_font.pitchAndFamily, std::int64_t(m_font.face.size())});
        key.append(m_font.face).append(text);
        const auto draw = [&](CHmiDC& target) {
            target.SelectFont(m_font);
            target.SetTextColor(m_textColor);
            target.SetBkColor(m_bkColor);
            target.SetBkMode(m_bkMode);
            target.DrawText(text, rect, format);
        };
        if (const KeptDrawing* kept = Kept(key, area, area, draw)) {
            m_painter.drawImage(box.topLeft() + kept->origin, kept->image);
            return;
        }
    }
    DrawTextAnew(text, box, format);
}

void CHmiPainterDC::DrawTextAnew(std::string_view text, const QRect& box, std::uint32_t format)
{
    int flags = 0;
    if (format & HMI_DT_CENTER)
        flags |= Qt::AlignHCenter;
    else if (format & HMI_DT_RIGHT)
        flags |= Qt::AlignRight;
    else
        flags |= Qt::AlignLeft;
    const bool singleLine = format & HMI_DT_SINGLELINE;
    flags |= singleLine && (format & HMI_DT_VCENTER) ? Qt::AlignVCenter : Qt::AlignTop;
    if (singleLine)
        flags |= Qt::TextSingleLine;
    else if (format & HMI_DT_WORDBREAK)
        flags |= Qt::TextWordWrap;
    if (!(format & HMI_DT_NOPREFIX))
        flags |= Qt::TextShowMnemonic;

    const QString string = ToQString(text);
    m_painter.save();
    m_painter.setClipRect(box, Qt::IntersectClip);
    m_painter.setFont(ToQFont(m_font));
    if (m_bkMode == HmiBkMode::Opaque)
        m_painter.fillRect(m_painter.boundingRect(box, flags, string), ToQColor(m_bkColor));
    m_painter.setPen(ToQColor(m_textColor));
    m_painter.drawText(box, flags, string);
    m_painter.restore();
}

HmiPoint CHmiPainterDC::GetTextExtent(std::string_view text)
{
    const QFontMetrics metrics(ToQFont(m_font));
    return {metrics.horizontalAdvance(ToQString(text)), metrics.height()};
}

bool CHmiPainterDC::DrawPictureFile(const std::string& path, const HmiRect& rect, const HmiColor* transparent)
{
    Picture* picture = Pictures().Find(path, m_paint);
    const QRect target = ToQRect(rect);
    if (!picture || target.isEmpty())
        return false;
    // Stretching a small picture costs far more than copying its stretched pixels, which follow
    // from the decoded picture, the transparent colour and the target alone: a canvas keeps the
    // part on its device. A large one costs by its pixels, as a copy of them would, and one at
    // its own size is such a copy.
    const HmiRect area = Intersection({target.left(), target.top(), target.left() + target.width(),
                                       target.top() + target.height()},
                                      m_deviceArea);
    const bool stretched = target.size() != picture->Decoded().size() || m_painter.combinedTransform().isScaling();
    if (!stretched || !Meets(area, m_clipBox)) {
        m_painter.drawImage(target, picture->Shown(transparent));
        return true;
    }
    // The painter stretches a picture that its clip cuts as if the picture began where the clip
    // does, which puts a column or a row a pixel off here and there: such a picture is stretched
    // whole, kept on the device or in a layer, and laid down through the clip.
    const bool cut = m_clip && m_painter.device()->devicePixelRatio() == 1 &&
                     m_painter.combinedTransform().type() <= QTransform::TxScale &&
                     !QRegion(ToQRect(area)).subtracted(*m_clip).isEmpty();
    if (cut || std::int64_t(area.Width()) * area.Height() <= kMaxKeptPicturePixels) {
        const std::string key = HmiReuseKey(
            "picture", {picture->Decoded().cacheKey(), transparent ? std::int64_t(*transparent) : -1, target.left(),
                        target.top(), target.width(), target.height(), area.left, area.top, area.right, area.bottom});
        const auto draw = [&](CHmiDC& aside) { aside.DrawPictureFile(path, rect, transparent); };
        if (const KeptDrawing* kept = Kept(key, area, area, draw, kMaxKeptCutPicturePixels)) {
            m_painter.drawImage(QPoint(area.left, area.top) + kept->origin, kept->image);
            return true;
        }
    }
    if (cut)
        DrawCutPicture(target, picture->Shown(transparent));
    else
        m_painter.drawImage(target, picture->Shown(transparent));
    return true;
}

void CHmiPainterDC::DrawCutPicture(const QRect& target, const QImage& shown)
{
    // The layer holds the device's pixels from the picture's first one on the device, where the
    // painter starts stretching an uncut picture, to the last one seen.
    const QTransform toDevice = m_painter.combinedTransform();
    const QRect onDevice = toDevice.mapRect(QRectF(target)).toAlignedRect() & m_device;
    const QRect seen = onDevice & toDevice.mapRect(QRectF(ToQRect(m_clipBox))).toAlignedRect();
    if (seen.isEmpty())
        return;
    const QRect reach(onDevice.topLeft(), seen.bottomRight());
    if (!DrawInLayer(reach, seen, [&](QPainter& layer) { layer.drawImage(target, shown); }))
        m_painter.drawImage(target, shown); // out of memory: a pixel off is the lesser harm
}

bool CHmiPainterDC::DrawInLayer(const QRect& reach, const QRect& seen, const std::function<void(QPainter&)>& draw)
{
    QImage layer(reach.size(), QImage::Format_ARGB32_Premultiplied);
    if (layer.isNull())
        return false;
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setTransform(m_painter.combinedTransform() * QTransform::fromTranslate(-reach.left(), -reach.top()));
    draw(painter);
    painter.end();
    m_painter.save();
    m_painter.resetTransform();
    m_painter.drawImage(seen.topLeft(), layer, seen.translated(-reach.topLeft()));
    m_painter.restore();
    return true;
}

void CHmiPainterDC::DrawReusable(const std::string& key, const HmiRect& box, const std::function<void(CHmiDC&)>& paint)
{
    // Only what lies on the device is kept, and the key names that part too. A drawing that
    // reaches an edge of the box on the device may go on past it: it is painted anew each time.
    const HmiRect wanted = box.ForDrawing().Normalized();
    const HmiRect area = Intersection(wanted, m_deviceArea);
    if (!Meets(area, m_clipBox))
        return paint(*this);
    const HmiRect inner{area.left + (wanted.left >= m_deviceArea.left ? 1 : 0),
                        area.top + (wanted.top >= m_deviceArea.top ? 1 : 0),
                        area.right - (wanted.right <= m_deviceArea.right ? 1 : 0),
                        area.bottom - (wanted.bottom <= m_deviceArea.bottom ? 1 : 0)};
    const KeptDrawing* kept =
        Kept(key + HmiReuseKey("", {area.left, area.top, area.right, area.bottom}), area, inner, paint);
    if (!kept)
        return paint(*this);
    m_painter.drawImage(QPoint(area.left, area.top) + kept->origin, kept->image);
    MoveTo(kept->position);
}

const KeptDrawing* CHmiPainterDC::Kept(const std::string& key, const HmiRect& area, const HmiRect& inner,
                                       const std::function<void(CHmiDC&)>& paint, std::int64_t maxPixels)
{
    const bool keepable = m_cache && area.Width() > 0 && area.Height() > 0 &&
                          std::int64_t(area.Width()) * area.Height() <= maxPixels && PaintsWholeDevicePixels();
    if (!keepable)
        return nullptr;
    CHmiDrawingCache::Store& store = *m_cache->m_store;
    CHmiDrawingCache::Store::Entry* entry = store.Use(key);
    if (entry && !entry->drawing && store.MakeRoom(std::size_t(area.Width()) * std::size_t(area.Height()) * 4))
        store.Keep(key, DrawAside(area, inner, paint));
    if (!entry || !entry->drawing || entry->drawing->image.isNull())
        return nullptr;
    return &*entry->drawing;
}

HmiRect CHmiPainterDC::GetClipBox() const
{
    return m_clipBox;
}
