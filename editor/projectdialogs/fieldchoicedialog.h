#pragma once

#include <QDialog>

#include <string>
#include <vector>

class QListWidget;

// One entry of a field dialog: a field name and whether it is shown.
struct FieldChoice {
    std::string field;
    bool checked = false;

    friend bool operator==(const FieldChoice&, const FieldChoice&) = default;
};

// The alarm window's fields: the shown ones checked, in their order, then each standard field
// unchecked unless its name occurs anywhere in the shown text ("Type" is found inside
// "Event Type" and not offered again).
std::vector<FieldChoice> AlarmFieldChoices(const std::string& dispfields);
// The history list's fields: the shown ones checked, then each variable the history database
// records and last "DateTime", unchecked, unless an entry already begins with that name
// (letter case aside).
std::vector<FieldChoice> HistoryFieldChoices(const std::string& dispfields, const std::vector<std::string>& recorded);

// The field dialog of the list widgets: a check list whose entries Move up and Move down
// reorder; OK gives the checked fields in list order.
class CFieldChoiceDialog : public QDialog {
    Q_OBJECT
public:
    CFieldChoiceDialog(const QString& title, const std::vector<FieldChoice>& choices, QWidget* parent = nullptr);

    // The checked fields in list order, each followed by a comma, in the editor's code page.
    std::string FieldsText() const;

private:
    void MoveCurrent(int step);

    QListWidget* m_list;
};
