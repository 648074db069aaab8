// The drawing steps of the button, text and input widgets and the picture, and how a picture
// file comes into the project.

#include "catalogue/hmiwidgetbutton.h"
#include "catalogue/hmiwidgetnuminput.h"
#include "catalogue/hmiwidgetpic.h"
#include "catalogue/hmiwidgettext.h"
#include "catalogue/hmiwidgettextinput.h"
#include "tests/support/fulldiskscope.h"
#include "tests/support/memoryoptiontree.h"
#include "tests/support/recordingdc.h"
#include "tests/support/tempdir.h"
#include "widgets/tamlodoc.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <tuple>

TEST(Button, DrawsARaisedFrameAndTheCaptionCentredWithItsAmpersand)
{
    CHmiWidgetButton button;
    button.SetWidgetRect({10, 10, 60, 30});
    button.m_strCaption = "A&B";
    button.m_nFontSize = 1; // 8 points: the bold 12-pixel serif
    button.m_nShadowWidth = 2;
    const RecordingDC dc = DrawnBy(button);
    ASSERT_EQ(dc.ShapesOfKind("rectangle").size(), 1u);
    EXPECT_EQ(std::tuple(dc.shapes[0].rect, dc.shapes[0].brush.color), std::tuple(HmiRect{9, 9, 62, 32}, 0xC0C0C0u));
    const auto polygons = dc.ShapesOfKind("polygon");
    ASSERT_EQ(polygons.size(), 4u);
    EXPECT_EQ(std::tuple(polygons[0].points, polygons[0].brush.color),
              std::tuple(std::vector<HmiPoint>{{10, 10}, {12, 12}, {12, 28}, {10, 30}}, 0xFFFFFFu));
    EXPECT_EQ(std::tuple(polygons[3].points, polygons[3].pen.color),
              std::tuple(std::vector<HmiPoint>{{10, 30}, {12, 28}, {58, 28}, {60, 30}}, 0x808080u));
    const auto text = dc.ShapesOfKind("text");
    ASSERT_EQ(text.size(), 1u);
    EXPECT_EQ(std::tuple(text[0].text, text[0].bkMode), std::tuple("A&B", HmiBkMode::Transparent));
    EXPECT_EQ(text[0].format, HMI_DT_CENTER | HMI_DT_VCENTER | HMI_DT_SINGLELINE | HMI_DT_NOPREFIX);
    EXPECT_EQ(std::tuple(text[0].font.face, text[0].font.height, text[0].font.weight), std::tuple("MS Serif", 12, 700));
    EXPECT_EQ(dc.font, HmiFont::DefaultGui()) << "the previous font is put back";

    button.m_nFontSize = 9;
    EXPECT_EQ(DrawnBy(button).ShapesOfKind("text")[0].font, HmiFont::DefaultGui())
        << "an unknown size keeps the current font";

    // Borders without a width have no area: their outlines would paint stray lines.
    button.m_nShadowWidth = 0;
    EXPECT_TRUE(DrawnBy(button).ShapesOfKind("polygon").empty());
}

TEST(Text, WrapsInTheFontOfItsSizeAndDrawsNothingForAnUnknownAlign)
{
    CHmiWidgetText text;
    text.SetWidgetRect({50, 40, 10, 20});
    text.m_nAlign = 2;
    text.m_nFontSize = 1;
    text.m_color = 0xFF;
    const RecordingDC dc = DrawnBy(text);
    const auto drawn = dc.ShapesOfKind("text");
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(std::tuple(drawn[0].rect, drawn[0].format, drawn[0].color),
              std::tuple(HmiRect{10, 20, 50, 40}, HMI_DT_RIGHT | HMI_DT_WORDBREAK, 0xFFu));
    EXPECT_EQ(drawn[0].font.face, "MS Serif") << "8 points alone takes the serif face";
    EXPECT_EQ(dc.textColor, 0u) << "the previous text colour is put back";

    text.m_nFontSize = 0;
    EXPECT_EQ(DrawnBy(text).ShapesOfKind("text")[0].font.face, "MS Sans Serif");

    text.m_nAlign = 7;
    EXPECT_TRUE(DrawnBy(text).shapes.empty());
}

TEST(InputFields, ShowAPlaceholderInABoxOnlyWhenOpaque)
{
    CHmiWidgetNumInput number;
    number.SetWidgetRect({0, 0, 80, 20});
    number.m_nAlign = 3;
    const RecordingDC transparent = DrawnBy(number);
    ASSERT_EQ(transparent.shapes.size(), 1u);
    EXPECT_EQ(std::tuple(transparent.shapes[0].text, transparent.shapes[0].format, transparent.shapes[0].font.face),
              std::tuple("##", HMI_DT_LEFT | HMI_DT_VCENTER | HMI_DT_SINGLELINE, "MS Serif"))
        << "every alignment shows on the left";

    number.m_nTransparent = 0;
    const RecordingDC opaque = DrawnBy(number);
    EXPECT_EQ(opaque.ShapesOfKind("rectangle").size(), 1u);
    EXPECT_EQ(opaque.ShapesOfKind("polygon").size(), 4u);
    number.m_nShadowWidth = 0;
    EXPECT_EQ(DrawnBy(number).ShapesOfKind("polygon").size(), 0u) << "only the filled box";

    CHmiWidgetTextInput text;
    text.m_nFontSize = 0;
    const RecordingDC textDc = DrawnBy(text);
    ASSERT_EQ(textDc.ShapesOfKind("text").size(), 1u);
    EXPECT_EQ(std::tuple(textDc.shapes[0].text, textDc.shapes[0].font.face), std::tuple("abc", "MS SansSerif"));
    text.m_nAlign = 5;
    EXPECT_TRUE(DrawnBy(text).ShapesOfKind("text").empty());
}

TEST(Picture, PaintsItsFileFromTheWindowFolderOrAFrameWithoutOne)
{
    CTamloDoc doc;
    doc.SetPictureFolder("/project");
    auto* picture = new CHmiWidgetPic;
    picture->SetWidgetRect({1, 2, 30, 40});
    doc.AddWidget(HmiWidgetPtr(picture), true);
    const RecordingDC frame = DrawnBy(*picture);
    ASSERT_EQ(frame.shapes.size(), 1u);
    EXPECT_EQ(frame.shapes[0].kind, "rectangle");

    picture->m_strFileName = "pump.png";
    picture->m_nTransparent = 1;
    picture->m_transparentColor = 0xFF00FF;
    const RecordingDC dc = DrawnBy(*picture);
    ASSERT_EQ(dc.shapes.size(), 1u);
    EXPECT_EQ(std::tuple(dc.shapes[0].text, dc.shapes[0].rect, dc.shapes[0].transparent, dc.shapes[0].color),
              std::tuple("/project/pump.png", HmiRect{1, 2, 30, 40}, true, 0xFF00FFu));
}

// Choosing from elsewhere, a file already in the project and one of the same name are
// covered through the editor's file dialog; this is the path typed into the row.
TEST(Picture, ATypedPathIsCopiedIntoTheProjectOrChangesNothing)
{
    TempDir dir;
    std::filesystem::create_directories(dir.Path("project"));
    CTamloDoc doc;
    doc.SetPictureFolder(dir.Path("project/"));
    auto* picture = new CHmiWidgetPic;
    doc.AddWidget(HmiWidgetPtr(picture), true);
    MemoryOptionTree tree;
    picture->CreateWidgetPropertyTree(tree);
    MemoryOptionItem* file = tree.Find("filename", "Picture");
    file->SetEditText(dir.Write("valve.png", "valve"));
    picture->UpdateWidgetPropByTree(file);
    EXPECT_EQ(picture->m_strFileName, "valve.png");
    EXPECT_EQ(dir.Read("project/valve.png"), "valve");
    file->SetEditText(dir.Path("missing.png"));
    picture->UpdateWidgetPropByTree(file);
    EXPECT_EQ(picture->m_strFileName, "valve.png") << "a file that cannot be copied changes nothing";
}

TEST(Picture, AnImportThatFailsKeepsThePictureOfTheSameName)
{
    TempDir dir;
    for (const char* folder : {"project", "fifo", "large"})
        std::filesystem::create_directories(dir.Path(folder));
    const std::string project = dir.Path("project/");
    dir.Write("project/logo.png", "the picture the window shows");
    ASSERT_EQ(::mkfifo(dir.Path("fifo/logo.png").c_str(), 0644), 0);
    std::filesystem::resize_file(dir.Write("large/logo.png", ""), kMaxFileSize + 1);
    const std::string newer = dir.Write("logo.png", "a newer picture, longer than a full disk takes");

    std::string name;
    FileResult onFullDisk;
    {
        FullDiskScope full;
        onFullDisk = ImportPictureFile(newer, project, name);
    }
    EXPECT_FALSE(onFullDisk);
    const struct {
        std::string chosen;
        const char* reason;
    } refused[] = {
        {dir.Path("fifo/logo.png"), "it is not a regular file"},
        {dir.Path("large/logo.png"), "larger than the limit"},
    };
    for (const auto& [chosen, reason] : refused) {
        const FileResult imported = ImportPictureFile(chosen, project, name);
        EXPECT_FALSE(imported) << chosen;
        EXPECT_NE(imported.error.find(reason), std::string::npos) << imported.error;
    }
    EXPECT_TRUE(dir.Read("project/logo.png") == "the picture the window shows") << "the old picture is kept";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(project), {}), 1) << "no temporary file is left";
}
