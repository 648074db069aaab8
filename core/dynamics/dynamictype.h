#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

class XmlElement;

// How a bound expression drives a property: one object per binding, owned by the property
// record it is attached to. Each binding type ("color_digit", "text_int", ...) derives from it.
class CHmiDynamicType {
public:
    virtual ~CHmiDynamicType() = default;

    // The type name written as the `type` attribute of a `dynamic` element.
    virtual const char* GetTypeName() const = 0;

    // The runtime expression composed from the raw expression and the parameters;
    // empty when the raw expression is empty.
    virtual std::string ComposeExpression() const = 0;

    // Appends the binding's inner element (`type_params` or `code`) to a window file text.
    virtual void WriteInnerElement(std::string& archive) const = 0;

    // Reads one inner element (`type_params` or `code`) of a `dynamic` element of a window
    // file; false when the element lacks what the type needs, and then nothing is stored.
    virtual bool ReadInnerElement(const XmlElement& element) = 0;

    virtual std::unique_ptr<CHmiDynamicType> Clone() const = 0;

    // The texts the user entered that may name variables: the raw expression, and whatever else
    // a type composes into the runtime expression. Renaming a variable edits them in place.
    virtual std::vector<std::string*> ExpressionTexts() { return {&expression}; }

    // The user's raw expression; for a script binding, the script code.
    std::string expression;
};

// A new binding of the named type with its defaults; null for a name that is not one of
// "color_digit", "color_analog", "text_int", "text_float", "text_double", "script" (exact case).
std::unique_ptr<CHmiDynamicType> CreateDynamicType(std::string_view typeName);
