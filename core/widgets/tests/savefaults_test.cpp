// A save that fails at any step leaves the previous window file byte for byte as it was, no
// temporary file behind, and the document still modified.

#include "catalogue/builtinwidgets.h"
#include "tests/support/fulldiskscope.h"
#include "tests/support/tempdir.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

constexpr const char* kOldBytes = "<?xml version=\"1.0\"?>\n<hmiwidget>old window</hmiwidget>\n";

struct SaveFaultTest : ::testing::Test {
    void SetUp() override
    {
        RegisterBuiltinWidgetClasses();
        path = dir.Write("window.xml", kOldBytes);
        // Writable by the user, so that what a test puts in the way is the only obstacle.
        ::chmod(path.c_str(), 0666);
        doc.OnNewDocument();
        doc.SetModifiedFlag();
    }
    void TearDown() override { CHmiWidget::RemoveAllRunTimeClass(); }

    void ExpectOldFileKept(const FileResult& result, const char* reason)
    {
        EXPECT_FALSE(result);
        EXPECT_NE(result.error.find(reason), std::string::npos) << result.error;
        EXPECT_EQ(dir.Read("window.xml"), kOldBytes);
        EXPECT_TRUE(doc.IsModified());
        EXPECT_EQ(doc.GetPathName(), "") << "the document is still the new one";
        EXPECT_EQ(dir.Entries(), (std::vector<std::string>{"window.xml"})) << "no temporary file is left";
    }

    TempDir dir;
    std::string path;
    CTamloDoc doc;
};

} // namespace

TEST_F(SaveFaultTest, AFolderThatRefusesTheNewFileOrTheReplacement)
{
    // A folder without write permission takes no new file. In a shared folder with the sticky
    // bit, only a file's owner may replace it: the new file is written, but renaming it over the
    // old one fails.
    const std::pair<mode_t, const char*> folders[] = {{0555, "Permission denied"}, {01777, "Operation not permitted"}};
    for (const auto& [mode, reason] : folders) {
        SCOPED_TRACE(reason);
        ASSERT_EQ(::chmod(dir.Path("").c_str(), mode), 0);
        FileResult result;
        {
            UnprivilegedScope asUser;
            result = doc.Save(path);
        }
        ::chmod(dir.Path("").c_str(), 0755);
        ExpectOldFileKept(result, reason);
    }
}

TEST_F(SaveFaultTest, ADiskThatFillsUpWhileWriting)
{
    FileResult result;
    {
        FullDiskScope full;
        result = doc.Save(path);
    }
    ExpectOldFileKept(result, "File too large");
}
