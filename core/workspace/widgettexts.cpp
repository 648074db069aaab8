#include "widgettexts.h"

#include "dynamics/dynamictype.h"

namespace {

// The texts of a binding: the runtime expression, then those of its type object.
std::vector<std::string*> BindingTexts(CHmiWidgetProp& prop)
{
    std::vector<std::string*> texts = {&prop.m_strExpression};
    if (CHmiDynamicType* type = prop.GetDynamicType())
        for (std::string* text : type->ExpressionTexts())
            texts.push_back(text);
    return texts;
}

} // namespace

std::string WidgetPlace::Text() const
{
    switch (kind) {
    case Kind::Widget: return {};
    case Kind::Property: return name;
    case Kind::Binding: return "binding " + name;
    case Kind::Event: return "event " + name;
    }
    return {};
}

void ForEachVariableText(const CHmiWidget& widget,
                         const std::function<void(const WidgetPlace& place, const std::string& text)>& visit)
{
    for (const std::unique_ptr<CHmiWidgetProp>& prop : widget.GetProperties()) {
        if (std::string value; prop->m_nItemType == PROP_VARIABLE && widget.GetWidgetPropValue(*prop, value))
            visit({WidgetPlace::Kind::Property, prop->m_strName}, value);
        if (prop->m_strExpression.empty())
            continue;
        for (const std::string* text : BindingTexts(*prop))
            visit({WidgetPlace::Kind::Binding, prop->m_strName}, *text);
    }
    for (const CHmiWidgetEvent& event : widget.GetEvents())
        if (!event.code.empty())
            visit({WidgetPlace::Kind::Event, event.name}, event.code);
}

DocChange EditVariableTexts(CHmiWidget& widget,
                            const std::function<bool(const WidgetPlace& place, std::string& text)>& edit)
{
    DocChange changed = DocChange::None;
    for (const std::unique_ptr<CHmiWidgetProp>& prop : widget.GetProperties()) {
        if (std::string value; prop->m_nItemType == PROP_VARIABLE && widget.GetWidgetPropValue(*prop, value) &&
                               edit({WidgetPlace::Kind::Property, prop->m_strName}, value)) {
            // As a window file would give it; variable rows have no length of their own.
            widget.SetWidgetProperty(prop->m_strName, "string", value, {});
            changed |= DocChange::Properties;
        }
        if (prop->m_strExpression.empty())
            continue;
        for (std::string* text : BindingTexts(*prop))
            if (edit({WidgetPlace::Kind::Binding, prop->m_strName}, *text))
                changed |= DocChange::Bindings;
    }
    for (const CHmiWidgetEvent& event : widget.GetEvents()) {
        if (std::string code = event.code; !code.empty() && edit({WidgetPlace::Kind::Event, event.name}, code)) {
            widget.SetWidgetEventCode(event.name, code);
            changed |= DocChange::Events;
        }
    }
    return changed;
}
