#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

struct _xmlDoc;
struct _xmlError;
struct _xmlNode;
struct _xmlTextReader;
class CFileReader;

// Read access to a parsed XML file, shared by every reader of project and window files.
// Blank text between elements is dropped and no network is touched. Attribute values and text
// come back in the editor's text form (project/textcodec.h): GB2312, with the characters that
// GB2312 cannot hold marked; a value that holds such characters leaves a read notice.
//
// A file that declares entities is refused: window and project files never use them, and a
// few hundred bytes of entity declarations can expand into gigabytes when values are read.
class XmlElement {
public:
    explicit XmlElement(_xmlNode* node) : m_node(node) {}

    explicit operator bool() const { return m_node != nullptr; }
    // True when this is an element with exactly this name.
    bool Is(const char* name) const;
    std::string Name() const;
    // The attribute's value; empty when it is absent.
    std::string Attribute(const char* name) const;
    // All text inside the element (CDATA included).
    std::string Text() const;
    // Sets an attribute to a value in the editor's text form.
    void SetAttribute(const char* name, std::string_view value) const;

    // The first child element, and the element after this one; a false element at the end.
    XmlElement FirstChild() const;
    XmlElement Next() const;

    friend bool operator==(const XmlElement& a, const XmlElement& b) { return a.m_node == b.m_node; }

private:
    _xmlNode* m_node;
};

class XmlDocument {
public:
    // Parses a file; check IsValid. Never throws and never prints.
    static XmlDocument Load(const std::string& path);
    // Parses text held in memory (for the fuzzers and for tests).
    static XmlDocument Parse(std::string_view text);
    // Parses a file in order to change it: the blank text between elements is kept, so that
    // Text gives the file back with its layout, only what was changed and the spelling of the
    // markup (quotes, the XML declaration) differing.
    static XmlDocument LoadForEditing(const std::string& path);
    // The document as a file in its declared encoding (UTF-8 when it declares none).
    std::string Text() const;

    bool IsValid() const { return m_doc != nullptr; }
    // Why the file is not valid, in words for the user.
    const std::string& Error() const { return m_error; }
    // The root element, or a false element when the file had none.
    XmlElement Root() const;

private:
    struct Free {
        void operator()(_xmlDoc* doc) const;
    };
    XmlDocument(_xmlDoc* doc, std::string error);
    static XmlDocument Load(const std::string& path, int options);
    static XmlDocument Parse(std::string_view text, int options);

    std::unique_ptr<_xmlDoc, Free> m_doc;
    std::string m_error;
};

// Reads the child elements of a document's root one at a time, each as a small tree that
// lives until the next one is read: a window file of any size takes the memory of one widget.
// Refuses what XmlDocument refuses. An error may be found before the reading reaches it, and
// always by the end of the root.
class XmlChildStream {
public:
    // The text must outlive the stream.
    explicit XmlChildStream(std::string_view text);
    // Parses the file as it is read, so that its text is never held whole. When reading fails,
    // the stream fails too, and the file's Result says why.
    explicit XmlChildStream(CFileReader& file);
    ~XmlChildStream();
    XmlChildStream(const XmlChildStream&) = delete;
    XmlChildStream& operator=(const XmlChildStream&) = delete;

    // The root element's name; empty when the text has none (it is not XML, or was refused).
    const std::string& RootName() const { return m_rootName; }
    // The next child element of the root; a false element after the last one and at the first
    // error. At the end of the root, the rest of the text is read, so that IsValid then tells
    // about the whole text.
    XmlElement Next();
    // False from the first error on.
    bool IsValid() const { return m_error.empty(); }
    // Why the text is not valid, in words for the user, and the line of the error (from 1).
    const std::string& Error() const { return m_error; }
    int ErrorLine() const { return m_errorLine; }

private:
    // Creates the reader with the errors routed to this stream, and reads up to the root element.
    void Start(const std::function<_xmlTextReader*()>& createReader);
    static void KeepFirstError(void* stream, _xmlError* error);
    // Whether a reader call moved on; a failed one records the error.
    bool MovedOn(int readerResult);
    void Fail(std::string error, int line);
    void ReadToTheEnd();

    _xmlTextReader* m_reader = nullptr;
    std::string m_rootName;
    std::string m_error;
    int m_errorLine = 0;
    bool m_atChild = false; // the reader stands on a child element, expanded
    bool m_ended = false;
};

// Iterates over the child elements of an element: for (XmlElement child : ChildElements(e)).
class ChildElements {
public:
    explicit ChildElements(const XmlElement& parent) : m_parent(parent) {}

    class Iterator {
    public:
        explicit Iterator(XmlElement element) : m_element(element) {}
        XmlElement operator*() const { return m_element; }
        Iterator& operator++()
        {
            m_element = m_element.Next();
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_element != other.m_element; }

    private:
        XmlElement m_element;
    };

    Iterator begin() const { return Iterator(m_parent.FirstChild()); }
    Iterator end() const { return Iterator(XmlElement(nullptr)); }

private:
    XmlElement m_parent;
};
