#include "widgetfilereader.h"

#include "dynamics/dynamictype.h"
#include "project/readnotices.h"
#include "project/textcodec.h"
#include "project/xmldocument.h"
#include "widgets/catalogue/hmiwidgetcustom.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace {

// Each section reader returns false when the section is malformed, which drops the widget.

bool ReadProperties(CHmiWidget& widget, const XmlElement& section)
{
    for (XmlElement property : ChildElements(section)) {
        if (!property.Is("property"))
            continue;
        const std::string name = property.Attribute("name");
        const std::string type = property.Attribute("type");
        if (name.empty() || type.empty())
            return false;
        widget.SetWidgetProperty(name, type, property.Attribute("value"), property.Attribute("length"));
    }
    return true;
}

bool ReadDynamics(CHmiWidget& widget, const XmlElement& section)
{
    for (XmlElement dynamic : ChildElements(section)) {
        if (!dynamic.Is("dynamic"))
            continue;
        const std::string propName = dynamic.Attribute("propname");
        const std::string expression = dynamic.Attribute("expression");
        if (propName.empty() || expression.empty())
            return false;
        CHmiWidgetProp* prop = widget.AddWidgetDynProp(propName, expression);
        if (!prop)
            continue; // no such property: nothing to bind
        std::unique_ptr<CHmiDynamicType> type = CreateDynamicType(dynamic.Attribute("type"));
        if (!type)
            continue;
        for (XmlElement inner : ChildElements(dynamic)) {
            if (inner.Is("type_params") || inner.Is("code"))
                type->ReadInnerElement(inner);
        }
        prop->SetDynamicType(std::move(type));
    }
    return true;
}

bool ReadEvents(CHmiWidget& widget, const XmlElement& section)
{
    for (XmlElement event : ChildElements(section)) {
        if (!event.Is("event"))
            continue;
        const std::string name = event.Attribute("name");
        const std::string code = event.Text();
        if (name.empty() || code.empty())
            return false;
        widget.SetWidgetEventCode(name, code);
    }
    return true;
}

HmiWidgetPtr ReadWidget(const XmlElement& element)
{
    const std::string classKey = element.Attribute("class");
    if (classKey.empty())
        return nullptr;
    const CHmiRuntimeClass* runtimeClass = CHmiWidget::GetWidgetClass(classKey);
    HmiWidgetPtr widget = runtimeClass->CreateObject();
    if (!widget)
        return nullptr;
    if (runtimeClass == &CHmiWidgetCustom::classCHmiWidgetCustom)
        static_cast<CHmiWidgetCustom&>(*widget).ClassName = classKey;

    std::string name = element.Attribute("name");
    if (name.empty())
        return nullptr;
    widget->SetWidgetName(std::move(name));

    for (XmlElement section : ChildElements(element)) {
        bool ok = true;
        if (section.Is("properties"))
            ok = ReadProperties(*widget, section);
        else if (section.Is("dynamics"))
            ok = ReadDynamics(*widget, section);
        else if (section.Is("events"))
            ok = ReadEvents(*widget, section);
        if (!ok)
            return nullptr;
    }
    return widget;
}

// Reads every widget element of a window file text, each handed to the reader as it comes;
// a widget that cannot be read is handed over as null. Fails when the text is not a window file.
FileResult ReadWidgetElements(XmlChildStream& stream, const std::function<void(HmiWidgetPtr)>& reader)
{
    if (!stream.IsValid())
        return FileResult::Failure(stream.Error());
    if (stream.RootName() != "hmiwidget")
        return FileResult::Failure("The file is not a window file: its root element is <" + stream.RootName() + ">.");
    while (XmlElement element = stream.Next()) {
        if (element.Is("widget"))
            reader(ReadWidget(element));
    }
    if (!stream.IsValid())
        return FileResult::Failure(stream.Error());
    return FileResult::Success();
}

// ---------------------------------------------------------------------------------------------
// The check before a save

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

FileResult ReadWindowText(std::string_view text, const WidgetSink& sink)
{
    // A file that turns out not to be XML at its end gives no widgets at all.
    std::vector<HmiWidgetPtr> widgets;
    CReadNoticeCollector notices;
    XmlChildStream stream(text);
    FileResult result = ReadWidgetElements(stream, [&](HmiWidgetPtr widget) {
        if (widget)
            widgets.push_back(std::move(widget));
    });
    if (!result)
        return result;
    for (HmiWidgetPtr& widget : widgets)
        sink(std::move(widget));
    result.notices = notices.Take();
    return result;
}

FileResult ReadWindowFile(const std::string& path, const WidgetSink& sink)
{
    std::string bytes;
    FileResult result = ReadWholeFile(path, bytes);
    if (!result)
        return result;
    result = ReadWindowText(bytes, sink);
    if (!result)
        result.error = path + ": " + result.error;
    return result;
}

FileResult CheckWindowFileReadsBack(std::string_view text, std::span<const WrittenWidget> widgets, std::size_t end)
{
    const std::size_t begin = widgets.empty() ? end : widgets.front().begin;
    std::string rewritten;
    rewritten.reserve(end - begin);
    CReadNoticeCollector notices; // what reading says is known to the writer already
    XmlChildStream stream(text);
    const FileResult read = ReadWidgetElements(stream, [&rewritten](HmiWidgetPtr widget) {
        if (widget && widget->Init())
            widget->Serialize(rewritten);
    });
    if (!read) {
        if (stream.ErrorLine() <= 0)
            return Unwritable(text, widgets, end, begin, read.error);
        const std::size_t at = std::clamp(OffsetOfLine(text, stream.ErrorLine()), begin, end);
        return Unwritable(text, widgets, end, at,
                          "line " + std::to_string(stream.ErrorLine()) + " of the new text is not well-formed XML");
    }
    // Code keeps its own line ends in the file, and every reader reads them as LF: that is no change.
    const std::size_t differ = FirstDifferenceAsRead(text.substr(begin, end - begin), rewritten);
    if (differ == std::string_view::npos)
        return FileResult::Success();
    return Unwritable(text, widgets, end, begin + differ, {});
}
