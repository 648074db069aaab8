#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The columns of the list widgets (alarm window, history list): a field shown under its
// heading at a width in pixels. The model keeps them so that a window saves the same with or
// without a live list control; the editor's control writes dragged widths back.
struct ListColumn {
    std::string field;
    std::int32_t width = 0;

    friend bool operator==(const ListColumn&, const ListColumn&) = default;
};

// The columns of comma-separated fields and widths, empty pieces skipped; no columns when the
// two lists differ in length.
std::vector<ListColumn> ColumnsFromText(std::string_view fields, std::string_view widths);
// The widths as the window file keeps them: each width followed by a comma.
std::string WidthsText(const std::vector<ListColumn>& columns);
// The columns the field dialog sets: one per field, each of the default width.
std::vector<ListColumn> ColumnsForFields(std::string_view fields);

// The displayed fields, their widths and the columns made of them, as the list widgets keep
// them: the columns follow the two texts when a file sets them, and the widths text follows
// the columns when a file is written.
struct ListColumnsState {
    ListColumnsState(std::string fields, std::string widths);

    // After a property was read from a file: the fields or widths set the columns afresh.
    void PropertyRead(std::string_view name);
    // Before the widget is written: the widths the columns have now.
    void UpdateWidthsText() const;
    // The field dialog's result: these fields, each in a new column of the default width.
    void SetDisplayFields(const std::string& fields);

    std::string m_strDispFields;
    mutable std::string m_strFieldsWidth;
    // The editor's live control shows these and writes dragged widths back.
    std::vector<ListColumn> m_columns;
};
