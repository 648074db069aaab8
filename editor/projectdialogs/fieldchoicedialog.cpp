#include "fieldchoicedialog.h"

#include "dialogbuttons.h"
#include "modeltext.h"

#include "catalogue/listcolumns.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cctype>

namespace {

constexpr const char* kStandardAlarmFields[] = {"Time",          "Type",        "Variable",   "Information",
                                                "Alarm value",   "Restore value", "Limit value", "Alarm group"};
constexpr const char* kRecordTimeField = "DateTime";

// The shown fields, split at commas as the list widgets split them, all checked.
std::vector<FieldChoice> ShownFields(const std::string& dispfields)
{
    std::vector<FieldChoice> choices;
    for (ListColumn& column : ColumnsForFields(dispfields))
        choices.push_back({std::move(column.field), true});
    return choices;
}

bool BeginsWithIgnoringCase(const std::string& text, const std::string& prefix)
{
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(), [](unsigned char a, unsigned char b) {
               return std::tolower(a) == std::tolower(b);
           });
}

void OfferUnlessListed(std::vector<FieldChoice>& choices, const std::string& name)
{
    const bool listed = std::any_of(choices.begin(), choices.end(), [&](const FieldChoice& choice) {
        return BeginsWithIgnoringCase(choice.field, name);
    });
    if (!listed)
        choices.push_back({name, false});
}

} // namespace

std::vector<FieldChoice> AlarmFieldChoices(const std::string& dispfields)
{
    std::vector<FieldChoice> choices = ShownFields(dispfields);
    for (const char* field : kStandardAlarmFields)
        if (dispfields.find(field) == std::string::npos)
            choices.push_back({field, false});
    return choices;
}

std::vector<FieldChoice> HistoryFieldChoices(const std::string& dispfields, const std::vector<std::string>& recorded)
{
    std::vector<FieldChoice> choices = ShownFields(dispfields);
    for (const std::string& name : recorded)
        OfferUnlessListed(choices, name);
    OfferUnlessListed(choices, kRecordTimeField);
    return choices;
}

CFieldChoiceDialog::CFieldChoiceDialog(const QString& title, const std::vector<FieldChoice>& choices,
                                       QWidget* parent)
    : QDialog(parent), m_list(new QListWidget(this))
{
    setWindowTitle(title);
    for (const FieldChoice& choice : choices) {
        auto* entry = new QListWidgetItem(FromModel(choice.field), m_list);
        entry->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        entry->setCheckState(choice.checked ? Qt::Checked : Qt::Unchecked);
    }
    auto* moveUp = MakePictureButton(QStyle::SP_ArrowUp, tr("Move up"), this);
    auto* moveDown = MakePictureButton(QStyle::SP_ArrowDown, tr("Move down"), this);
    connect(moveUp, &QPushButton::clicked, this, [this] { MoveCurrent(-1); });
    connect(moveDown, &QPushButton::clicked, this, [this] { MoveCurrent(1); });

    auto* buttons = new QVBoxLayout;
    connect(AddOkCancelButtons(*this, *buttons).ok, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addWidget(moveUp);
    buttons->addWidget(moveDown);
    buttons->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
}

void CFieldChoiceDialog::MoveCurrent(int step)
{
    const int row = m_list->currentRow();
    const int target = row + step;
    if (row < 0 || target < 0 || target >= m_list->count())
        return;
    // The entry itself moves, so it keeps its check state.
    QListWidgetItem* entry = m_list->takeItem(row);
    m_list->insertItem(target, entry);
    m_list->setCurrentRow(target);
}

std::string CFieldChoiceDialog::FieldsText() const
{
    std::string text;
    for (int row = 0; row < m_list->count(); ++row)
        if (m_list->item(row)->checkState() == Qt::Checked)
            text += ToModel(m_list->item(row)->text()) + ",";
    return text;
}
