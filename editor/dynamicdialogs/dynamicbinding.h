#pragma once

#include <memory>
#include <string>

class CHmiDynamicType;
class CHmiWidgetProp;

// The record's expression for a binding: the composed runtime expression. A script composes
// none, yet the `dynamic` element is written only for a record with an expression, so a script
// with code is marked by its type name; the panel runs the code of the `code` element.
std::string BindingExpression(const CHmiDynamicType& binding);

// Attaches a binding to the property and sets the property's expression from it; null removes
// the binding and clears the expression.
void ApplyDynamicBinding(CHmiWidgetProp& prop, std::unique_ptr<CHmiDynamicType> binding);
