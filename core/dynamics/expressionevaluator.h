#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// Evaluates the runtime expressions of bindings, for the preview: the expressions the binding
// types compose and those the engineer types. The language reads like C: decimal, "0x"
// hexadecimal and floating-point numbers, texts in double quotes, variable references as the
// variable picker writes them, the C operators with C precedence and associativity, the
// conditional ?:, parentheses, and the panel runtime's formatting functions
//   long2str2(value, width)           the whole number, right-aligned in width characters
//   float2str3(value, int, dec)       the value as a float, dec decimals, right-aligned in
//   double2str3(value, int, dec)      int + 1 + dec characters (int characters when dec is 0)
// Whole numbers compute in 64 bits and wrap; integer division truncates toward zero;
// comparisons and the logical operators give 0 or 1; && || ?: evaluate only the side they take.
// A number with a floating-point part makes the arithmetic it takes part in floating-point.
// Texts compare with == != < <= > >= and join with +. A leading zero does not make a number
// octal: engineers write limits such as 05 and mean five.
// The editor keeps expressions as opaque text; nothing here changes them.

// An expression's value: a whole number, a floating-point number or a text.
using ExpressionValue = std::variant<std::int64_t, double, std::string>;

struct ExpressionError {
    std::size_t position = 0; // byte offset into the expression's text
    std::string message;
};

struct ExpressionResult {
    ExpressionValue value;
    std::optional<ExpressionError> error;

    explicit operator bool() const { return !error; }
};

// Where the references of an expression find their values.
class CExpressionValues {
public:
    virtual ~CExpressionValues() = default;
    // The value of a reference ("$plc.level", "$speed"); null for a name no variable has.
    virtual const ExpressionValue* FindValue(std::string_view reference) const = 0;
};

// An expression read once and evaluated as often as values change.
class CCompiledExpression {
public:
    explicit CCompiledExpression(std::string_view text);
    CCompiledExpression(CCompiledExpression&&) noexcept;
    CCompiledExpression& operator=(CCompiledExpression&&) noexcept;
    ~CCompiledExpression();

    // What keeps the text from being an expression, with where it stands; none when it reads.
    const std::optional<ExpressionError>& SyntaxError() const { return m_syntaxError; }
    // The distinct variable references the expression reads, in text order.
    const std::vector<std::string>& References() const { return m_references; }
    // The syntax error, or the value, or the first error met on the way (an unknown variable,
    // division by zero, an operator that does not take its operands' kind).
    ExpressionResult Evaluate(const CExpressionValues& values) const;

    struct Node;

private:
    std::vector<Node> m_nodes; // the root is the last node
    std::vector<std::string> m_references;
    std::optional<ExpressionError> m_syntaxError;

    friend class CExpressionParser;
    friend class CExpressionRun;
};

// The text a value shows as in a property: whole numbers in decimal, floating-point numbers
// with up to six decimals and no trailing zeros, texts as they are.
std::string ExpressionValueText(const ExpressionValue& value);
