// Every widget kind's declaration (its own property records with their choice lists, its events)
// and the element it writes with its defaults, compared with a reviewed reference file. The panel
// runtime and widget libraries depend on all of it, so any difference is a change of contract.
// After an intended change, run with KELVO_WRITE_REFERENCE=1 to rewrite the file, and review
// its diff.

#include "catalogue/builtinwidgets.h"
#include "catalogue/hmiwidgetvalve.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetcustom.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

constexpr std::size_t kBasicPropertyCount = 14;
const char* const kReferenceFile = KELVO_TEST_DATA_DIR "/catalogue.txt";

const char* ItemTypeName(PropItemType type)
{
    static const char* const names[] = {"edit", "color", "combo", "checkbox", "file",
                                        "variable", "text", "font", "static"};
    const auto index = std::size_t(type);
    return index < std::size(names) ? names[index] : "none";
}

void DescribeProperty(std::ostream& out, const CHmiWidgetProp& p)
{
    out << "property " << p.m_strName << " | " << p.m_strLabel << " | " << p.m_strDescription << " | "
        << (p.m_nBindable ? "bindable" : "static") << " | " << ItemTypeName(p.m_nItemType) << " | " << p.m_strGroup
        << '\n';
    for (std::int32_t i = 0; i < p.m_nComboCount; ++i)
        out << "    choice " << i << ": " << p.m_pComboList[i] << '\n';
}

// The element bytes, one line per line, with a visible mark where a line ends in CR LF.
void DescribeElement(std::ostream& out, const std::string& element)
{
    std::istringstream lines(element);
    for (std::string line; std::getline(lines, line);) {
        const bool crlf = !line.empty() && line.back() == '\r';
        if (crlf)
            line.pop_back();
        out << "    " << line << (crlf ? " <CR>" : "") << '\n';
    }
}

void DescribeKind(std::ostream& out, const std::string& key, CHmiWidget& widget, const CHmiWidget& base)
{
    const HmiRect& rect = widget.GetWidgetRect();
    out << "\n[" << key << "] " << widget.GetRuntimeClass()->m_lpszClassName << ", placed at " << rect.left << ' '
        << rect.top << ' ' << rect.right << ' ' << rect.bottom << '\n';
    const auto& props = widget.GetProperties();
    for (std::size_t i = 0; i < props.size(); ++i) {
        if (i < kBasicPropertyCount) {
            const CHmiWidgetProp& basic = *base.GetProperties()[i];
            EXPECT_EQ(props[i]->m_strName, basic.m_strName) << key << " keeps the basic records first";
            EXPECT_EQ(props[i]->m_strDescription, basic.m_strDescription) << key;
            continue;
        }
        DescribeProperty(out, *props[i]);
    }
    widget.SetWidgetEventCode({}, {}); // declares the kind's events
    for (const CHmiWidgetEvent& event : widget.GetEvents())
        out << "event " << event.name << " | " << event.label << " | " << event.description << '\n';
    widget.SetWidgetName(widget.GetWidgetClassName() + "1");
    widget.SetWidgetRect({10, 20, 110, 60});
    std::string element;
    widget.Serialize(element);
    out << "element:\n";
    DescribeElement(out, element);
}

std::string DescribeCatalogue()
{
    std::ostringstream out;
    CHmiWidget base;
    out << "[basic properties]\n";
    for (const auto& prop : base.GetProperties())
        DescribeProperty(out, *prop);

    CHmiWidget::RemoveAllRunTimeClass();
    RegisterBuiltinWidgetClasses();
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList) {
        HmiWidgetPtr widget = entry.m_pRuntimeClass->CreateObject();
        EXPECT_EQ(widget->GetWidgetClassName(), entry.m_strClassKey) << "a class writes the key it is registered under";
        DescribeKind(out, entry.m_strClassKey, *widget, base);
    }
    CHmiWidget::RemoveAllRunTimeClass();

    // Not registered under a key of their own, but written all the same.
    CHmiWidgetValve valve;
    DescribeKind(out, "valve (unregistered)", valve, base);
    CHmiWidgetCustom custom;
    custom.ClassName = "gauge";
    DescribeKind(out, "custom (fallback)", custom, base);
    return out.str();
}

// The first line where two texts differ, with its number; empty when they are equal.
std::string FirstDifference(const std::string& expected, const std::string& actual)
{
    std::istringstream expectedLines(expected);
    std::istringstream actualLines(actual);
    for (int number = 1;; ++number) {
        std::string want, got;
        const bool moreExpected = bool(std::getline(expectedLines, want));
        const bool moreActual = bool(std::getline(actualLines, got));
        if (!moreExpected && !moreActual)
            return {};
        if (want != got || moreExpected != moreActual)
            return "line " + std::to_string(number) + ": expected \"" + want + "\", got \"" + got + "\"";
    }
}

} // namespace

TEST(Catalogue, MatchesTheReviewedReference)
{
    const std::string actual = DescribeCatalogue();
    if (std::getenv("KELVO_WRITE_REFERENCE")) {
        std::ofstream(kReferenceFile, std::ios::binary) << actual;
        GTEST_SKIP() << "wrote " << kReferenceFile;
    }
    std::ifstream file(kReferenceFile, std::ios::binary);
    ASSERT_TRUE(file) << "missing " << kReferenceFile;
    const std::string expected{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(FirstDifference(expected, actual), "") << "the catalogue differs from " << kReferenceFile;
}
