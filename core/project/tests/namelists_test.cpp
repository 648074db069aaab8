#include "project/namelists.h"
#include "project/projectpath.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

#include <tuple>
#include <utility>

namespace {

std::string Repeated(const char* element, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += std::string("<") + element + " name=\"n" + std::to_string(i) + "\"/><skip/>";
    return text;
}

struct NameListsTest : ::testing::Test {
    void SetUp() override { SetProjectPath(dir.Path("")); }
    void TearDown() override { SetProjectPath(""); }

    // What a reader returns, and how many names it gave.
    std::pair<int, int> Read(int (*reader)(std::string names[], int& count))
    {
        const int read = reader(names, count);
        return {read, count};
    }

    TempDir dir;
    std::string names[kMaxDataLogNames];
    int count = -1;
};

} // namespace

TEST_F(NameListsTest, WithoutAProjectNothingIsRead)
{
    SetProjectPath("");
    EXPECT_EQ(Read(GetHmiLognameDesp), std::pair(0, 0));
    EXPECT_EQ(Read(GetHmiHistoryDbname), std::pair(0, 0));
}

TEST_F(NameListsTest, DataLogNamesInFileOrderUpToTheLimit)
{
    dir.Write("datalog.xml", "<datalog>" + Repeated("log", 150) + "</datalog>");
    EXPECT_EQ(Read(GetHmiLognameDesp), std::pair(1, 100));
    EXPECT_EQ(std::tuple(names[0], names[99]), std::tuple("n0", "n99"));

    dir.Write("datalog.xml", "<logs>" + Repeated("log", 3) + "</logs>");
    EXPECT_EQ(Read(GetHmiLognameDesp), std::pair(1, 0)) << "another root gives no names";
}

TEST_F(NameListsTest, HistoryNamesUpToTheLimit)
{
    EXPECT_EQ(Read(GetHmiHistoryDbname), std::pair(1, 0)) << "no file";

    dir.Write("history.xml", "<zqhistory>" + Repeated("historydb", 40) + "</zqhistory>");
    EXPECT_EQ(Read(GetHmiHistoryDbname), std::pair(1, 32));
    EXPECT_EQ(names[31], "n31");

    // The older form, with its one nameless database, is read by the data widgets' tests.
    dir.Write("history.xml", "<zqhistory><historydb name=\"a\"/>");
    EXPECT_EQ(Read(GetHmiHistoryDbname), std::pair(1, 0)) << "a broken file gives no names";
}

TEST_F(NameListsTest, VariablesOfOneHistoryDatabase)
{
    dir.Write("history.xml", "<zqhistory>"
                             "<historydb name=\"a\"><history dataname=\"t1\"/><config/><history dataname=\"t2\"/>"
                             "</historydb><historydb name=\"b\"><history dataname=\"p\"/></historydb>"
                             "<historydb name=\"b\"><history dataname=\"second\"/></historydb></zqhistory>");
    EXPECT_EQ(GetHistoryVariableNames("a"), (std::vector<std::string>{"t1", "t2"}));
    EXPECT_EQ(GetHistoryVariableNames("b"), std::vector<std::string>{"p"}) << "the first database of a name";
    EXPECT_TRUE(GetHistoryVariableNames("A").empty()) << "names compare exactly";

    dir.Write("history.xml", "<history><historydb name=\"a\"><history dataname=\"t1\"/></historydb></history>");
    EXPECT_TRUE(GetHistoryVariableNames("a").empty());
    SetProjectPath("");
    EXPECT_TRUE(GetHistoryVariableNames("a").empty());
}
