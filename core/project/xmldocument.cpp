#include "xmldocument.h"

#include "base/logcategories.h"
#include "base/textcodec.h"
#include "fileio.h"
#include "readnotices.h"

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlreader.h>

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

constexpr int kEditOptions = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;
constexpr int kParseOptions = kEditOptions | XML_PARSE_NOBLANKS;

const std::string kEntitiesRefused =
    "The file declares XML entities. Window and project files never do, and such a file is refused: "
    "its entities could expand into more text than the editor can hold.";

xmlNode* SkipToElement(xmlNode* node)
{
    while (node && node->type != XML_ELEMENT_NODE)
        node = node->next;
    return node;
}

const char* AsChars(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

bool DeclaresEntities(const xmlDtd* dtd)
{
    return dtd && ((dtd->entities && xmlHashSize(static_cast<xmlHashTablePtr>(dtd->entities)) > 0) ||
                   (dtd->pentities && xmlHashSize(static_cast<xmlHashTablePtr>(dtd->pentities)) > 0));
}

std::string NotWellFormed(const xmlError* error)
{
    std::string text = "The file is not well-formed XML";
    if (!error || !error->message)
        return text + ".";
    std::string message = error->message;
    while (!message.empty() && (message.back() == '\n' || message.back() == ' '))
        message.pop_back();
    const std::string where = error->line > 0 ? "line " + std::to_string(error->line) + ": " : "";
    return text + " (" + where + message + ").";
}

// libxml2 reports some errors (a byte the declared encoding cannot convert, a failing input)
// outside any parser, to the thread's handler, which prints them unless one is set. While a
// text is parsed they go to the given handler instead, so that only the program speaks.
class ThreadErrorRoute {
public:
    ThreadErrorRoute(xmlStructuredErrorFunc handler, void* data)
        : m_previous(xmlStructuredError)
        , m_previousData(xmlStructuredErrorContext)
    {
        xmlSetStructuredErrorFunc(data, handler);
    }
    ~ThreadErrorRoute() { xmlSetStructuredErrorFunc(m_previousData, m_previous); }
    ThreadErrorRoute(const ThreadErrorRoute&) = delete;
    ThreadErrorRoute& operator=(const ThreadErrorRoute&) = delete;

private:
    xmlStructuredErrorFunc m_previous;
    void* m_previousData;
};

// The first error of a whole-file parse, for when the parser itself has none to give.
void KeepFirstParseError(void* first, xmlError* error)
{
    auto* kept = static_cast<std::string*>(first);
    if (kept->empty() && error && error->level >= XML_ERR_ERROR)
        *kept = NotWellFormed(error);
}

std::string FromParser(const xmlChar* text)
{
    if (!text)
        return {};
    std::string converted = Utf8ToGb2312OrKeep(AsChars(text));
    if (converted.find(kForeignMark) != std::string::npos)
        ReportReadNotice("Some texts hold characters that GB2312 cannot hold. They are kept, and the window file "
                         "carries them as numeric character references (&#x...;).");
    return converted;
}

// Stops the whole-file parser at the first entity declaration, before it builds anything from
// the entity's references; the parser's user data is the parser context.
void RefuseEntityDeclaration(void* context, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*)
{
    auto* parser = static_cast<xmlParserCtxt*>(context);
    *static_cast<bool*>(parser->_private) = true;
    xmlStopParser(parser);
}

// Texts that libxml2 cannot take in one piece are not XML the editor reads.
bool FitsTheParser(std::string_view text)
{
    return text.size() <= std::size_t(INT_MAX);
}

} // namespace

bool XmlElement::Is(const char* name) const
{
    return m_node && std::strcmp(AsChars(m_node->name), name) == 0;
}

std::string XmlElement::Name() const
{
    return m_node ? AsChars(m_node->name) : "";
}

std::string XmlElement::Attribute(const char* name) const
{
    if (!m_node)
        return {};
    // A value is nearly always one piece of text in the element, read where it lies; libxml2
    // joins the others and finds the defaults that a DTD declares.
    const xmlAttr* attribute = xmlHasProp(m_node, reinterpret_cast<const xmlChar*>(name));
    if (!attribute)
        return {};
    if (attribute->type == XML_ATTRIBUTE_NODE && attribute->children &&
        !attribute->children->next && attribute->children->type == XML_TEXT_NODE)
        return FromParser(attribute->children->content);
    xmlChar* value = xmlGetProp(m_node, reinterpret_cast<const xmlChar*>(name));
    std::string text = FromParser(value);
    xmlFree(value);
    return text;
}

namespace {

// Appends the text inside a node's children, CDATA included. libxml2's streaming reader hands
// CDATA sections over without the line-end normalisation that XML asks for (its whole-file
// parser does normalise them), so CR LF and lone CR become LF here. Text outside CDATA is
// normalised already, and a CR that is still there came from a character reference.
void AppendTextOf(const xmlNode* parent, std::string& utf8)
{
    for (const xmlNode* node = parent->children; node; node = node->next) {
        if (node->type == XML_TEXT_NODE && node->content) {
            utf8 += AsChars(node->content);
        } else if (node->type == XML_CDATA_SECTION_NODE && node->content) {
            for (const char* c = AsChars(node->content); *c; ++c) {
                if (*c != '\r')
                    utf8 += *c;
                else if (c[1] != '\n')
                    utf8 += '\n';
            }
        } else if (node->type == XML_ELEMENT_NODE) {
            AppendTextOf(node, utf8);
        }
    }
}

} // namespace

std::string XmlElement::Text() const
{
    if (!m_node)
        return {};
    std::string utf8;
    AppendTextOf(m_node, utf8);
    return FromParser(reinterpret_cast<const xmlChar*>(utf8.c_str()));
}

void XmlElement::SetAttribute(const char* name, std::string_view value) const
{
    if (m_node)
        xmlSetProp(m_node, reinterpret_cast<const xmlChar*>(name),
                   reinterpret_cast<const xmlChar*>(Gb2312ToUtf8OrKeep(value).c_str()));
}

XmlElement XmlElement::FirstChild() const
{
    return XmlElement(m_node ? SkipToElement(m_node->children) : nullptr);
}

XmlElement XmlElement::Next() const
{
    return XmlElement(m_node ? SkipToElement(m_node->next) : nullptr);
}

void XmlDocument::Free::operator()(_xmlDoc* doc) const
{
    xmlFreeDoc(doc);
}

XmlDocument::XmlDocument(_xmlDoc* doc, std::string error) : m_doc(doc), m_error(std::move(error)) {}

XmlDocument XmlDocument::Load(const std::string& path)
{
    return Load(path, kParseOptions);
}

XmlDocument XmlDocument::LoadForEditing(const std::string& path)
{
    return Load(path, kEditOptions);
}

XmlDocument XmlDocument::Load(const std::string& path, int options)
{
    // Reading the bytes ourselves keeps libxml2 from printing its own I/O errors.
    std::string bytes;
    if (const FileResult read = ReadWholeFile(path, bytes); !read) {
        qCDebug(lcProject, "%s", read.error.c_str());
        return XmlDocument(nullptr, read.error);
    }
    XmlDocument document = Parse(bytes, options);
    // The readers go on to ignore a file whose root is not theirs; the name says which it is.
    if (const XmlElement root = document.Root())
        qCDebug(lcProject, "read %s: <%s>", path.c_str(), root.Name().c_str());
    else
        qCDebug(lcProject, "cannot read %s: %s", path.c_str(), document.Error().c_str());
    return document;
}

XmlDocument XmlDocument::Parse(std::string_view text)
{
    return Parse(text, kParseOptions);
}

XmlDocument XmlDocument::Parse(std::string_view text, int options)
{
    LIBXML_TEST_VERSION
    if (!FitsTheParser(text))
        return XmlDocument(nullptr, "The file is too large to be read.");
    xmlParserCtxt* context = xmlNewParserCtxt();
    if (!context)
        return XmlDocument(nullptr, "Out of memory.");
    bool declaresEntities = false;
    context->_private = &declaresEntities;
    context->sax->entityDecl = RefuseEntityDeclaration;
    std::string firstError;
    xmlDoc* doc = nullptr;
    {
        const ThreadErrorRoute route(KeepFirstParseError, &firstError);
        doc = xmlCtxtReadMemory(context, text.data(), int(text.size()), nullptr, nullptr, options);
    }
    std::string error;
    if (declaresEntities) {
        xmlFreeDoc(doc);
        doc = nullptr;
        error = kEntitiesRefused;
    } else if (!doc) {
        const xmlError* parserError = xmlCtxtGetLastError(context);
        error = parserError || firstError.empty() ? NotWellFormed(parserError) : firstError;
    }
    xmlFreeParserCtxt(context);
    return XmlDocument(doc, std::move(error));
}

std::string XmlDocument::Text() const
{
    if (!m_doc)
        return {};
    xmlChar* bytes = nullptr;
    int size = 0;
    const char* encoding = m_doc->encoding ? AsChars(m_doc->encoding) : "UTF-8";
    xmlDocDumpMemoryEnc(m_doc.get(), &bytes, &size, encoding);
    if (!bytes)
        return {};
    std::string text(AsChars(bytes), std::size_t(std::max(size, 0)));
    xmlFree(bytes);
    return text;
}

XmlElement XmlDocument::Root() const
{
    return XmlElement(m_doc ? xmlDocGetRootElement(m_doc.get()) : nullptr);
}

// ---------------------------------------------------------------------------------------------

XmlChildStream::XmlChildStream(std::string_view text)
{
    if (!FitsTheParser(text)) {
        m_ended = true;
        Fail("The file is too large to be read.", 0);
        return;
    }
    Start([text] { return xmlReaderForMemory(text.data(), int(text.size()), nullptr, nullptr, kParseOptions); });
}

XmlChildStream::XmlChildStream(CFileReader& file)
{
    const auto read = [](void* context, char* buffer, int size) {
        return int(static_cast<CFileReader*>(context)->Read(buffer, std::size_t(std::max(size, 0))));
    };
    Start([&file, read] { return xmlReaderForIO(read, nullptr, &file, nullptr, nullptr, kParseOptions); });
}

void XmlChildStream::Start(const std::function<_xmlTextReader*()>& createReader)
{
    LIBXML_TEST_VERSION
    const ThreadErrorRoute route(&XmlChildStream::KeepFirstError, this);
    m_reader = createReader();
    if (!m_reader) {
        m_ended = true;
        Fail("Out of memory.", 0);
        return;
    }
    xmlTextReaderSetStructuredErrorHandler(m_reader, &XmlChildStream::KeepFirstError, this);
    while (MovedOn(xmlTextReaderRead(m_reader))) {
        const int type = xmlTextReaderNodeType(m_reader);
        if (type == XML_READER_TYPE_DOCUMENT_TYPE &&
            DeclaresEntities(reinterpret_cast<xmlDtd*>(xmlTextReaderCurrentNode(m_reader)))) {
            Fail(kEntitiesRefused, xmlTextReaderGetParserLineNumber(m_reader));
            break;
        }
        if (type == XML_READER_TYPE_ELEMENT) {
            m_rootName = AsChars(xmlTextReaderConstName(m_reader));
            if (xmlTextReaderIsEmptyElement(m_reader))
                ReadToTheEnd();
            return;
        }
    }
    m_ended = true;
    Fail("The file is not well-formed XML (it has no root element).", 0);
}

XmlChildStream::~XmlChildStream()
{
    xmlFreeTextReader(m_reader);
}

XmlElement XmlChildStream::Next()
{
    const ThreadErrorRoute route(&XmlChildStream::KeepFirstError, this);
    while (!m_ended) {
        // Moving on from an expanded child skips its subtree.
        const bool moved = MovedOn(m_atChild ? xmlTextReaderNext(m_reader) : xmlTextReaderRead(m_reader));
        m_atChild = false;
        if (!moved)
            break;
        if (xmlTextReaderDepth(m_reader) == 0) { // the end of the root
            ReadToTheEnd();
            break;
        }
        if (xmlTextReaderDepth(m_reader) == 1 && xmlTextReaderNodeType(m_reader) == XML_READER_TYPE_ELEMENT) {
            xmlNode* child = xmlTextReaderExpand(m_reader);
            if (!child) {
                Fail("The file is not well-formed XML.", 0);
                break;
            }
            m_atChild = true;
            return XmlElement(child);
        }
    }
    m_ended = true;
    return XmlElement(nullptr);
}

void XmlChildStream::ReadToTheEnd()
{
    while (MovedOn(xmlTextReaderRead(m_reader))) {
    }
    m_ended = true;
}

bool XmlChildStream::MovedOn(int readerResult)
{
    if (readerResult < 0)
        Fail("The file is not well-formed XML.", 0);
    if (readerResult != 1)
        m_ended = true;
    return readerResult == 1 && IsValid();
}

void XmlChildStream::Fail(std::string error, int line)
{
    if (!IsValid())
        return;
    m_error = std::move(error);
    m_errorLine = line;
}

void XmlChildStream::KeepFirstError(void* stream, _xmlError* error)
{
    if (error && error->level >= XML_ERR_ERROR)
        static_cast<XmlChildStream*>(stream)->Fail(NotWellFormed(error), error->line);
}
