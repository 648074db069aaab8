#include "libraries/widgetlibraryloader.h"

#include "libraries/librarycrashguard.h"
#include "tests/support/childcost.h"
#include "tests/support/registrytest.h"
#include "tests/support/tempdir.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/tamlodoc.h"
#include "widgets/widgetlibrary.h"

#include <gtest/gtest.h>

#include <algorithm>
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
    WidgetLibraryLoadReport Load(const std::string& folder) { return LoadWidgetLibraries(folder, state.Path("")); }
    const TempDir state;
};

} // namespace

TEST_F(LoaderTest, EveryFileIsAccountedForInNameOrder)
{
    const WidgetLibraryLoadReport report = Load(kModules);
    ASSERT_EQ(OutcomesOf(report), (Outcomes{{"decliningwidgets.so", LibraryOutcome::Declined},
                                            {"noentrywidgets.so", LibraryOutcome::NoEntryPoint},
                                            {"notalibrary.so", LibraryOutcome::NotLoaded},
                                            {"samplewidgets.so", LibraryOutcome::Loaded},
                                            {"throwingwidgets.so", LibraryOutcome::Threw}}));
    // The reasons are checked where the editor shows them.

    ASSERT_EQ(RegisteredWidgetLibs().size(), 1u);
    EXPECT_EQ(RegisteredWidgetLibs()[0].m_strName, "samplewidgets");
    EXPECT_TRUE(IsLoaded("samplewidgets.so"));
    EXPECT_TRUE(IsLoaded("noentrywidgets.so")) << "a library without an entry point stays loaded";
    // A class record of unloaded code would crash the editor.
    EXPECT_FALSE(IsLoaded("decliningwidgets.so") || IsLoaded("throwingwidgets.so"));
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
    EXPECT_EQ(report.folder, kModules);
    EXPECT_EQ(report.libraries.size(), 5u);
    EXPECT_TRUE(IsRegistered("gauge"));
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
