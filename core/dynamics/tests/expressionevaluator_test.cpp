// The evaluator against C: precedence, every operator, the formatting functions, what the
// binding types compose, and errors with their positions.

#include "dynamics/dynamictypes.h"
#include "dynamics/expressionevaluator.h"

#include <gtest/gtest.h>

#include <map>

namespace {

class MapValues : public CExpressionValues {
public:
    const ExpressionValue* FindValue(std::string_view reference) const override
    {
        const auto found = values.find(std::string(reference));
        return found == values.end() ? nullptr : &found->second;
    }
    std::map<std::string, ExpressionValue> values{
        {"$plc.level", 42.5}, {"$speed", std::int64_t(7)}, {"$mode", std::string("auto")}, {"$plc.level2", std::int64_t(-3)}};
};

std::string Shown(std::string_view text, const MapValues& values = {})
{
    const ExpressionResult result = CCompiledExpression(text).Evaluate(values);
    if (!result)
        return "error at " + std::to_string(result.error->position) + ": " + result.error->message;
    return ExpressionValueText(result.value);
}

} // namespace

TEST(ExpressionEvaluator, FollowsCPrecedenceAssociativityAndOperators)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"1 + 2 * 3", "7"},        {"(1 + 2) * 3", "9"},       {"10 - 4 - 3", "3"},        {"100 / 10 / 5", "2"},
        {"7 / 2", "3"},            {"-7 / 2", "-3"},           {"-7 % 3", "-1"},           {"7.0 / 2", "3.5"},
        {"1 << 2 + 1", "8"},       {"-16 >> 2", "-4"},         {"1 < 2 == 1", "1"},        {"3 > 2 > 1", "0"},
        {"6 & 3 ^ 1 | 8", "11"},   {"1 | 2 ^ 3 & 1", "3"},     {"2 <= 2", "1"},            {"2 >= 3", "0"},
        {"2 != 2.0", "0"},         {"!0 + !5 + ~0", "0"},      {"-(-3) + +2", "5"},        {"0x1F + 0Xa", "41"},
        {"1.5e1 + .5", "15.5"},    {"05 + 1", "6"},            {"1 || 1 && 0", "1"},       {"0 && 1 / 0", "0"},
        {"1 || 1 / 0", "1"},       {"2 ? 3 : 1 / 0", "3"},     {"0 ? 1 : 0 ? 2 : 3", "3"}, {"1 ? 0 ? 4 : 5 : 6", "5"},
        {"9223372036854775807 + 1", "-9223372036854775808"},  {"(-9223372036854775807 - 1) / -1", "-9223372036854775808"},
        {"$plc.level * 2", "85"},  {"$speed % 4", "3"},        {"$plc.level2 < 0", "1"},   {"$mode == \"auto\"", "1"},
        {"\"a\\\"b\" + \"c\"", "a\"bc"}, {"\"abc\" < \"abd\"", "1"}, {"0.1 + 0.2 == 0.3", "0"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Shown(text), expected) << text;
}

TEST(ExpressionEvaluator, FormatsNumbersWithWidthsAndRounding)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"long2str2(42, 5)", "   42"},
        {"long2str2(-42, 0)", "-42"},
        {"long2str2(12345678, 3)", "12345678"},
        {"long2str2(3.99, 2)", " 3"},
        {"float2str3(3.14159, 4, 2)", "   3.14"},
        {"float2str3(2.675, 0, 2)", "2.67"},
        {"float2str3(16777217, 0, 0)", "16777216"},
        {"double2str3(16777217, 0, 0)", "16777217"},
        {"double2str3(0.125, 1, 2)", "0.12"},
        {"double2str3(-0.5, 3, 0)", " -0"},
        {"double2str3(1, 1, 3)", "1.000"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Shown(text), expected) << text;
}

TEST(ExpressionEvaluator, EvaluatesWhatEachBindingComposes)
{
    CHmiDynColorAnalog analog;
    analog.expression = "$plc.level";
    analog.count = 3;
    analog.defaultColor = 0x1;
    analog.limits = {"10", "20.5", "$speed * 10"};
    analog.colors = {0x10, 0x20, 0x30};
    MapValues values;
    const std::pair<double, std::string_view> levels[] = {
        {-5, "1"}, {9.99, "1"}, {10, "16"}, {20.4, "16"}, {20.5, "32"}, {69, "32"}, {70, "48"}, {1e9, "48"}};
    for (const auto& [level, colour] : levels) {
        values.values["$plc.level"] = level;
        EXPECT_EQ(Shown(analog.ComposeExpression(), values), colour) << level;
    }
    analog.count = 0;
    EXPECT_EQ(Shown(analog.ComposeExpression(), values), "1");

    CHmiDynColorDigit digit;
    digit.expression = "$speed > 5";
    digit.openColor = 0xff;
    digit.closeColor = 0xff00;
    EXPECT_EQ(Shown(digit.ComposeExpression()), "255");

    CHmiDynTextInt whole;
    whole.expression = "$speed * 3";
    whole.intWidth = 4;
    CHmiDynTextFloat single;
    single.expression = "$plc.level / 4";
    single.intWidth = 3;
    CHmiDynTextDouble twice;
    twice.expression = "$plc.level";
    twice.decWidth = 0;
    EXPECT_EQ(Shown(whole.ComposeExpression()), "  21");
    EXPECT_EQ(Shown(single.ComposeExpression()), " 10.62");
    EXPECT_EQ(Shown(twice.ComposeExpression()), "42");
}

TEST(ExpressionEvaluator, ReportsErrorsWithTheirPositions)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"", "error at 0: the expression ends where a value should follow"},
        {"1 +", "error at 3: the expression ends where a value should follow"},
        {"(1 + 2", "error at 6: expected ')' to close the '(' at 0"},
        {"1 ? 2", "error at 5: expected ':' of the '?' at 2"},
        {"2 $x", "error at 2: unexpected '$'"},
        {"1 / ($speed - 7)", "error at 2: division by zero"},
        {"1.0 % 2", "error at 4: this operator takes whole numbers"},
        {"$speed + $plc.levl", "error at 9: unknown variable $plc.levl"},
        {"max(1, 2)", "error at 0: unknown function 'max'"},
        {"level + 1", "error at 0: unknown name 'level' (variables start with '$')"},
        {"long2str2(1)", "error at 11: long2str2 takes 2 arguments"},
        {"long2str2(1, 65)", "error at 13: width 65 is outside 0 to 64"},
        {"float2str3(\"a\", 1, 1)", "error at 11: a number is needed here, not a text"},
        {"$mode ? 1 : 2", "error at 0: a text is no condition"},
        {"$mode + 1", "error at 6: a text meets a number"},
        {"1 << 64", "error at 2: shift count 64 is outside 0 to 63"},
        {"~1.5", "error at 0: '~' takes a whole number"},
        {"\"open", "error at 0: the text has no closing '\"'"},
        {"99999999999999999999", "error at 0: the number is too large"},
        {"12ab + 0x", "error at 0: malformed number"},
        {"$ + 1", "error at 0: '$' without a variable name"},
        {"\xd6\xd0 + 1", "error at 0: unknown name '\xd6\xd0' (variables start with '$')"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Shown(text), expected) << text;

    std::string chain = "1";
    for (int i = 0; i < 300; ++i)
        chain += "+1";
    for (const std::string& deep : {std::string(300, '(') + "1" + std::string(300, ')'), std::string(300, '-') + "1", chain})
        EXPECT_NE(Shown(deep).find("nests too deeply"), std::string::npos) << deep;

    const CCompiledExpression expression("$b + $a * $b + \"$c\"");
    EXPECT_EQ(expression.References(), (std::vector<std::string>{"$b", "$a"}));
}
