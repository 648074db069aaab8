#include "project/projectpath.h"
#include "project/windowlist.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

TEST(ProjectPath, EndsWithASlashOnceSet)
{
    SetProjectPath("/home/u/proj");
    EXPECT_EQ(GetProjectPath(), "/home/u/proj/");
    SetProjectPath("/");
    EXPECT_EQ(GetProjectPath(), "/");
    SetProjectPath("");
    EXPECT_EQ(GetProjectPath(), "");
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
    std::vector<HmiWindowEntry> entries;
    auto collect = [&](const HmiWindowEntry& entry) { entries.push_back(entry); };
    const std::string path = dir.Write("hmiwindow.xml", "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwindow>\n"
                                                        "  <window name=\"A\" caption=\"\xB9\xF8\" filename=\"a.xml\"/>\n"
                                                        "  <other name=\"X\"/>\n"
                                                        "  <window name=\"B\" filename=\"b.xml\"><window name=\"deep\"/></window>\n"
                                                        "</hmiwindow>\n");
    EXPECT_EQ(ReadWindowList(path, collect), 1);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries[0].caption, "\xB9\xF8") << "GB2312 text comes back as it was";
    EXPECT_EQ(entries[1].name, "B");
    EXPECT_EQ(entries[1].caption, "");
    EXPECT_EQ(entries[1].filename, "b.xml");

    entries.clear();
    EXPECT_EQ(ReadWindowList(dir.Write("empty.xml", "<hmiwindow/>"), collect), 1);
    EXPECT_EQ(ReadWindowList(dir.Write("other.xml", "<windows><window name=\"A\"/></windows>"), collect), 0);
    EXPECT_EQ(ReadWindowList(dir.Write("broken.xml", "<hmiwindow><window"), collect), 0);
    EXPECT_EQ(ReadWindowList(dir.Path("missing.xml"), collect), 0);
    EXPECT_TRUE(entries.empty());
}
