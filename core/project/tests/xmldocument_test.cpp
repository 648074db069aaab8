#include "project/readnotices.h"
#include "project/xmldocument.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace {

const std::string kTemperatureUtf8 = "\xE6\xB8\xA9\xE5\xBA\xA6";
const std::string kTemperatureGb = "\xCE\xC2\xB6\xC8";

std::vector<std::string> ChildNames(const XmlElement& parent)
{
    std::vector<std::string> names;
    for (XmlElement child : ChildElements(parent))
        names.push_back(child.Name());
    return names;
}

} // namespace

TEST(XmlDocument, Gb2312FilesGiveTheirValuesBackInGb2312)
{
    // Encoding names are case-insensitive: a lower-case declaration is the same code page.
    for (const char* encoding : {"GB2312", "gb2312"}) {
        const std::string text = std::string("<?xml version=\"1.0\" encoding=\"") + encoding +
                                 "\"?>\n<!DOCTYPE root [<!ATTLIST root d CDATA \"declared\">]><root a=\"" +
                                 kTemperatureGb + "\" b=\"x &amp; y\"><c a=\"" + kTemperatureGb + "\"/></root>";
        const XmlDocument doc = XmlDocument::Parse(text);
        ASSERT_TRUE(doc.IsValid());
        const XmlElement root = doc.Root();
        EXPECT_EQ(std::tuple(root.Is("root"), root.Is("Root")), std::tuple(true, false));
        EXPECT_EQ(std::tuple(root.Attribute("a"), root.Attribute("b"), root.Attribute("missing"), root.Attribute("d")),
                  std::tuple(kTemperatureGb, "x & y", "", "declared")) << encoding;
        XmlChildStream stream(text);
        EXPECT_EQ(stream.Next().Attribute("a"), kTemperatureGb) << encoding;
    }
}

TEST(XmlDocument, EveryFileGivesTheEditorsTextAndNotesWhatGb2312CannotHold)
{
    CReadNoticeCollector notices;
    const XmlDocument declared = XmlDocument::Parse("<?xml version=\"1.0\" encoding=\"UTF-8\"?><root a=\"" +
                                                    kTemperatureUtf8 + "\"/>");
    EXPECT_EQ(declared.Root().Attribute("a"), kTemperatureGb);
    const XmlDocument undeclared = XmlDocument::Parse("<root a=\"" + kTemperatureUtf8 + "\"/>");
    EXPECT_EQ(undeclared.Root().Attribute("a"), kTemperatureGb);
    EXPECT_TRUE(notices.Take().empty());

    const XmlDocument euro = XmlDocument::Parse("<?xml version=\"1.0\" encoding=\"GB2312\"?><root a=\"&#x20AC;1\"/>");
    EXPECT_EQ(euro.Root().Attribute("a"), "\x80\xE2\x82\xAC" "1");
    EXPECT_EQ(notices.Take().size(), 1u);
}

TEST(XmlDocument, FilesThatDeclareEntitiesAreRefused)
{
    for (const char* text : {"<!DOCTYPE r [<!ENTITY e \"xxxxxxxx\">]><r a=\"&e;&e;\"/>",
                             "<!DOCTYPE r [<!ENTITY % p \"x\">]><r/>"}) {
        const XmlDocument doc = XmlDocument::Parse(text);
        EXPECT_FALSE(doc.IsValid()) << text;
        EXPECT_NE(doc.Error().find("entities"), std::string::npos) << doc.Error();
        XmlChildStream stream(text);
        EXPECT_FALSE(stream.IsValid()) << text;
        EXPECT_FALSE(stream.Next());
    }
    EXPECT_TRUE(XmlDocument::Parse("<!DOCTYPE r><r a=\"&amp;&#65;\"/>").IsValid()) << "a DOCTYPE alone is fine";
}

TEST(XmlChildStream, GivesTheRootsChildrenOneByOneAndJudgesTheWholeText)
{
    XmlChildStream stream("<?xml version=\"1.0\"?>\n<r>\n <a x=\"1\"><in/></a>text<!-- c -->\r\n"
                          " <b><![CDATA[p\r\nq\rr]]>&#13;</b>\n</r>\n");
    EXPECT_EQ(stream.RootName(), "r");
    const XmlElement a = stream.Next();
    EXPECT_EQ(std::tuple(a.Is("a"), a.Attribute("x"), a.FirstChild().Is("in")), std::tuple(true, "1", true));
    const XmlElement b = stream.Next();
    ASSERT_TRUE(b.Is("b"));
    EXPECT_EQ(b.Text(), "p\nq\nr\r") << "line ends read as XML reads them; a referenced CR stays";
    EXPECT_FALSE(stream.Next());
    EXPECT_TRUE(stream.IsValid());

    XmlChildStream empty("<r/>");
    EXPECT_EQ((std::tuple{empty.RootName(), bool(empty.Next()), empty.IsValid()}), std::tuple("r", false, true));

    XmlChildStream broken("<r><a/>\n<b/>\n</r>\n<oops");
    while (broken.Next()) {
    }
    EXPECT_FALSE(broken.IsValid()) << "an error after the root is found too";
    EXPECT_EQ(broken.ErrorLine(), 4);
}

TEST(XmlDocument, ChildElementsSkipTextCommentsAndBlanks)
{
    const XmlDocument doc = XmlDocument::Parse("<r>\n  <a/>text<!-- c --><b><x/></b>\n  <c/>\n</r>");
    EXPECT_EQ(ChildNames(doc.Root()), (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_TRUE(ChildNames(doc.Root().FirstChild()).empty());
}

TEST(XmlDocument, BrokenInputGivesAnInvalidDocumentOrStreamAndWhy)
{
    for (const char* text : {"", "not xml", "<r>", "<r></s>", "<?xml version=\"1.0\"?>"}) {
        const XmlDocument doc = XmlDocument::Parse(text);
        EXPECT_FALSE(doc.IsValid()) << text;
        EXPECT_NE(doc.Error().find("not well-formed"), std::string::npos) << doc.Error();
        EXPECT_FALSE(doc.Root());
        EXPECT_EQ(doc.Root().Attribute("a"), "");
        EXPECT_TRUE(ChildNames(doc.Root()).empty());
        XmlChildStream stream(text);
        EXPECT_FALSE(stream.Next() || stream.IsValid()) << text;
    }
    EXPECT_FALSE(XmlDocument::Load("/nonexistent/file.xml").IsValid());
}
