#include "project/projectpath.h"
#include "project/windowlist.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

TEST(ProjectPath, EndsWithASlashOnceSet)
{
    for (const auto& [set, got] : {std::pair{"/home/u/proj", "/home/u/proj/"}, {"/", "/"}, {"", ""}}) {
        SetProjectPath(set);
        EXPECT_EQ(GetProjectPath(), got);
    }
}

TEST(ProjectPath, StarArgumentsNameTheProjectAndTheWindowFile)
{
    std::string argument = "*/home/u/proj*main.xml";
    EXPECT_EQ(TakeProjectArgument(argument), "/home/u/proj");
    EXPECT_EQ(argument, "/home/u/proj/main.xml");

    argument = "**main.xml";
    EXPECT_EQ(TakeProjectArgument(argument), "./");
    EXPECT_EQ(argument, "main.xml");

    for (const char* plain : {"*main.xml", "main.xml", "", "/a/b*c.xml"}) {
        argument = plain;
        EXPECT_EQ(TakeProjectArgument(argument), std::nullopt) << plain;
        EXPECT_EQ(argument, plain);
    }
}

TEST(WindowList, DeliversTheWindowsInFileOrderWithMissingAttributesEmpty)
{
    TempDir dir;
    std::vector<std::string> entries;
    auto collect = [&](const HmiWindowEntry& e) { entries.push_back(e.name + "|" + e.caption + "|" + e.filename); };
    const std::string path = dir.Write("hmiwindow.xml", "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwindow>\n"
                                                        "  <window name=\"A\" caption=\"\xB9\xF8\" filename=\"a.xml\"/>\n"
                                                        "  <other name=\"X\"/>\n"
                                                        "  <window name=\"B\" filename=\"b.xml\"><window name=\"deep\"/></window>\n"
                                                        "</hmiwindow>\n");
    EXPECT_EQ(ReadWindowList(path, collect), 1);
    EXPECT_EQ(entries, (std::vector<std::string>{"A|\xB9\xF8|a.xml", "B||b.xml"})) << "GB2312 text as it was";

    entries.clear();
    EXPECT_EQ(ReadWindowList(dir.Write("empty.xml", "<hmiwindow/>"), collect), 1);
    EXPECT_EQ(ReadWindowList(dir.Write("other.xml", "<windows><window name=\"A\"/></windows>"), collect), 0);
    EXPECT_EQ(ReadWindowList(dir.Write("broken.xml", "<hmiwindow><window"), collect), 0);
    EXPECT_EQ(ReadWindowList(dir.Path("missing.xml"), collect), 0);
    EXPECT_TRUE(entries.empty());
}
