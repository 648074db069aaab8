#pragma once

#include <memory>
#include <string>

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

    virtual std::unique_ptr<CHmiDynamicType> Clone() const = 0;

    // The user's raw expression; for a script binding, the script code.
    std::string expression;
};
