#include "variablesdock.h"

#include "variablesmodel.h"

#include "editor/projectdialogs/modeltext.h"
#include "preview/valueset.h"
#include "project/variabledatabase.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// Edits the generator column with a list of the generator kinds.
class CGeneratorDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        auto* combo = new QComboBox(parent);
        combo->addItems(CVariablesModel::GeneratorChoices());
        // A choice is made at once, not when the row is left.
        connect(combo, &QComboBox::activated, this, [this, combo] {
            auto* self = const_cast<CGeneratorDelegate*>(this);
            emit self->commitData(combo);
            emit self->closeEditor(combo);
        });
        return combo;
    }
    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        static_cast<QComboBox*>(editor)->setCurrentText(index.data(Qt::EditRole).toString());
    }
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        model->setData(index, static_cast<QComboBox*>(editor)->currentText(), Qt::EditRole);
    }
};

// The dock sits beside the property pane and is no wider than it: small buttons.
QToolButton* ActionButton(const QString& text)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setAutoRaise(true);
    return button;
}

QString ProblemLine(const BindingProblem& problem)
{
    return QCoreApplication::translate("CVariablesDock", "%1\t%2\t%3 at %4 of '%5'")
        .arg(FromModel(problem.widget->GetWidgetName()), FromModel(problem.property),
             QString::fromStdString(problem.error.message))
        .arg(problem.error.position)
        .arg(FromModel(problem.expression));
}

} // namespace

CVariablesDock::CVariablesDock(QWidget* parent)
    : QWidget(parent)
    , m_model(new CVariablesModel(this))
    , m_filtered(new QSortFilterProxyModel(this))
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_filtered->setFilterKeyColumn(CVariablesModel::Reference);
    connect(m_model, &CVariablesModel::valueRefused, this, &CVariablesDock::Tell);
}

void CVariablesDock::BuildContents()
{
    if (m_table)
        return;
    m_filter = new QLineEdit;
    m_table = new QTableView;
    m_message = new QLabel;
    m_problemList = new QTreeWidget;
    m_filter->setPlaceholderText(tr("Filter variables"));
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, m_filtered, &QSortFilterProxyModel::setFilterFixedString);

    m_table->setObjectName(QStringLiteral("previewVariables"));
    m_table->setModel(m_filtered);
    m_table->setItemDelegateForColumn(CVariablesModel::Generator, new CGeneratorDelegate(m_table));
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::AnyKeyPressed);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 6);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_model, &QAbstractItemModel::modelReset, m_table, [this] { FitColumns(); });

    m_problemList->setObjectName(QStringLiteral("previewProblems"));
    m_problemList->setHeaderLabels({tr("Widget"), tr("Binding"), tr("Error")});
    m_problemList->setRootIsDecorated(false);

    auto* save = ActionButton(tr("Save"));
    save->setToolTip(tr("Keep the values and generators in the project's %1").arg(kValueSetFileName));
    auto* load = ActionButton(tr("Load"));
    load->setToolTip(tr("Take the values and generators of the project's %1").arg(kValueSetFileName));
    auto* reset = ActionButton(tr("Reset"));
    reset->setToolTip(tr("Every variable back at its init value, without generators"));
    connect(save, &QToolButton::clicked, this, &CVariablesDock::SaveValues);
    connect(load, &QToolButton::clicked, this, &CVariablesDock::LoadValues);
    connect(reset, &QToolButton::clicked, this, [this] {
        if (m_values) {
            m_values->Reset();
            m_model->SetValues(m_values.get()); // the generator columns changed as well
        }
    });
    auto* bar = new QHBoxLayout;
    bar->addWidget(m_filter, 1);
    bar->addWidget(load);
    bar->addWidget(save);
    bar->addWidget(reset);

    m_message->setWordWrap(true);
    m_message->hide();
    auto* split = new QSplitter(Qt::Vertical);
    split->addWidget(m_table);
    split->addWidget(m_problemList);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addLayout(bar);
    layout->addWidget(m_message);
    layout->addWidget(split, 1);
    FitColumns();
    FillProblemList();
}

void CVariablesDock::FitColumns()
{
    m_table->resizeColumnsToContents();
    // Room for the values that generators bring, which the init values seldom need.
    const int valueWidth = m_table->fontMetrics().horizontalAdvance(QStringLiteral("-00000.000000"));
    m_table->setColumnWidth(CVariablesModel::Value, std::max(m_table->columnWidth(CVariablesModel::Value), valueWidth));
}

void CVariablesDock::FillProblemList()
{
    m_problemList->clear();
    for (const QString& line : m_shownProblems)
        m_problemList->addTopLevelItem(new QTreeWidgetItem(line.split(QLatin1Char('\t'))));
    m_problemList->setVisible(!m_shownProblems.isEmpty());
}

void CVariablesDock::BuildWhenInSight(QDockWidget& dock)
{
    m_buildsWhenInSight = true;
    connect(&dock, &QDockWidget::visibilityChanged, this, [this](bool inSight) {
        if (inSight)
            BuildContents();
    });
}

void CVariablesDock::showEvent(QShowEvent* event)
{
    if (!m_buildsWhenInSight)
        BuildContents();
    QWidget::showEvent(event);
}

QTableView* CVariablesDock::Table()
{
    BuildContents();
    return m_table;
}

QLineEdit* CVariablesDock::Filter()
{
    BuildContents();
    return m_filter;
}

QTreeWidget* CVariablesDock::ProblemList()
{
    BuildContents();
    return m_problemList;
}

CVariablesDock::~CVariablesDock()
{
    m_model->SetValues(nullptr);
}

void CVariablesDock::LoadProject(const std::string& folder)
{
    m_model->SetValues(nullptr);
    CHmiVariableDatabase database;
    database.LoadProject(folder);
    m_folder = folder;
    m_values = std::make_unique<CPreviewValues>(database);
    m_model->SetValues(m_values.get());
    if (m_message)
        m_message->hide();
}

void CVariablesDock::ShowProblems(const std::vector<BindingProblem>& problems)
{
    QStringList lines;
    for (const BindingProblem& problem : problems)
        lines << ProblemLine(problem);
    if (lines == m_shownProblems)
        return;
    m_shownProblems = lines;
    if (m_problemList)
        FillProblemList();
}

void CVariablesDock::SaveValues()
{
    if (!m_values || m_folder.empty())
        return Tell(tr("There is no project to keep the values in."));
    const FileResult saved = SaveValueSet(*m_values, m_folder + kValueSetFileName);
    Tell(saved ? tr("Saved in %1.").arg(FromModel(m_folder + kValueSetFileName))
               : QString::fromStdString(saved.error));
}

void CVariablesDock::LoadValues()
{
    if (!m_values || m_folder.empty())
        return Tell(tr("There is no project to take the values from."));
    const FileResult loaded = LoadValueSet(*m_values, m_folder + kValueSetFileName);
    m_model->SetValues(m_values.get()); // the generators changed as well
    QStringList lines{loaded ? tr("Loaded %1.").arg(FromModel(m_folder + kValueSetFileName))
                             : QString::fromStdString(loaded.error)};
    for (const std::string& notice : loaded.notices)
        lines << QString::fromStdString(notice);
    Tell(lines.join(QLatin1Char('\n')));
}

void CVariablesDock::Tell(const QString& text)
{
    BuildContents();
    m_message->setText(text);
    m_message->setVisible(!text.isEmpty());
}

void CVariablesDock::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        emit escapePressed();
    else
        QWidget::keyPressEvent(event);
}
