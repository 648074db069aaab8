#include "expressionevaluator.h"

#include "base/numberparsers.h"
#include "expressiontext.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace {

// Deeper expressions are refused rather than risking the stack: a colour cascade of 32 levels
// nests about 70 steps deep.
constexpr int kMaxDepth = 256;
// The widest field a formatting function fills.
constexpr std::int64_t kMaxFieldWidth = 64;

enum class Op : std::uint8_t {
    Negate, Plus, Not, Complement,
    Multiply, Divide, Remainder, Add, Subtract, ShiftLeft, ShiftRight,
    Less, LessEqual, Greater, GreaterEqual, Equal, NotEqual,
    BitAnd, BitXor, BitOr, LogicalAnd, LogicalOr,
};

struct BinaryOperator {
    std::string_view text;
    Op op;
    int precedence; // higher binds tighter
};

// Two-character operators first, so that "<<" is not read as "<".
constexpr std::array<BinaryOperator, 18> kBinaryOperators = {{
    {"<<", Op::ShiftLeft, 9}, {">>", Op::ShiftRight, 9}, {"<=", Op::LessEqual, 8}, {">=", Op::GreaterEqual, 8},
    {"==", Op::Equal, 7},     {"!=", Op::NotEqual, 7},   {"&&", Op::LogicalAnd, 3}, {"||", Op::LogicalOr, 2},
    {"*", Op::Multiply, 11},  {"/", Op::Divide, 11},     {"%", Op::Remainder, 11},  {"+", Op::Add, 10},
    {"-", Op::Subtract, 10},  {"<", Op::Less, 8},        {">", Op::Greater, 8},     {"&", Op::BitAnd, 6},
    {"^", Op::BitXor, 5},     {"|", Op::BitOr, 4},
}};

// A comparison gives 0 or 1; none for an operator that compares nothing.
template <class T>
std::optional<std::int64_t> Compared(Op op, const T& a, const T& b)
{
    switch (op) {
    case Op::Less: return a < b;
    case Op::LessEqual: return a <= b;
    case Op::Greater: return a > b;
    case Op::GreaterEqual: return a >= b;
    case Op::Equal: return a == b;
    case Op::NotEqual: return a != b;
    default: return std::nullopt;
    }
}

enum class Function : std::uint8_t { Long2Str2, Float2Str3, Double2Str3 };

struct KnownFunction {
    std::string_view name;
    Function function;
    int arguments;
};

constexpr std::array<KnownFunction, 3> kFunctions = {{
    {"long2str2", Function::Long2Str2, 2},
    {"float2str3", Function::Float2Str3, 3},
    {"double2str3", Function::Double2Str3, 3},
}};

enum class NodeKind : std::uint8_t { Constant, Variable, Unary, Binary, Conditional, Call };

struct Failure {
    ExpressionError error;
};

[[noreturn]] void Fail(std::size_t position, std::string message)
{
    throw Failure{{position, std::move(message)}};
}

bool IsText(const ExpressionValue& value)
{
    return std::holds_alternative<std::string>(value);
}

double AsDouble(const ExpressionValue& value)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return double(*whole);
    return std::get<double>(value);
}

// A floating-point number as C converts it to a whole one, held to the range (NaN gives 0).
std::int64_t Truncated(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double kLimit = 9223372036854775807.0;
    if (value >= kLimit)
        return std::numeric_limits<std::int64_t>::max();
    if (value <= -kLimit)
        return std::numeric_limits<std::int64_t>::min();
    return std::int64_t(value);
}

std::string Formatted(const char* format, int width, int decimals, double value)
{
    std::string text(std::size_t(std::snprintf(nullptr, 0, format, width, decimals, value)), '\0');
    std::snprintf(text.data(), text.size() + 1, format, width, decimals, value);
    return text;
}

} // namespace

struct CCompiledExpression::Node {
    Node(NodeKind kind, std::size_t position, Op op = Op::Plus) : kind(kind), op(op), position(position) {}

    NodeKind kind;
    Op op;
    Function function = Function::Long2Str2;
    std::size_t position;
    std::array<std::int32_t, 3> operands{-1, -1, -1};
    std::size_t reference = 0; // a variable: its index in References()
    ExpressionValue constant;
    int depth = 1;
};

using Node = CCompiledExpression::Node;

// Reads the text into the expression's nodes, children before their parents.
class CExpressionParser {
public:
    CExpressionParser(std::string_view text, CCompiledExpression& expression) : m_text(text), m_expression(expression) {}

    void Parse()
    {
        ParseConditional();
        SkipBlanks();
        if (m_at < m_text.size())
            Fail(m_at, "unexpected '" + std::string(m_text.substr(m_at, 1)) + "'");
    }

private:
    struct NestingGuard {
        explicit NestingGuard(CExpressionParser& parser) : parser(parser)
        {
            if (++parser.m_nesting > kMaxDepth)
                Fail(parser.m_at, "the expression nests too deeply");
        }
        ~NestingGuard() { --parser.m_nesting; }
        CExpressionParser& parser;
    };

    std::int32_t ParseConditional()
    {
        const NestingGuard guard(*this);
        const std::int32_t condition = ParseBinary(1);
        if (!Accept("?"))
            return condition;
        const std::size_t position = m_at - 1;
        const std::int32_t whenTrue = ParseConditional();
        if (!Accept(":"))
            Fail(m_at, "expected ':' of the '?' at " + std::to_string(position));
        const std::int32_t whenFalse = ParseConditional();
        Node node(NodeKind::Conditional, position);
        node.operands = {condition, whenTrue, whenFalse};
        return Add(std::move(node));
    }

    std::int32_t ParseBinary(int minPrecedence)
    {
        std::int32_t left = ParseUnary();
        while (const BinaryOperator* binary = PeekBinary()) {
            if (binary->precedence < minPrecedence)
                break;
            const std::size_t position = m_at;
            m_at += binary->text.size();
            const std::int32_t right = ParseBinary(binary->precedence + 1); // left-associative
            Node node(NodeKind::Binary, position, binary->op);
            node.operands = {left, right, -1};
            left = Add(std::move(node));
        }
        return left;
    }

    std::int32_t ParseUnary()
    {
        const NestingGuard guard(*this);
        SkipBlanks();
        static constexpr std::array<std::pair<char, Op>, 4> kUnary = {
            {{'-', Op::Negate}, {'+', Op::Plus}, {'!', Op::Not}, {'~', Op::Complement}}};
        for (const auto& [sign, op] : kUnary) {
            // "!=" never starts an operand, so a '!' here is always the negation.
            if (m_at < m_text.size() && m_text[m_at] == sign) {
                const std::size_t position = m_at++;
                Node node(NodeKind::Unary, position, op);
                node.operands[0] = ParseUnary();
                return Add(std::move(node));
            }
        }
        return ParsePrimary();
    }

    std::int32_t ParsePrimary()
    {
        SkipBlanks();
        if (m_at == m_text.size())
            Fail(m_at, "the expression ends where a value should follow");
        const char c = m_text[m_at];
        if (c == '(') {
            const std::size_t open = m_at++;
            const std::int32_t inner = ParseConditional();
            if (!Accept(")"))
                Fail(m_at, "expected ')' to close the '(' at " + std::to_string(open));
            return inner;
        }
        if (c == '"') {
            const std::size_t start = m_at;
            return Constant(start, ReadText());
        }
        if ((c >= '0' && c <= '9') || (c == '.' && m_at + 1 < m_text.size() && std::isdigit(static_cast<unsigned char>(m_text[m_at + 1]))))
            return ReadNumber();
        if (c == '$')
            return ReadReference();
        if (StartsName(c))
            return ReadCall();
        Fail(m_at, "unexpected '" + std::string(1, c) + "'");
    }

    std::int32_t ReadNumber()
    {
        const std::size_t start = m_at;
        ExpressionValue value;
        std::from_chars_result read{};
        const char* begin = m_text.data() + start;
        const char* end = m_text.data() + m_text.size();
        if (m_text.substr(start, 2) == "0x" || m_text.substr(start, 2) == "0X") {
            std::uint64_t whole = 0;
            read = std::from_chars(begin + 2, end, whole, 16);
            if (read.ptr == begin + 2)
                Fail(start, "'0x' without hexadecimal digits");
            value = std::int64_t(whole);
        } else {
            std::size_t at = start;
            const auto digits = [&] {
                while (at < m_text.size() && std::isdigit(static_cast<unsigned char>(m_text[at])))
                    ++at;
            };
            digits();
            bool floating = false;
            if (at < m_text.size() && m_text[at] == '.') {
                floating = true;
                ++at;
                digits();
            }
            if (at < m_text.size() && (m_text[at] | 0x20) == 'e') {
                floating = true;
                ++at;
                if (at < m_text.size() && (m_text[at] == '+' || m_text[at] == '-'))
                    ++at;
                digits();
            }
            if (floating) {
                double real = 0;
                read = std::from_chars(begin, m_text.data() + at, real);
                value = real;
            } else {
                std::int64_t whole = 0;
                read = std::from_chars(begin, m_text.data() + at, whole);
                value = whole;
            }
        }
        if (read.ec == std::errc::result_out_of_range)
            Fail(start, "the number is too large");
        if (read.ec != std::errc() || (read.ptr < end && StartsName(*read.ptr)) || (read.ptr < end && *read.ptr == '.'))
            Fail(start, "malformed number");
        m_at = std::size_t(read.ptr - m_text.data());
        return Constant(start, std::move(value));
    }

    std::string ReadText()
    {
        const std::size_t open = m_at++;
        std::string text;
        while (m_at < m_text.size() && m_text[m_at] != '"') {
            char c = m_text[m_at++];
            if (c == '\\' && m_at < m_text.size()) {
                c = m_text[m_at++];
                c = c == 'n' ? '\n' : c == 't' ? '\t' : c;
            }
            text += c;
        }
        if (m_at == m_text.size())
            Fail(open, "the text has no closing '\"'");
        ++m_at;
        return text;
    }

    std::int32_t ReadReference()
    {
        const std::size_t start = m_at;
        m_at = ReferenceEnd(m_text, start);
        if (m_at == start + 1)
            Fail(start, "'$' without a variable name");
        const std::string_view reference = m_text.substr(start, m_at - start);
        std::vector<std::string>& references = m_expression.m_references;
        Node node(NodeKind::Variable, start);
        node.reference = std::size_t(std::find(references.begin(), references.end(), reference) - references.begin());
        if (node.reference == references.size())
            references.emplace_back(reference);
        return Add(std::move(node));
    }

    std::int32_t ReadCall()
    {
        const std::size_t start = m_at;
        m_at = NameEnd(m_text, start);
        const std::string_view name = m_text.substr(start, m_at - start);
        const auto known = std::find_if(kFunctions.begin(), kFunctions.end(),
                                       [name](const KnownFunction& f) { return f.name == name; });
        if (!Accept("("))
            Fail(start, "unknown name '" + std::string(name) + "' (variables start with '$')");
        if (known == kFunctions.end())
            Fail(start, "unknown function '" + std::string(name) + "'");
        Node node(NodeKind::Call, start);
        node.function = known->function;
        for (int argument = 0; argument < known->arguments; ++argument) {
            if (argument > 0 && !Accept(","))
                Fail(m_at, std::string(name) + " takes " + std::to_string(known->arguments) + " arguments");
            node.operands[std::size_t(argument)] = ParseConditional();
        }
        if (!Accept(")"))
            Fail(m_at, std::string(name) + " takes " + std::to_string(known->arguments) + " arguments");
        return Add(std::move(node));
    }

    std::int32_t Constant(std::size_t position, ExpressionValue value)
    {
        Node node(NodeKind::Constant, position);
        node.constant = std::move(value);
        return Add(std::move(node));
    }

    std::int32_t Add(Node node)
    {
        for (const std::int32_t operand : node.operands)
            if (operand >= 0)
                node.depth = std::max(node.depth, m_expression.m_nodes[std::size_t(operand)].depth + 1);
        if (node.depth > kMaxDepth)
            Fail(node.position, "the expression nests too deeply");
        m_expression.m_nodes.push_back(std::move(node));
        return std::int32_t(m_expression.m_nodes.size() - 1);
    }

    const BinaryOperator* PeekBinary()
    {
        SkipBlanks();
        const std::string_view rest = m_text.substr(m_at);
        for (const BinaryOperator& binary : kBinaryOperators)
            if (rest.starts_with(binary.text))
                return &binary;
        return nullptr;
    }

    bool Accept(std::string_view token)
    {
        SkipBlanks();
        if (!m_text.substr(m_at).starts_with(token))
            return false;
        m_at += token.size();
        return true;
    }

    void SkipBlanks()
    {
        while (m_at < m_text.size() && (m_text[m_at] == ' ' || m_text[m_at] == '\t' || m_text[m_at] == '\r' ||
                                        m_text[m_at] == '\n'))
            ++m_at;
    }

    std::string_view m_text;
    CCompiledExpression& m_expression;
    std::size_t m_at = 0;
    int m_nesting = 0;
};

// One evaluation: walks the nodes from the root, failing with the first error.
class CExpressionRun {
public:
    CExpressionRun(const CCompiledExpression& expression, const CExpressionValues& values)
        : m_expression(expression), m_values(values)
    {
    }

    ExpressionValue Evaluate(std::int32_t index) const
    {
        const Node& node = m_expression.m_nodes[std::size_t(index)];
        switch (node.kind) {
        case NodeKind::Constant:
            return node.constant;
        case NodeKind::Variable: {
            const std::string& reference = m_expression.m_references[node.reference];
            if (const ExpressionValue* value = m_values.FindValue(reference))
                return *value;
            Fail(node.position, "unknown variable " + reference);
        }
        case NodeKind::Unary:
            return Unary(node, Evaluate(node.operands[0]));
        case NodeKind::Binary:
            if (node.op == Op::LogicalAnd || node.op == Op::LogicalOr) {
                const bool left = Condition(node.operands[0]);
                if (left == (node.op == Op::LogicalOr))
                    return std::int64_t(left);
                return std::int64_t(Condition(node.operands[1]));
            }
            return Binary(node, Evaluate(node.operands[0]), Evaluate(node.operands[1]));
        case NodeKind::Conditional:
            return Evaluate(Condition(node.operands[0]) ? node.operands[1] : node.operands[2]);
        case NodeKind::Call:
            return Call(node);
        }
        return {};
    }

private:
    bool Condition(std::int32_t index) const
    {
        const ExpressionValue value = Evaluate(index);
        if (IsText(value))
            Fail(m_expression.m_nodes[std::size_t(index)].position, "a text is no condition");
        return AsDouble(value) != 0;
    }

    static ExpressionValue Unary(const Node& node, const ExpressionValue& operand)
    {
        if (IsText(operand))
            Fail(node.position, "this operator takes a number, not a text");
        const auto* whole = std::get_if<std::int64_t>(&operand);
        switch (node.op) {
        case Op::Negate:
            if (whole)
                return std::int64_t(0 - std::uint64_t(*whole));
            return -std::get<double>(operand);
        case Op::Not:
            return std::int64_t(AsDouble(operand) == 0);
        case Op::Complement:
            if (!whole)
                Fail(node.position, "'~' takes a whole number");
            return ~*whole;
        default:
            return operand;
        }
    }

    static ExpressionValue Binary(const Node& node, const ExpressionValue& left, const ExpressionValue& right)
    {
        if (IsText(left) || IsText(right))
            return TextBinary(node, left, right);
        const auto* a = std::get_if<std::int64_t>(&left);
        const auto* b = std::get_if<std::int64_t>(&right);
        if (a && b)
            return WholeBinary(node, *a, *b);
        const double x = AsDouble(left);
        const double y = AsDouble(right);
        if (const std::optional<std::int64_t> compared = Compared(node.op, x, y))
            return *compared;
        switch (node.op) {
        case Op::Multiply: return x * y;
        case Op::Divide:
            if (y == 0)
                Fail(node.position, "division by zero");
            return x / y;
        case Op::Add: return x + y;
        case Op::Subtract: return x - y;
        default:
            Fail(node.position, "this operator takes whole numbers");
        }
    }

    static ExpressionValue WholeBinary(const Node& node, std::int64_t a, std::int64_t b)
    {
        // Unsigned arithmetic wraps as the panel's integers do, where signed overflow would be
        // undefined.
        const auto ua = std::uint64_t(a);
        const auto ub = std::uint64_t(b);
        if (const std::optional<std::int64_t> compared = Compared(node.op, a, b))
            return *compared;
        switch (node.op) {
        case Op::Multiply: return std::int64_t(ua * ub);
        case Op::Divide:
        case Op::Remainder:
            if (b == 0)
                Fail(node.position, "division by zero");
            if (b == -1) // the one quotient that does not fit
                return node.op == Op::Divide ? std::int64_t(0 - ua) : std::int64_t(0);
            return node.op == Op::Divide ? a / b : a % b;
        case Op::Add: return std::int64_t(ua + ub);
        case Op::Subtract: return std::int64_t(ua - ub);
        case Op::ShiftLeft:
        case Op::ShiftRight:
            if (b < 0 || b > 63)
                Fail(node.position, "shift count " + std::to_string(b) + " is outside 0 to 63");
            return node.op == Op::ShiftLeft ? std::int64_t(ua << b) : a >> b;
        case Op::BitAnd: return a & b;
        case Op::BitXor: return a ^ b;
        case Op::BitOr: return a | b;
        default: return std::int64_t(0);
        }
    }

    static ExpressionValue TextBinary(const Node& node, const ExpressionValue& left, const ExpressionValue& right)
    {
        if (!IsText(left) || !IsText(right))
            Fail(node.position, "a text meets a number");
        const std::string& a = std::get<std::string>(left);
        const std::string& b = std::get<std::string>(right);
        if (const std::optional<std::int64_t> compared = Compared(node.op, a, b))
            return *compared;
        if (node.op != Op::Add)
            Fail(node.position, "texts only compare and join with '+'");
        return a + b;
    }

    ExpressionValue Number(const Node& call, int argument) const
    {
        const std::int32_t index = call.operands[std::size_t(argument)];
        ExpressionValue value = Evaluate(index);
        if (IsText(value))
            Fail(m_expression.m_nodes[std::size_t(index)].position, "a number is needed here, not a text");
        return value;
    }

    int Width(const Node& call, int argument) const
    {
        const ExpressionValue value = Number(call, argument);
        const auto* whole = std::get_if<std::int64_t>(&value);
        const std::int64_t width = whole ? *whole : Truncated(std::get<double>(value));
        if (width < 0 || width > kMaxFieldWidth)
            Fail(m_expression.m_nodes[std::size_t(call.operands[std::size_t(argument)])].position,
                 "width " + std::to_string(width) + " is outside 0 to " + std::to_string(kMaxFieldWidth));
        return int(width);
    }

    ExpressionValue Call(const Node& call) const
    {
        const ExpressionValue value = Number(call, 0);
        if (call.function == Function::Long2Str2) {
            const auto* whole = std::get_if<std::int64_t>(&value);
            const long long number = whole ? *whole : Truncated(std::get<double>(value));
            const int width = Width(call, 1);
            std::string text(std::size_t(std::snprintf(nullptr, 0, "%*lld", width, number)), '\0');
            std::snprintf(text.data(), text.size() + 1, "%*lld", width, number);
            return text;
        }
        const int intWidth = Width(call, 1);
        const int decimals = Width(call, 2);
        const int width = decimals > 0 ? intWidth + 1 + decimals : intWidth;
        double number = AsDouble(value);
        if (call.function == Function::Float2Str3)
            number = double(static_cast<float>(number));
        return Formatted("%*.*f", width, decimals, number);
    }

    const CCompiledExpression& m_expression;
    const CExpressionValues& m_values;
};

CCompiledExpression::CCompiledExpression(CCompiledExpression&&) noexcept = default;
CCompiledExpression& CCompiledExpression::operator=(CCompiledExpression&&) noexcept = default;
CCompiledExpression::~CCompiledExpression() = default;

CCompiledExpression::CCompiledExpression(std::string_view text)
{
    try {
        CExpressionParser(text, *this).Parse();
    } catch (const Failure& failure) {
        m_syntaxError = failure.error;
        m_nodes.clear();
    }
}

ExpressionResult CCompiledExpression::Evaluate(const CExpressionValues& values) const
{
    if (m_syntaxError)
        return {std::int64_t(0), m_syntaxError};
    try {
        return {CExpressionRun(*this, values).Evaluate(std::int32_t(m_nodes.size() - 1)), std::nullopt};
    } catch (const Failure& failure) {
        return {std::int64_t(0), failure.error};
    }
}

std::string ExpressionValueText(const ExpressionValue& value)
{
    if (const auto* whole = std::get_if<std::int64_t>(&value))
        return std::to_string(*whole);
    if (const auto* real = std::get_if<double>(&value)) {
        if (!std::isfinite(*real))
            return std::isnan(*real) ? "nan" : *real > 0 ? "inf" : "-inf";
        std::string text = HmiFormatFloat(*real);
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
            text.pop_back();
        return text == "-0" ? "0" : text;
    }
    return std::get<std::string>(value);
}
