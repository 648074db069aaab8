#include "windowfilecheck.h"

#include "base/textcodec.h"
#include "project/readnotices.h"
#include "widgetfilereader.h"

#include <algorithm>
#include <optional>

namespace {

// The value of the attribute that a written line opens with, e.g. the name of a property line.
std::optional<std::string_view> OpeningAttribute(std::string_view line, std::string_view opening)
{
    const std::size_t at = line.find(opening);
    if (at == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = line.substr(at + opening.size());
    return rest.substr(0, rest.find('"'));
}

std::string Quoted(std::string_view modelText)
{
    return "\"" + Gb2312ToUtf8OrKeep(modelText) + "\"";
}

// Names the part of a widget element that a byte of it belongs to: the property, binding or
// event whose element the line opens, or the widget element itself.
std::string DescribeWrittenPart(std::string_view element, std::size_t offset)
{
    std::string part;
    for (std::size_t lineStart = 0; lineStart <= offset && lineStart < element.size();) {
        const std::size_t lineEnd = std::min(element.find('\n', lineStart), element.size());
        const std::string_view line = element.substr(lineStart, lineEnd - lineStart);
        if (const auto name = OpeningAttribute(line, "<property name=\""))
            part = ", property " + Quoted(*name);
        else if (const auto bound = OpeningAttribute(line, "<dynamic propname=\""))
            part = ", the binding of property " + Quoted(*bound);
        else if (const auto event = OpeningAttribute(line, "<event name=\""))
            part = ", event " + Quoted(*event);
        lineStart = lineEnd + 1;
    }
    return part;
}

std::size_t OffsetOfLine(std::string_view text, int line)
{
    std::size_t offset = 0;
    for (int current = 1; current < line; ++current) {
        const std::size_t end = text.find('\n', offset);
        if (end == std::string_view::npos)
            return text.size();
        offset = end + 1;
    }
    return offset;
}

// Where two texts first differ when line ends are read as XML reads them (CR LF and a lone CR
// as LF), as an offset into the first; npos when they do not differ.
std::size_t FirstDifferenceAsRead(std::string_view a, std::string_view b)
{
    if (a == b)
        return std::string_view::npos;
    const auto next = [](std::string_view text, std::size_t& at) -> int {
        if (at >= text.size())
            return -1;
        const char c = text[at++];
        if (c != '\r')
            return static_cast<unsigned char>(c);
        if (at < text.size() && text[at] == '\n')
            ++at;
        return '\n';
    };
    for (std::size_t i = 0, j = 0;;) {
        const std::size_t at = i;
        const int fromA = next(a, i);
        if (fromA != next(b, j))
            return at;
        if (fromA < 0)
            return std::string_view::npos;
    }
}

FileResult Unwritable(std::string_view text, std::span<const WrittenWidget> widgets, std::size_t end,
                      std::size_t offset, const std::string& reason)
{
    auto after = std::upper_bound(widgets.begin(), widgets.end(), offset,
                                  [](std::size_t at, const WrittenWidget& w) { return at < w.begin; });
    std::string what = "The window";
    if (after != widgets.begin()) {
        const WrittenWidget& written = *(after - 1);
        const std::size_t elementEnd = after == widgets.end() ? end : after->begin;
        const std::string_view element = text.substr(written.begin, elementEnd - written.begin);
        what = "Widget " + Quoted(written.widget->GetWidgetName()) + DescribeWrittenPart(element, offset - written.begin);
    }
    return FileResult::Failure(what + " cannot be written so that it reads back as it stands" +
                               (reason.empty() ? std::string() : " (" + reason + ")") + ". The file was not changed.");
}

} // namespace

FileResult CheckWindowFileReadsBack(std::string_view text, std::span<const WrittenWidget> widgets, std::size_t end)
{
    const std::size_t begin = widgets.empty() ? end : widgets.front().begin;
    std::string rewritten;
    rewritten.reserve(end - begin);
    CReadNoticeCollector notices; // what reading says is known to the writer already
    int errorLine = 0;
    const FileResult read = ReadWidgetElements(text, [&rewritten](HmiWidgetPtr widget) {
        if (widget && widget->Init())
            widget->Serialize(rewritten);
    }, errorLine);
    if (!read) {
        if (errorLine <= 0)
            return Unwritable(text, widgets, end, begin, read.error);
        const std::size_t at = std::clamp(OffsetOfLine(text, errorLine), begin, end);
        return Unwritable(text, widgets, end, at,
                          "line " + std::to_string(errorLine) + " of the new text is not well-formed XML");
    }
    // Code keeps its own line ends in the file, and every reader reads them as LF: that is no change.
    const std::size_t differ = FirstDifferenceAsRead(text.substr(begin, end - begin), rewritten);
    if (differ == std::string_view::npos)
        return FileResult::Success();
    return Unwritable(text, widgets, end, begin + differ, {});
}
