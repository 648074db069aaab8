#include "dynamictypes.h"

#include "base/numberparsers.h"
#include "base/windowfiletext.h"
#include "project/xmldocument.h"

#include <algorithm>
#include <cstdio>
#include <initializer_list>

namespace {

std::string HexColor(HmiColor color)
{
    char text[16];
    std::snprintf(text, sizeof text, "0x%x", unsigned(color));
    return text;
}

// Signed string-to-long, as the panel converts colour texts: a hexadecimal text above
// 0x7fffffff saturates there, while "-1" still gives 0xffffffff.
HmiColor ParseColor(const std::string& text)
{
    return HmiColor(HmiParseLong(text));
}

// The opening of every `type_params` element, up to the expression's closing quote.
void OpenTypeParams(std::string& archive, const std::string& expression)
{
    archive += "\t\t\t\t<type_params expression=\"";
    AppendEscapedAttribute(archive, expression);
    archive += '"';
}

// A binding is read whole or not at all: the element must be a `type_params` that has every
// one of these attributes with a non-empty value.
bool IsCompleteTypeParams(const XmlElement& element, std::initializer_list<const char*> names)
{
    return element.Is("type_params")
           && std::none_of(names.begin(), names.end(), [&](const char* name) { return element.Attribute(name).empty(); });
}

} // namespace

// ---------------------------------------------------------------------------------------------
// color_digit

const char* CHmiDynColorDigit::GetTypeName() const
{
    return kTypeName;
}

std::string CHmiDynColorDigit::ComposeExpression() const
{
    if (expression.empty())
        return {};
    return "(" + expression + ")?" + HexColor(openColor) + ":" + HexColor(closeColor);
}

void CHmiDynColorDigit::WriteInnerElement(std::string& archive) const
{
    OpenTypeParams(archive, expression);
    archive += " opencolor=\"" + HexColor(openColor) + "\" closecolor=\"" + HexColor(closeColor) + "\" />\r\n";
}

bool CHmiDynColorDigit::ReadInnerElement(const XmlElement& element)
{
    if (!IsCompleteTypeParams(element, {"expression", "opencolor", "closecolor"}))
        return false;
    expression = element.Attribute("expression");
    openColor = ParseColor(element.Attribute("opencolor"));
    closeColor = ParseColor(element.Attribute("closecolor"));
    return true;
}

std::unique_ptr<CHmiDynamicType> CHmiDynColorDigit::Clone() const
{
    return std::make_unique<CHmiDynColorDigit>(*this);
}

// ---------------------------------------------------------------------------------------------
// color_analog

const char* CHmiDynColorAnalog::GetTypeName() const
{
    return kTypeName;
}

std::int32_t CHmiDynColorAnalog::LevelCount() const
{
    return std::clamp(count, 0, kMaxLevels);
}

std::string CHmiDynColorAnalog::ComposeExpression() const
{
    if (expression.empty())
        return {};
    // Nested conditionals, lowest limit outermost: ((E)>=(L0))?(((E)>=(L1))?C1:C0):D.
    const std::int32_t n = LevelCount();
    std::string composed;
    for (std::int32_t i = 0; i < n; ++i)
        composed += "((" + expression + ")>=(" + limits[i] + "))" + (i < n - 1 ? "?(" : "?");
    for (std::int32_t j = 0; j < n; ++j)
        composed += HexColor(colors[n - 1 - j]) + (j == 0 ? ":" : "):");
    return composed + HexColor(defaultColor);
}

void CHmiDynColorAnalog::WriteInnerElement(std::string& archive) const
{
    const std::int32_t n = LevelCount();
    OpenTypeParams(archive, expression);
    archive += " count=\"" + std::to_string(std::min(count, kMaxLevels)) + "\" defaultcolor=\"" + HexColor(defaultColor) + "\" ";
    for (std::int32_t i = 0; i < n; ++i) {
        const std::string index = std::to_string(i);
        archive += " limit_value" + index + "=\"";
        AppendPlainAttribute(archive, limits[i]);
        archive += "\" color" + index + "=\"" + HexColor(colors[i]) + "\" ";
    }
    archive += " />\r\n";
}

bool CHmiDynColorAnalog::ReadInnerElement(const XmlElement& element)
{
    if (!IsCompleteTypeParams(element, {"expression", "count", "defaultcolor"}))
        return false;
    expression = element.Attribute("expression");
    // Larger counts are cut to the slots there are; a negative count is kept as it stands and
    // means no levels (LevelCount), so the binding is written back as it was read.
    count = std::min(HmiDecimalToLong(element.Attribute("count")), kMaxLevels);
    defaultColor = ParseColor(element.Attribute("defaultcolor"));
    for (std::int32_t i = 0; i < LevelCount(); ++i) {
        const std::string index = std::to_string(i);
        const std::string limit = element.Attribute(("limit_value" + index).c_str());
        const std::string color = element.Attribute(("color" + index).c_str());
        if (limit.empty() || color.empty())
            continue;
        limits[i] = limit;
        colors[i] = ParseColor(color);
    }
    return true;
}

std::unique_ptr<CHmiDynamicType> CHmiDynColorAnalog::Clone() const
{
    return std::make_unique<CHmiDynColorAnalog>(*this);
}

std::vector<std::string*> CHmiDynColorAnalog::ExpressionTexts()
{
    std::vector<std::string*> texts = {&expression};
    for (std::int32_t i = 0; i < LevelCount(); ++i)
        texts.push_back(&limits[std::size_t(i)]);
    return texts;
}

// ---------------------------------------------------------------------------------------------
// text_int, text_float, text_double

const char* CHmiDynText::GetTypeName() const
{
    return m_typeName;
}

std::string CHmiDynText::ComposeExpression() const
{
    if (expression.empty())
        return {};
    std::string composed = std::string("(") + m_runtimeFunction + "((" + expression + ")," + std::to_string(intWidth);
    if (m_hasDecimalWidth)
        composed += "," + std::to_string(decWidth);
    return composed + "))";
}

void CHmiDynText::WriteInnerElement(std::string& archive) const
{
    OpenTypeParams(archive, expression);
    archive += " int_width=\"" + std::to_string(intWidth) + "\"";
    if (m_hasDecimalWidth)
        archive += " dec_width=\"" + std::to_string(decWidth) + "\"";
    archive += " />\r\n";
}

bool CHmiDynText::ReadInnerElement(const XmlElement& element)
{
    if (!IsCompleteTypeParams(element, {"expression", "int_width"})
        || (m_hasDecimalWidth && element.Attribute("dec_width").empty()))
        return false;
    expression = element.Attribute("expression");
    intWidth = HmiDecimalToLong(element.Attribute("int_width"));
    if (m_hasDecimalWidth)
        decWidth = HmiDecimalToLong(element.Attribute("dec_width"));
    return true;
}

std::unique_ptr<CHmiDynamicType> CHmiDynTextInt::Clone() const
{
    return std::make_unique<CHmiDynTextInt>(*this);
}

std::unique_ptr<CHmiDynamicType> CHmiDynTextFloat::Clone() const
{
    return std::make_unique<CHmiDynTextFloat>(*this);
}

std::unique_ptr<CHmiDynamicType> CHmiDynTextDouble::Clone() const
{
    return std::make_unique<CHmiDynTextDouble>(*this);
}

// ---------------------------------------------------------------------------------------------
// script

const char* CHmiDynScript::GetTypeName() const
{
    return kTypeName;
}

std::string CHmiDynScript::ComposeExpression() const
{
    return {};
}

void CHmiDynScript::WriteInnerElement(std::string& archive) const
{
    archive += "\t\t\t\t<code>\r\n\t\t\t\t\t";
    AppendCDataSection(archive, expression);
    archive += "\r\n\t\t\t\t</code>\r\n";
}

bool CHmiDynScript::ReadInnerElement(const XmlElement& element)
{
    if (!element.Is("code"))
        return false;
    expression = element.Text();
    return true;
}

std::unique_ptr<CHmiDynamicType> CHmiDynScript::Clone() const
{
    return std::make_unique<CHmiDynScript>(*this);
}

// ---------------------------------------------------------------------------------------------

std::unique_ptr<CHmiDynamicType> CreateDynamicType(std::string_view typeName)
{
    if (typeName == CHmiDynColorDigit::kTypeName)
        return std::make_unique<CHmiDynColorDigit>();
    if (typeName == CHmiDynColorAnalog::kTypeName)
        return std::make_unique<CHmiDynColorAnalog>();
    if (typeName == CHmiDynTextInt::kTypeName)
        return std::make_unique<CHmiDynTextInt>();
    if (typeName == CHmiDynTextFloat::kTypeName)
        return std::make_unique<CHmiDynTextFloat>();
    if (typeName == CHmiDynTextDouble::kTypeName)
        return std::make_unique<CHmiDynTextDouble>();
    if (typeName == CHmiDynScript::kTypeName)
        return std::make_unique<CHmiDynScript>();
    return nullptr;
}
