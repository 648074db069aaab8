// Finding and renaming a variable over a project's windows and declarations.

#include "workspace/variablerename.h"

#include "project/variabledatabase.h"
#include "widgets/tamlodoc.h"

#include "tests/support/registryscope.h"
#include "tests/support/tempdir.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <tuple>

namespace {

using Place = WidgetPlace::Kind;
using Use = std::tuple<std::string, Place, std::string, std::size_t>; // widget, place, name, count

// A widget of each place a variable can stand in: a variable property, the six binding types
// (a colour limit among their texts), an event script and the curve's variables. $plc.level2
// stands beside $plc.level everywhere, so that a rename that matches a prefix shows.
constexpr const char* kWindow = R"xml(<?xml version="1.0" encoding="GB2312"?>
<hmiwidget>
<widget name="in" class="numinput"><properties><property name="varname" type="string" value="$plc.level" /></properties></widget>
<widget name="r" class="rectangle"><dynamics>
<dynamic propname="fillcolor" expression="($plc.level)?0xff:0x0" type="color_digit"><type_params expression="$plc.level" opencolor="0xff" closecolor="0x0" /></dynamic>
<dynamic propname="edgecolor" expression="(($plc.level2)&gt;=($plc.level))?0xff:0x0" type="color_analog"><type_params expression="$plc.level2" count="1" defaultcolor="0x0" limit_value0="$plc.level" color0="0xff" /></dynamic>
<dynamic propname="left" expression="(long2str2(($plc.level),3))" type="text_int"><type_params expression="$plc.level" int_width="3" /></dynamic>
<dynamic propname="right" expression="(float2str3(($plc.level),3,1))" type="text_float"><type_params expression="$plc.level" int_width="3" dec_width="1" /></dynamic>
<dynamic propname="top" expression="(double2str3(($plc.level),3,1))" type="text_double"><type_params expression="$plc.level" int_width="3" dec_width="1" /></dynamic>
<dynamic propname="visible" expression="$plc.level" type="script"><code><![CDATA[setvar("$plc.level", 1);]]></code></dynamic>
</dynamics><events><event name="click"><![CDATA[x = $plc.level2 + $plc.level;]]></event></events></widget>
<widget name="c" class="curve"><properties><property name="dataname1" type="string" value="$plc.level" /><property name="dataname2" type="string" value="$plc.level2" /></properties></widget>
</hmiwidget>
)xml";

class VariableRename : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_project.Write("rtdb.xml", "<rtdbs><rtdb name=\"plc\"><data name=\"level\" type=\"float\" init=\"0\" />"
                                    "<data name=\"level2\" type=\"float\" init=\"0\" /></rtdb></rtdbs>");
        m_project.Write("hmidb.xml", "<hmidb><datagroup name=\"io\"><data name=\"mirror\" dbname=\"plc\" "
                                     "dataname=\"level\" /></datagroup></hmidb>");
        m_project.Write("hmiwindow.xml", "<hmiwindow><window name=\"w\" filename=\"w.xml\" /></hmiwindow>");
        m_project.Write("w.xml", kWindow);
    }

    std::vector<Use> Uses(std::string_view reference) const
    {
        std::vector<ReferenceUse> uses;
        EXPECT_TRUE(FindProjectReferences(m_project.Path(""), reference, uses));
        std::vector<Use> rows;
        for (const ReferenceUse& use : uses) {
            EXPECT_EQ(use.file, "w.xml");
            rows.emplace_back(use.widget, use.place.kind, use.place.name, use.count);
        }
        std::sort(rows.begin(), rows.end());
        return rows;
    }

    std::vector<std::string> Files() const
    {
        std::vector<std::string> bytes;
        for (const std::string& name : m_project.Entries())
            bytes.push_back(name + ":" + m_project.Read(name));
        return bytes;
    }

    const CRegistryScope m_registry;
    const TempDir m_project;
};

TEST_F(VariableRename, RenamesWholeReferencesInEveryPlaceAndTheDeclarations)
{
    const std::vector<Use> level = {
        {"c", Place::Property, "dataname1", 1}, {"in", Place::Property, "varname", 1},
        {"r", Place::Binding, "edgecolor", 2},  {"r", Place::Binding, "fillcolor", 2},
        {"r", Place::Binding, "left", 2},       {"r", Place::Binding, "right", 2},
        {"r", Place::Binding, "top", 2},        {"r", Place::Binding, "visible", 2},
        {"r", Place::Event, "click", 1},
    };
    ASSERT_EQ(Uses("$plc.level"), level);
    const std::vector<Use> level2 = Uses("$plc.level2");
    ASSERT_EQ(level2.size(), 3u);

    ProjectRename plan;
    ASSERT_TRUE(PlanProjectRename(m_project.Path(""), "$plc.level", "$plc.depth", true, plan));
    EXPECT_EQ(plan.changes.size(), level.size());
    EXPECT_EQ(plan.names, (std::vector<std::string>{"w.xml", "rtdb.xml", "hmidb.xml"}));
    std::vector<std::string> written;
    ASSERT_TRUE(ApplyProjectRename(plan, written));
    EXPECT_EQ(written, plan.names);

    EXPECT_EQ(Uses("$plc.level"), std::vector<Use>());
    EXPECT_EQ(Uses("$plc.depth"), level);
    EXPECT_EQ(Uses("$plc.level2"), level2);
    CHmiVariableDatabase database;
    database.LoadProject(m_project.Path(""));
    EXPECT_EQ(database.AllReferenceTexts(), (std::vector<std::string>{"$plc.depth", "$plc.level2", "$mirror"}));
    EXPECT_NE(m_project.Read("hmidb.xml").find("dataname=\"depth\""), std::string::npos);
}

TEST_F(VariableRename, WritesNothingUntilEveryFileCanBeWritten)
{
    const std::vector<std::string> before = Files();
    ProjectRename plan;
    ASSERT_TRUE(PlanProjectRename(m_project.Path(""), "$plc.level", "$plc.depth", true, plan));
    EXPECT_EQ(Files(), before) << "planning is a dry run";

    // The declaration cannot follow a variable into another database, nor take a taken name.
    EXPECT_FALSE(PlanProjectRename(m_project.Path(""), "$plc.level", "$other.level", true, plan));
    EXPECT_FALSE(PlanProjectRename(m_project.Path(""), "$plc.level", "$plc.level2", true, plan));
    EXPECT_TRUE(plan.files.empty());

    ASSERT_TRUE(PlanProjectRename(m_project.Path(""), "$plc.level", "$plc.depth", true, plan));
    ASSERT_EQ(::chmod(m_project.Path("hmidb.xml").c_str(), 0444), 0); // the last file to be written
    std::vector<std::string> written = {"stale"};
    const FileResult applied = ApplyProjectRename(plan, written);
    EXPECT_FALSE(applied);
    EXPECT_NE(applied.error.find("hmidb.xml"), std::string::npos) << applied.error;
    EXPECT_TRUE(written.empty());
    EXPECT_EQ(Files(), before) << "no file changed and no temporary is left";

    // An open window is left to the caller, who renames it in memory.
    ASSERT_TRUE(PlanProjectRename(m_project.Path(""), "$plc.level", "$plc.depth", false, plan,
                                  [](const std::string& path) { return path.ends_with("/w.xml"); }));
    EXPECT_TRUE(plan.files.empty());
    EXPECT_TRUE(plan.changes.empty());
    CTamloDoc document;
    ASSERT_TRUE(document.Load(m_project.Path("w.xml")));
    EXPECT_EQ(RenameReference(document, "w.xml", "$plc.level", "$plc.depth").size(), 9u);
    EXPECT_TRUE(document.IsModified());
    EXPECT_EQ(FindReferences(document, "w.xml", "$plc.depth").size(), 9u);
}

} // namespace
