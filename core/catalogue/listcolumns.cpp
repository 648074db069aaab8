#include "listcolumns.h"

#include "base/numberparsers.h"

namespace {

constexpr std::int32_t kNewColumnWidth = 80;

std::vector<std::string> SplitAtCommas(std::string_view text)
{
    std::vector<std::string> pieces;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t comma = std::min(text.find(',', start), text.size());
        if (comma > start)
            pieces.emplace_back(text.substr(start, comma - start));
        start = comma + 1;
    }
    return pieces;
}

} // namespace

std::vector<ListColumn> ColumnsFromText(std::string_view fields, std::string_view widths)
{
    const std::vector<std::string> names = SplitAtCommas(fields);
    const std::vector<std::string> sizes = SplitAtCommas(widths);
    std::vector<ListColumn> columns;
    if (names.size() != sizes.size())
        return columns;
    for (std::size_t i = 0; i < names.size(); ++i)
        columns.push_back({names[i], HmiDecimalToLong(sizes[i])});
    return columns;
}

std::string WidthsText(const std::vector<ListColumn>& columns)
{
    std::string text;
    for (const ListColumn& column : columns)
        text += std::to_string(column.width) + ",";
    return text;
}

std::vector<ListColumn> ColumnsForFields(std::string_view fields)
{
    std::vector<ListColumn> columns;
    for (std::string& name : SplitAtCommas(fields))
        columns.push_back({std::move(name), kNewColumnWidth});
    return columns;
}

ListColumnsState::ListColumnsState(std::string fields, std::string widths)
    : m_strDispFields(std::move(fields)), m_strFieldsWidth(std::move(widths)),
      m_columns(ColumnsFromText(m_strDispFields, m_strFieldsWidth))
{
}

void ListColumnsState::PropertyRead(std::string_view name)
{
    if (name == "dispfields" || name == "fieldswidth")
        m_columns = ColumnsFromText(m_strDispFields, m_strFieldsWidth);
}

void ListColumnsState::UpdateWidthsText() const
{
    m_strFieldsWidth = WidthsText(m_columns);
}

void ListColumnsState::SetDisplayFields(const std::string& fields)
{
    m_strDispFields = fields;
    m_columns = ColumnsForFields(fields);
}
