#include "widgetfilewriter.h"

CWindowFileWriter::CWindowFileWriter(std::size_t expectedSize)
{
    // A little more than expected, for a window that grew a little since.
    m_text.reserve(expectedSize + expectedSize / 16);
    m_text = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n";
    m_widgetsEnd = m_text.size();
}

void CWindowFileWriter::Write(const CHmiWidget& widget)
{
    m_written.push_back({&widget, m_text.size()});
    widget.Serialize(m_text);
    m_widgetsEnd = m_text.size();
}

std::string CWindowFileWriter::Finish()
{
    m_text += "</hmiwidget>\n";
    return std::move(m_text);
}

void AppendPropertyLine(std::string& archive, std::string_view name, std::string_view type, std::string_view length,
                        std::string_view value, void (*appendValue)(std::string&, std::string_view))
{
    archive += "\t\t\t<property name=\"";
    AppendPlainAttribute(archive, name);
    archive += "\" type=\"";
    AppendPlainAttribute(archive, type);
    if (!length.empty()) {
        archive += "\" length=\"";
        AppendPlainAttribute(archive, length);
    }
    archive += "\" value=\"";
    appendValue(archive, value);
    archive += "\" />\n";
}
