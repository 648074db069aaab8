// The project check on a project that holds one fault of each kind, and on the demo.

#include "workspace/projectcheck.h"

#include "tests/support/registryscope.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

using Place = WidgetPlace::Kind;
using Row = std::tuple<std::string, std::string, std::string, Place, std::string>; // rule, file, widget, place

std::vector<Row> Rows(const std::vector<Finding>& findings)
{
    std::vector<Row> rows;
    for (const Finding& f : findings)
        rows.emplace_back(f.rule->id, f.file, f.widget, f.place.kind, f.place.name);
    std::sort(rows.begin(), rows.end());
    return rows;
}

TEST(ProjectCheck, FindsEachFaultOfTheDefectProjectOnceAndNothingInTheDemo)
{
    const CRegistryScope registry;
    std::vector<Row> expected = {
        {"unknown-variable", "main.xml", "speed", Place::Property, "varname"},
        {"unknown-function", "main.xml", "go", Place::Event, "click"},
        {"missing-picture", "main.xml", "logo", Place::Property, "filename"},
        {"unknown-history-database", "main.xml", "history", Place::Property, "historyname"},
        {"unknown-data-log", "main.xml", "trend", Place::Property, "lognamenum"},
        {"unknown-class", "main.xml", "gauge", Place::Widget, ""},
        {"blank-widget-name", "main.xml", " ", Place::Widget, ""},
        {"duplicate-widget-name", "main.xml", "twin", Place::Widget, ""},
        {"widget-outside-window", "main.xml", "far", Place::Widget, ""},
        {"not-gb2312", "main.xml", "label", Place::Property, "text"},
        {"missing-window-file", "hmiwindow.xml", "", Place::Widget, ""},
        {"unlisted-window-file", "extra.xml", "", Place::Widget, ""},
        {"unreadable-file", "broken.xml", "", Place::Widget, ""},
    };
    ASSERT_EQ(expected.size(), CheckRules().size()) << "the defect project shows every rule";
    std::sort(expected.begin(), expected.end());
    std::size_t reported = 0;
    EXPECT_EQ(Rows(CheckProject(KELVO_DEFECT_PROJECT_DIR, [&](std::size_t done, std::size_t total) {
        EXPECT_EQ(total, 3u); // main.xml, broken.xml and the unlisted extra.xml
        reported = done;
    })), expected);
    EXPECT_EQ(reported, 3u);

    EXPECT_EQ(Rows(CheckProject(KELVO_DEMO_DIR)), std::vector<Row>());
}

} // namespace
