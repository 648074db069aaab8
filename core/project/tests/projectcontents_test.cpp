#include "project/projectcontents.h"
#include "project/projectpath.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

auto Fields(const ProjectWindow& window)
{
    return std::tuple(window.name, window.caption, window.filename, window.listed, window.present);
}

} // namespace

TEST(ProjectContentsTest, ReadsWhatTheFolderHolds)
{
    const TempDir dir;
    dir.Write("hmiwindow.xml", "<hmiwindow><window name=\"b\" caption=\"Boiler\" filename=\"b.xml\"/>"
                               "<window name=\"gone\" caption=\"\" filename=\"gone.xml\"/></hmiwindow>");
    dir.Write("b.xml", "<hmiwidget/>");
    dir.Write("a-extra.xml", "<?xml version=\"1.0\"?><hmiwidget><widget name=\"w\" class=\"rect\"/></hmiwidget>");
    dir.Write("notxml.xml", "plain text");
    dir.Write(".hidden.xml", "<hmiwidget/>");
    dir.Write("rtdb.xml", "<rtdbs><rtdb name=\"plc\"><datagroup name=\"io\">"
                          "<data name=\"level\" type=\"ulong\" init=\"0\"/></datagroup></rtdb></rtdbs>");
    dir.Write("hmidb.xml", "<hmidb><datagroup name=\"memory\"><data name=\"speed\" type=\"long\"/></datagroup></hmidb>");
    dir.Write("history.xml", "<zqhistory><historydb name=\"hourly\"/></zqhistory>");
    dir.Write("datalog.xml", "<datalog><log name=\"boiler\"/></datalog>");
    dir.Write("Logo.PNG", "");
    dir.Write("photo.jpeg", "");
    dir.Write("notes.txt", "");
    SetProjectPath(dir.Path(""));
    const CProjectContents contents;
    SetProjectPath("");

    // The list's windows in its order, whether their files are there or not, then the window
    // files it lacks (other XML files and text that is not XML are not windows).
    ASSERT_EQ(contents.Windows().size(), 3u);
    EXPECT_EQ(Fields(contents.Windows()[0]), std::tuple("b", "Boiler", "b.xml", true, true));
    EXPECT_EQ(Fields(contents.Windows()[1]), std::tuple("gone", "", "gone.xml", true, false));
    EXPECT_EQ(Fields(contents.Windows()[2]), std::tuple("", "", "a-extra.xml", false, true));

    EXPECT_EQ(contents.Variables().AllReferenceTexts(), (std::vector<std::string>{"$plc.level", "$speed"}));
    EXPECT_EQ(contents.HistoryDatabases(), std::vector<std::string>{"hourly"});
    EXPECT_EQ(contents.DataLogs(), std::vector<std::string>{"boiler"});
    EXPECT_EQ(contents.Pictures(), (std::vector<std::string>{"Logo.PNG", "photo.jpeg"}));
    EXPECT_EQ(contents.SourcePaths().front(), dir.Path(""));

    // Without a project nothing is read.
    const CProjectContents none;
    EXPECT_TRUE(none.Windows().empty() && none.Pictures().empty() && none.SourcePaths().empty());
}
