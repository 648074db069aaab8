#include "libraries/widgetlibraryloader.h"

#include "libraries/librarycrashguard.h"
#include "libraries/widgetlibraryfolders.h"
#include "tests/support/childcost.h"
#include "tests/support/registrytest.h"
#include "tests/support/tempdir.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/tamlodoc.h"
#include "widgets/widgetlibrary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <unistd.h>
#include <utility>

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

bool IsRegistered(const std::string& key)
{
    return CHmiWidget::GetWidgetClass(key) != &CHmiWidgetCustom::classCHmiWidgetCustom;
}

using Outcomes = std::vector<std::pair<std::string, LibraryOutcome>>;

Outcomes OutcomesOf(const WidgetLibraryLoadReport& report)
{
    Outcomes outcomes;
    for (const WidgetLibraryLoad& library : report.libraries)
        outcomes.emplace_back(library.file, library.outcome);
    return outcomes;
}

// Libraries that crashed a start are remembered in a state folder of each test's own.
struct LoaderTest : EmptyRegistryTest {
    WidgetLibraryLoadReport Load(const std::string& folder) { return LoadWidgetLibraries({folder}, state.Path("")); }
    const TempDir state;
};

} // namespace

TEST_F(LoaderTest, EveryFileIsAccountedForInNameOrder)
{
    const WidgetLibraryLoadReport report = Load(kModules);
    ASSERT_EQ(OutcomesOf(report), (Outcomes{{"decliningwidgets.so", LibraryOutcome::Declined},
                                            {"futurewidgets.so", LibraryOutcome::Incompatible},
                                            {"noentrywidgets.so", LibraryOutcome::NoEntryPoint},
                                            {"notalibrary.so", LibraryOutcome::NotLoaded},
                                            {"samplewidgets.so", LibraryOutcome::Loaded},
                                            {"throwingwidgets.so", LibraryOutcome::Threw},
                                            {"unversionedwidgets.so", LibraryOutcome::Incompatible}}));
    // The other reasons are checked where the editor shows them.
    EXPECT_EQ(report.libraries[1].reason, "it was built for widget-library interface version 1000; this program "
                                          "needs version " + std::to_string(kWidgetLibraryInterfaceVersion));
    EXPECT_EQ(report.libraries[1].interfaceVersion, 1000);
    EXPECT_EQ(report.libraries[6].reason.substr(0, 50), "it states no widget-library interface version; thi");
    EXPECT_EQ(report.libraries[4].interfaceVersion, kWidgetLibraryInterfaceVersion);

    ASSERT_EQ(RegisteredWidgetLibs().size(), 1u);
    EXPECT_EQ(RegisteredWidgetLibs()[0].m_strName, "samplewidgets");
    EXPECT_TRUE(IsLoaded("samplewidgets.so"));
    EXPECT_TRUE(IsLoaded("noentrywidgets.so")) << "a library without an entry point stays loaded";
    // A class record of unloaded code would crash the editor.
    EXPECT_FALSE(IsLoaded("decliningwidgets.so") || IsLoaded("throwingwidgets.so") || IsLoaded("futurewidgets.so") ||
                 IsLoaded("unversionedwidgets.so"));
    EXPECT_FALSE(IsRegistered("dial"));
}

TEST_F(LoaderTest, LibraryClassesFollowTheBuiltInsAndSurviveTheWindowFile)
{
    Load(kModules);
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
    ASSERT_TRUE(doc.AddWidget(std::move(widget), true));
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

TEST_F(LoaderTest, ARelativeFolderIsTakenFromTheCurrentDirectory)
{
    const std::filesystem::path modules(kModules);
    const std::filesystem::path previous = std::filesystem::current_path();
    std::filesystem::current_path(modules.parent_path());
    const WidgetLibraryLoadReport report = Load(modules.filename().string());
    std::filesystem::current_path(previous);
    EXPECT_EQ(report.folders, std::vector{kModules});
    EXPECT_EQ(report.libraries.size(), 7u);
    EXPECT_TRUE(IsRegistered("gauge"));
}

// Two libraries offer a class under the same key: the one in the earlier folder of the search
// path counts, and the later one is loaded all the same.
TEST_F(LoaderTest, TheEarlierFolderOfTheSearchPathWinsAClassKey)
{
    namespace fs = std::filesystem;
    const std::string more = KELVO_MORE_MODULES_DIR;
    const TempDir elsewhere, data;
    fs::create_directories(data.Path("kelvo-hmi-editor"));
    fs::create_directory_symlink(kModules, data.Path("kelvo-hmi-editor/modules"));
    const fs::path previous = fs::current_path();
    fs::current_path(elsewhere.Path("")); // with no ./modules
    const auto winner = [&](const char* dataHome, const std::string& listed) {
        const CRegistryScope empty(CRegistryScope::Start::Empty);
        ::setenv("XDG_DATA_HOME", dataHome, 1);
        ::setenv("KELVO_WIDGET_MODULES", listed.c_str(), 1);
        const WidgetLibraryLoadReport report = LoadWidgetLibraries(WidgetLibraryFolders({kModules}), state.Path(""));
        EXPECT_EQ(report.libraries.size(), 8u) << "each library loaded once";
        const auto& libraries = RegisteredWidgetLibs();
        return libraries.size() == 2 && libraries[0].m_pEntries[0].m_pRuntimeClass == CHmiWidget::GetWidgetClass("gauge")
                   ? libraries[0].m_strName + " from " + fs::path(report.libraries[0].folder).parent_path().string()
                   : "not two libraries";
    };
    // The environment's folders come before the command line's, the user's before both.
    EXPECT_EQ(winner("", ":/nowhere:" + more + ":"), "othergauges from " + fs::path(more).parent_path().string());
    EXPECT_EQ(winner(data.Path("").c_str(), more), "samplewidgets from " + data.Path("kelvo-hmi-editor"));
    fs::current_path(previous);
    ::unsetenv("XDG_DATA_HOME");
    ::unsetenv("KELVO_WIDGET_MODULES");
}

TEST_F(LoaderTest, AMissingOrEmptyFolderGivesJustTheBuiltIns)
{
    const TempDir dir;
    for (const std::string& folder : {dir.Path("absent"), dir.Path("")}) {
        const CRegistryScope empty(CRegistryScope::Start::Empty);
        EXPECT_TRUE(Load(folder).libraries.empty()) << folder;
        EXPECT_EQ(CHmiWidget::WidgetClassList.size(), kBuiltinCount) << folder;
        EXPECT_TRUE(RegisteredWidgetLibs().empty()) << folder;
    }
}

TEST_F(LoaderTest, ALibraryThatCrashedAStartIsSkippedUntilItIsAskedForAgain)
{
    const std::string crashing = KELVO_CRASHING_MODULES_DIR;
    const auto startCrashes = [&] { return !RunInChild([&] { return Load(crashing).libraries.empty(); }, 30).exited; };
    ASSERT_TRUE(startCrashes());
    const WidgetLibraryLoadReport report = Load(crashing);
    EXPECT_EQ(OutcomesOf(report), (Outcomes{{"crashingwidgets.so", LibraryOutcome::SkippedAfterCrash}}));
    EXPECT_FALSE(startCrashes()) << "skipped at every later start";

    ASSERT_TRUE(CLibraryCrashGuard::LoadAgainAtNextStart(state.Path(""), report.libraries[0].path));
    EXPECT_TRUE(startCrashes());
    EXPECT_EQ(OutcomesOf(Load(crashing)), OutcomesOf(report)) << "and skipped again after that crash";
}

// A library runs as the user who starts the editor: a file or folder that another user may have
// placed or may change is never loaded.
TEST_F(LoaderTest, LibrariesAndFoldersThatOthersControlAreRefused)
{
    namespace fs = std::filesystem;
    const TempDir dir;
    const fs::path modules = dir.Path("modules"), open = dir.Path("open");
    fs::create_directory(modules);
    fs::create_directory(open);
    fs::permissions(modules, fs::perms(0755));
    fs::permissions(open, fs::perms(0777));
    for (const fs::path& copy : {modules / "foreign.so", modules / "shared.so", open / "linked.so"})
        fs::copy_file(kModules + "/samplewidgets.so", copy);
    if (::chown((modules / "foreign.so").c_str(), 65534, 65534) != 0)
        GTEST_SKIP() << "giving a file to another user takes root";
    fs::permissions(modules / "shared.so", fs::perms(0775));
    fs::create_symlink(open / "linked.so", modules / "linked.so");

    WidgetLibraryLoadReport report = Load(modules);
    EXPECT_EQ(OutcomesOf(report), (Outcomes{{"foreign.so", LibraryOutcome::Refused},
                                            {"linked.so", LibraryOutcome::Refused},
                                            {"shared.so", LibraryOutcome::Refused}}));
    EXPECT_EQ(report.libraries[0].reason, "owned by another user (uid 65534)");
    EXPECT_FALSE(IsRegistered("gauge"));

    fs::permissions(modules, fs::perms(0777));
    report = Load(modules);
    EXPECT_EQ(OutcomesOf(report), (Outcomes{{modules, LibraryOutcome::Refused}}));
    EXPECT_EQ(report.libraries[0].reason, "writable by every user (mode 777)");
}
