#include "editor/startup/widgetlibraryloader.h"

#include "tests/support/tempdir.h"
#include "widgets/catalogue/hmiwidgetcustom.h"
#include "widgets/core/tamlodoc.h"
#include "tests/support/emptyregistry.h"
#include "widgets/core/widgetlibrary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <unistd.h>

namespace {

constexpr std::size_t kBuiltinCount = 20;
const std::string kModules = KELVO_TEST_DATA_DIR;

// Whether the library is mapped in the process, without loading it or keeping it loaded.
bool IsLoaded(const std::string& name)
{
    void* handle = dlopen((kModules + "/" + name).c_str(), RTLD_NOLOAD | RTLD_NOW);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

using LoaderTest = EmptyRegistryTest;

} // namespace

TEST_F(LoaderTest, EveryFileIsAccountedForInNameOrder)
{
    const WidgetLibraryLoadReport report = LoadWidgetLibraries(kModules);
    EXPECT_EQ(report.kept, (std::vector<std::string>{"noentrywidgets.so", "samplewidgets.so"}));
    EXPECT_EQ(report.declined, std::vector<std::string>{"decliningwidgets.so"});
    EXPECT_EQ(report.skipped, std::vector<std::string>{"notalibrary.so"});
    ASSERT_EQ(RegisteredWidgetLibs().size(), 1u);
    EXPECT_EQ(RegisteredWidgetLibs()[0].m_strName, "samplewidgets");
    EXPECT_TRUE(IsLoaded("samplewidgets.so"));
    EXPECT_TRUE(IsLoaded("noentrywidgets.so")) << "a library without an entry point stays loaded";
}

TEST_F(LoaderTest, LibraryClassesFollowTheBuiltInsAndSurviveTheWindowFile)
{
    LoadWidgetLibraries(kModules);
    ASSERT_EQ(CHmiWidget::WidgetClassList.size(), kBuiltinCount + 1);
    EXPECT_EQ(CHmiWidget::WidgetClassList.front().m_strClassKey, "ellipse") << "built-ins register first";
    EXPECT_EQ(CHmiWidget::WidgetClassList.back().m_strClassKey, "gauge");

    const CHmiRuntimeClass* gauge = CHmiWidget::GetWidgetClass("gauge");
    ASSERT_NE(gauge, &CHmiWidgetCustom::classCHmiWidgetCustom);
    HmiWidgetPtr widget = gauge->CreateObject();
    ASSERT_NE(widget->FindProperty("needle"), nullptr);
    ASSERT_EQ(widget->SetWidgetProperty("needle", "ulong", "4660", ""), 1);

    CTamloDoc doc;
    doc.OnNewDocument();
    ASSERT_TRUE(doc.AddWidget(std::move(widget), true, false));
    const TempDir dir;
    ASSERT_TRUE(doc.Save(dir.Path("gauge.xml")));

    CTamloDoc loaded;
    ASSERT_TRUE(loaded.Load(dir.Path("gauge.xml")));
    const auto found = std::find_if(loaded.Widgets().begin(), loaded.Widgets().end(),
                                    [](const HmiWidgetPtr& each) { return each->GetWidgetClassName() == "gauge"; });
    ASSERT_NE(found, loaded.Widgets().end());
    EXPECT_EQ((*found)->GetRuntimeClass(), gauge);
    std::string needle;
    ASSERT_EQ((*found)->GetWidgetPropValue(*(*found)->FindProperty("needle"), needle), 1);
    EXPECT_EQ(needle, "4660");
}

TEST_F(LoaderTest, ADecliningLibraryIsUnloadedWithEverythingItRegistered)
{
    LoadWidgetLibraries(kModules);
    EXPECT_FALSE(IsLoaded("decliningwidgets.so"));
    EXPECT_EQ(CHmiWidget::GetWidgetClass("dial"), &CHmiWidgetCustom::classCHmiWidgetCustom)
        << "a class record of unloaded code would crash the editor";
}

TEST_F(LoaderTest, ARelativeFolderIsTakenFromTheCurrentDirectory)
{
    const std::filesystem::path modules(kModules);
    const std::filesystem::path previous = std::filesystem::current_path();
    std::filesystem::current_path(modules.parent_path());
    const WidgetLibraryLoadReport report = LoadWidgetLibraries(modules.filename().string());
    std::filesystem::current_path(previous);
    EXPECT_EQ(report.kept.size(), 2u);
    EXPECT_NE(CHmiWidget::GetWidgetClass("gauge"), &CHmiWidgetCustom::classCHmiWidgetCustom);
}

TEST_F(LoaderTest, AMissingOrEmptyFolderGivesJustTheBuiltIns)
{
    const TempDir dir;
    for (const std::string& folder : {dir.Path("absent"), dir.Path("")}) {
        const WidgetLibraryLoadReport report = LoadWidgetLibraries(folder);
        EXPECT_TRUE(report.kept.empty() && report.declined.empty() && report.skipped.empty()) << folder;
        EXPECT_EQ(CHmiWidget::WidgetClassList.size(), kBuiltinCount) << folder;
        EXPECT_TRUE(RegisteredWidgetLibs().empty()) << folder;
        Clear();
    }
}
