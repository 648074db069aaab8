// Variable references and function calls as the check and the rename find them.

#include "dynamics/expressiontext.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> Texts(std::string_view text, const std::vector<TextToken>& tokens)
{
    std::vector<std::string> texts;
    for (const TextToken& token : tokens)
        texts.emplace_back(text.substr(token.offset, token.length));
    return texts;
}

TEST(ExpressionText, FindsWholeReferencesAndCallsOutsideCommentsAndStrings)
{
    struct Case {
        std::string_view text;
        std::vector<std::string> references;
        std::vector<std::string> calls;
    };
    const Case cases[] = {
        {"$plc.level2+$plc.level*$speed", {"$plc.level2", "$plc.level", "$speed"}, {}},
        {"setvar(\"$plc.level\", 1); // $old()\n/* $gone */ beep ();", {"$plc.level"}, {"setvar", "beep"}},
        {"if ($a) x.y(1); while(0) f(\"g(\\\"$b\\\")\")", {"$a", "$b"}, {"f"}},
        {"$plc. + $ + 3e2($x) + $\xd6\xd0.\xce\xc4", {"$plc", "$x", "$\xd6\xd0.\xce\xc4"}, {}},
        {"'$q' \"unterminated $r", {"$q", "$r"}, {}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(Texts(c.text, FindVariableReferences(c.text)), c.references) << c.text;
        EXPECT_EQ(Texts(c.text, FindFunctionCalls(c.text)), c.calls) << c.text;
    }

    std::string text = "($plc.level)>=($plc.level2)?$plc.level:$plc.levels";
    EXPECT_EQ(ReplaceVariableReference(text, "$plc.level", "$tank.depth_of_water"), 2u);
    EXPECT_EQ(text, "($tank.depth_of_water)>=($plc.level2)?$tank.depth_of_water:$plc.levels");
}

} // namespace
