#include "widgetfilereader.h"

#include "base/logcategories.h"
#include "dynamics/dynamictype.h"
#include "hmiwidgetcustom.h"
#include "project/readnotices.h"
#include "project/xmldocument.h"

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
    std::string name = element.Attribute("name");
    if (classKey.empty()) {
        qCDebug(lcFile, "widget '%s' skipped: it has no class", name.c_str());
        return nullptr;
    }
    const CHmiRuntimeClass* runtimeClass = CHmiWidget::GetWidgetClass(classKey);
    HmiWidgetPtr widget = runtimeClass->CreateObject();
    if (!widget)
        return nullptr;
    if (runtimeClass == &CHmiWidgetCustom::classCHmiWidgetCustom) {
        qCDebug(lcFile, "widget '%s': no class '%s' is registered; read as a custom widget", name.c_str(),
                classKey.c_str());
        static_cast<CHmiWidgetCustom&>(*widget).ClassName = classKey;
    }

    if (name.empty()) {
        qCDebug(lcFile, "a widget of class '%s' skipped: it has no name", classKey.c_str());
        return nullptr;
    }
    widget->SetWidgetName(std::move(name));

    for (XmlElement section : ChildElements(element)) {
        bool ok = true;
        if (section.Is("properties"))
            ok = ReadProperties(*widget, section);
        else if (section.Is("dynamics"))
            ok = ReadDynamics(*widget, section);
        else if (section.Is("events"))
            ok = ReadEvents(*widget, section);
        if (!ok) {
            qCDebug(lcFile, "widget '%s' skipped: its <%s> holds an entry without a name or a value",
                    widget->GetWidgetName().c_str(), section.Name().c_str());
            return nullptr;
        }
    }
    return widget;
}

FileResult ReadWidgetStream(XmlChildStream& stream, const std::function<void(HmiWidgetPtr)>& reader, int& errorLine)
{
    const auto failed = [&] {
        errorLine = stream.ErrorLine();
        return FileResult::Failure(stream.Error());
    };
    if (!stream.IsValid())
        return failed();
    if (stream.RootName() != "hmiwidget")
        return FileResult::Failure("The file is not a window file: its root element is <" + stream.RootName() + ">.");
    while (XmlElement element = stream.Next()) {
        if (element.Is("widget"))
            reader(ReadWidget(element));
    }
    return stream.IsValid() ? FileResult::Success() : failed();
}

// Reads the stream's widgets and hands them to the sink only once the whole text has been read:
// a file that turns out not to be XML at its end gives no widgets at all.
FileResult ReadWindowStream(XmlChildStream& stream, const WidgetSink& sink)
{
    std::vector<HmiWidgetPtr> widgets;
    CReadNoticeCollector notices;
    int errorLine = 0;
    FileResult result = ReadWidgetStream(stream, [&](HmiWidgetPtr widget) {
        if (widget)
            widgets.push_back(std::move(widget));
    }, errorLine);
    if (!result)
        return result;
    for (HmiWidgetPtr& widget : widgets)
        sink(std::move(widget));
    result.notices = notices.Take();
    return result;
}

} // namespace

FileResult ReadWidgetElements(std::string_view text, const std::function<void(HmiWidgetPtr)>& reader, int& errorLine)
{
    XmlChildStream stream(text);
    return ReadWidgetStream(stream, reader, errorLine);
}

FileResult ReadWindowText(std::string_view text, const WidgetSink& sink)
{
    XmlChildStream stream(text);
    return ReadWindowStream(stream, sink);
}

FileResult ReadWindowFile(const std::string& path, const WidgetSink& sink)
{
    CFileReader file(path);
    if (!file.Result()) {
        qCDebug(lcFile, "%s", file.Result().error.c_str());
        return file.Result();
    }
    XmlChildStream stream(file);
    std::size_t count = 0;
    FileResult result = ReadWindowStream(stream, [&](HmiWidgetPtr widget) {
        ++count;
        sink(std::move(widget));
    });
    if (!file.Result()) {
        qCDebug(lcFile, "%s", file.Result().error.c_str());
        return file.Result();
    }
    if (!result)
        result.error = "Cannot open " + path + ": " + result.error;
    if (result)
        qCDebug(lcFile, "read %s: %zu widgets", path.c_str(), count);
    else
        qCDebug(lcFile, "%s", result.error.c_str());
    return result;
}
