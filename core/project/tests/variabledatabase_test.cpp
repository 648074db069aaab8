#include "project/variabledatabase.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

namespace {

const VariableNode& Child(const VariableNode& node, const std::string& text)
{
    for (const VariableNode* child : node.children)
        if (child->text == text)
            return *child;
    throw std::runtime_error("no node " + text);
}

std::vector<std::vector<std::string>> CellsOf(const VariableNode& node)
{
    std::vector<std::vector<std::string>> cells;
    for (const VariableRow& row : node.rows)
        cells.push_back(CHmiVariableDatabase::Cells(node, row));
    return cells;
}

// Groups nested this deep around the given content.
std::string Groups(int depth, const std::string& content = {})
{
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += "<datagroup name=\"g\">";
    text += content;
    for (int i = 0; i < depth; ++i)
        text += "</datagroup>";
    return text;
}

struct VariableDatabaseTest : ::testing::Test {
    TempDir dir;
    CHmiVariableDatabase db;
};

} // namespace

TEST_F(VariableDatabaseTest, DataRowsFollowTheTypeTable)
{
    ASSERT_EQ(db.ReadRealtimeDatabase(dir.Write("rtdb.xml",
        "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<rtdbs><rtdb name=\"plc\">"
        "<data name=\"a\" type=\"ulong\" init=\"0\"/>"
        "<data name=\"s\" type=\"string\" init=\"\" length=\"8\"/>"
        "<data name=\"t\" type=\"string\" init=\"x\"/>"
        "<data name=\"u\" type=\"mystery\" init=\"1\" length=\"3\" description=\"odd\"/>"
        "<data name=\"v\" type=\"mystery\" init=\"1\"/>"
        "<data name=\"w\" type=\"double\" init=\"2.5\" length=\"16\" description=\"\xCE\xC2\xB6\xC8\"/>"
        "<datalias aliasname=\"alpha\" name=\"a\"/><datalias aliasname=\"beta\"/>"
        "</rtdb><rtdb><data name=\"lost\" type=\"long\" init=\"0\"/></rtdb></rtdbs>")), 1);
    const VariableNode& plc = Child(db.RealtimeRoot(), "plc");
    ASSERT_EQ(db.RealtimeRoot().children.size(), 1u) << "a database needs a name";
    EXPECT_EQ(CellsOf(plc), (std::vector<std::vector<std::string>>{
                                {"plc", "a", "unsigned long", "", "4", "0", ""},
                                {"plc", "u", "", "odd", "3", "1", ""},
                                {"plc", "w", "double", "\xCE\xC2\xB6\xC8", "16", "2.5", ""},
                                {"plc", "alpha", "", "", "", "", "a"}}));
}

TEST_F(VariableDatabaseTest, NestedGroupsKeepTheirDatabaseInTheReferenceText)
{
    const std::string rtdb = dir.Write("rtdb.xml",
        "<rtdbs><rtdb name=\"plc\"><datagroup name=\"io\"><datagroup name=\"in\">"
        "<data name=\"x1\" type=\"uchar\" init=\"0\"/></datagroup>"
        "<datagroup><data name=\"hidden\" type=\"uchar\" init=\"0\"/></datagroup></datagroup></rtdb></rtdbs>");
    ASSERT_EQ(db.ReadRealtimeDatabase(rtdb), 1);
    ASSERT_EQ(db.ReadRealtimeDatabase(rtdb), 1);
    EXPECT_EQ(db.RealtimeRoot().children.size(), 2u) << "a database read twice is listed twice";
    const VariableNode& io = Child(Child(db.RealtimeRoot(), "plc"), "io");
    EXPECT_EQ(io.children.size(), 1u) << "a group needs a name";
    const VariableNode& in = Child(io, "in");
    ASSERT_EQ(in.rows.size(), 1u);
    EXPECT_EQ(CHmiVariableDatabase::Cells(in, in.rows[0])[0], "plc");
    EXPECT_EQ(CHmiVariableDatabase::ReferenceText(in, in.rows[0]), "$plc.x1");

    EXPECT_EQ(db.ReadRealtimeDatabase(dir.Write("bad.xml", "<rtdb name=\"x\"/>")), 0);
    EXPECT_EQ(db.ReadRealtimeDatabase(dir.Path("none.xml")), 0);
    EXPECT_EQ(db.RealtimeRoot().children.size(), 2u);
}

TEST_F(VariableDatabaseTest, HmiVariablesGoUnderTheirExactlyNamedGroups)
{
    ASSERT_EQ(db.ReadHmiDatabase(dir.Write("hmidb.xml",
        "<hmidb>"
        "<datagroup name=\"io\"><data name=\"level\" dbname=\"plc\" dataname=\"lv\"/></datagroup>"
        "<datagroup name=\"IO\"><data name=\"ignored\"/></datagroup>"
        "<datagroup name=\"memory\"><data name=\"speed\" type=\"float\" length=\"4\" init=\"0\"/>"
        "<datagroup name=\"a\"><datagroup name=\"b\"><datagroup name=\"c\"><data name=\"deep\" type=\"long\"/>"
        "</datagroup></datagroup></datagroup></datagroup>"
        "<datagroup name=\"memory\"><data name=\"second\" type=\"char\"/></datagroup>"
        "<data name=\"stray\"/></hmidb>")), 1);
    const VariableNode& io = Child(db.HmiRoot(), "Realtime related data");
    const VariableNode& memory = Child(db.HmiRoot(), "Custom data");
    EXPECT_EQ(CellsOf(io), (std::vector<std::vector<std::string>>{{"level", "plc", "lv"}}));
    EXPECT_EQ(CellsOf(memory), (std::vector<std::vector<std::string>>{{"speed", "float", "4", "0"},
                                                                       {"second", "signed char", "", ""}}));
    EXPECT_EQ(CHmiVariableDatabase::ReferenceText(memory, memory.rows[0]), "$speed");
    // A group nested in the custom data takes its columns, whatever its depth.
    const VariableNode& c = Child(Child(Child(memory, "a"), "b"), "c");
    EXPECT_EQ(CHmiVariableDatabase::Columns(c),
              (std::vector<std::string>{"Data name", "Type", "Length", "Initial value"}));
    EXPECT_EQ(CHmiVariableDatabase::ReferenceText(c, c.rows[0]), "$deep");

    EXPECT_EQ(db.ReadHmiDatabase(dir.Write("wrong.xml", "<hmidbs/>")), 0);
}

TEST_F(VariableDatabaseTest, AProjectOffersEveryReferenceTextInTreeOrder)
{
    dir.Write("rtdb.xml", "<rtdbs><rtdb name=\"plc\"><data name=\"x\" type=\"long\" init=\"0\"/>"
                          "<datagroup name=\"g\"><datalias aliasname=\"y\" name=\"x\"/></datagroup></rtdb></rtdbs>");
    dir.Write("hmidb.xml", "<hmidb><datagroup name=\"memory\"><data name=\"speed\"/></datagroup></hmidb>");
    db.LoadProject(dir.Path(""));
    EXPECT_EQ(db.AllReferenceTexts(), (std::vector<std::string>{"$plc.x", "$plc.y", "$speed"}));

    CHmiVariableDatabase none;
    none.LoadProject("");
    EXPECT_TRUE(none.AllReferenceTexts().empty());
}

TEST_F(VariableDatabaseTest, HostileNestingGivesADefinedResult)
{
    constexpr int kDepth = 100000;
    db.ReadRealtimeDatabase(dir.Write("deep.xml", "<rtdbs><rtdb name=\"d\">" + Groups(kDepth) + "</rtdb></rtdbs>"));
    // The parser refuses such depth; whatever it lets through is walked without recursion.
    EXPECT_LE(db.RealtimeRoot().children.size(), 1u);
    const std::string deepHmi = "<hmidb><datagroup name=\"memory\">" + Groups(kDepth) + "</datagroup></hmidb>";
    db.ReadHmiDatabase(dir.Write("deephmi.xml", deepHmi));
    EXPECT_EQ(db.AllReferenceTexts().size(), 0u);

    // Within the parser's depth, groups nest as deep as the file has them.
    const std::string nested =
        "<hmidb><datagroup name=\"memory\">" + Groups(200, "<data name=\"bottom\"/>") + "</datagroup></hmidb>";
    CHmiVariableDatabase walked;
    ASSERT_EQ(walked.ReadHmiDatabase(dir.Write("nested.xml", nested)), 1);
    EXPECT_EQ(walked.AllReferenceTexts(), std::vector<std::string>{"$bottom"});
}
