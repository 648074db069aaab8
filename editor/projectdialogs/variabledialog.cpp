#include "variabledialog.h"

#include "dialogbuttons.h"
#include "modeltext.h"

#include "editor/translations/coretexts.h"
#include "project/projectpath.h"
#include "project/variabledatabase.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace {

constexpr int kColumnWidth = 100;
constexpr int kDialogHeight = 420;

QTableWidgetItem* CenteredCell(const QString& text)
{
    auto* cell = new QTableWidgetItem(text);
    cell->setTextAlignment(Qt::AlignCenter);
    return cell;
}

} // namespace

CVariableDialog::CVariableDialog(const CHmiVariableDatabase& database, const std::string& current, QWidget* parent)
    : QDialog(parent), m_tree(new QTreeWidget(this)), m_list(new QTableWidget(this))
{
    setWindowTitle(tr("HMI Database"));
    m_tree->setHeaderHidden(true);
    m_list->setShowGrid(true);
    m_list->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->horizontalHeader()->setSectionsMovable(true);
    m_list->horizontalHeader()->setDefaultSectionSize(kColumnWidth);
    m_list->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    m_list->verticalHeader()->hide();

    AddBranch(database.RealtimeRoot());
    AddBranch(database.HmiRoot());
    m_tree->expandAll();
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { ShowRows(item); });

    auto* views = new QHBoxLayout;
    views->addWidget(m_tree, 1);
    views->addWidget(m_list, 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    connect(AddOkCancelButtons(*this, *buttons).ok, &QPushButton::clicked, this, &CVariableDialog::TakeChosenRow);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(views);
    layout->addLayout(buttons);
    if (!current.empty())
        ShowReference(current);
    resize(InitialSize());
}

QSize CVariableDialog::InitialSize() const
{
    // Room for the tree and for the columns of any node at the width of their titles, or of the
    // columns shown, whichever is wider.
    const QFontMetrics titles = m_list->horizontalHeader()->fontMetrics();
    const int padding = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin) + style()->pixelMetric(QStyle::PM_HeaderMarkSize);
    int columns = m_list->horizontalHeader()->length();
    for (const VariableNode* node : m_nodes) {
        int width = 0;
        for (const std::string& title : CHmiVariableDatabase::Columns(*node))
            width += std::max(kColumnWidth, titles.horizontalAdvance(FromModel(title)) + padding);
        columns = std::max(columns, width);
    }
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QAbstractItemView& treeView = *m_tree; // where the width of the contents is public
    const int tree = treeView.sizeHintForColumn(0) + scrollBar + 2 * m_tree->frameWidth();
    const int list = columns + scrollBar + 2 * m_list->frameWidth();
    const int margins = layout()->contentsMargins().left() + layout()->contentsMargins().right() + 3 * layout()->spacing();
    // The list takes three quarters of the width.
    const int width = std::max(tree + list, list * 4 / 3) + margins;
    const QRect available = screen()->availableGeometry();
    return QSize(width, kDialogHeight).boundedTo(available.size());
}

bool CVariableDialog::ShowReference(const std::string& reference)
{
    for (auto node = m_nodes.cbegin(); node != m_nodes.cend(); ++node) {
        const std::vector<VariableRow>& rows = node.value()->rows;
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (CHmiVariableDatabase::ReferenceText(*node.value(), rows[row]) != reference)
                continue;
            m_tree->setCurrentItem(node.key());
            m_list->selectRow(int(row));
            m_list->scrollTo(m_list->model()->index(int(row), 0), QAbstractItemView::PositionAtCenter);
            return true;
        }
    }
    return false;
}

void CVariableDialog::AddBranch(const VariableNode& top)
{
    // Without recursion: a database's groups may nest as deep as its file does.
    auto* topItem = new QTreeWidgetItem(m_tree, {VariableNodeText(top)});
    topItem->setIcon(0, style()->standardIcon(QStyle::SP_DriveHDIcon));
    std::vector<std::pair<const VariableNode*, QTreeWidgetItem*>> pending{{&top, topItem}};
    while (!pending.empty()) {
        const auto [node, item] = pending.back();
        pending.pop_back();
        m_nodes.insert(item, node);
        for (const VariableNode* child : node->children) {
            auto* childItem = new QTreeWidgetItem(item, {VariableNodeText(*child)});
            childItem->setIcon(0, style()->standardIcon(QStyle::SP_DirIcon));
            pending.emplace_back(child, childItem);
        }
    }
}

void CVariableDialog::ShowRows(QTreeWidgetItem* item)
{
    m_list->clearSelection();
    const VariableNode* node = m_nodes.value(item);
    if (!node) {
        m_list->setRowCount(0);
        m_list->setColumnCount(0);
        return;
    }
    const std::vector<std::string> columns = CHmiVariableDatabase::Columns(*node);
    m_list->setColumnCount(int(columns.size()));
    for (int column = 0; column < int(columns.size()); ++column)
        m_list->setHorizontalHeaderItem(column, CenteredCell(TranslateCoreText(CoreTextContext::kVariables, columns[std::size_t(column)])));
    // The top nodes have no columns and show no rows.
    m_list->setRowCount(columns.empty() ? 0 : int(node->rows.size()));
    for (int row = 0; row < m_list->rowCount(); ++row) {
        const std::vector<std::string> cells = CHmiVariableDatabase::Cells(*node, node->rows[std::size_t(row)]);
        for (int column = 0; column < int(cells.size()) && column < m_list->columnCount(); ++column)
            m_list->setItem(row, column, CenteredCell(FromModel(cells[std::size_t(column)])));
    }
    m_list->resizeColumnsToContents();
    for (int column = 0; column < m_list->columnCount(); ++column)
        m_list->setColumnWidth(column, std::max(kColumnWidth, m_list->columnWidth(column)));
}

void CVariableDialog::TakeChosenRow()
{
    const VariableNode* node = m_nodes.value(m_tree->currentItem());
    const QModelIndexList chosen = m_list->selectionModel()->selectedRows();
    if (!node || chosen.isEmpty())
        return;
    int first = chosen.front().row();
    for (const QModelIndex& index : chosen)
        first = std::min(first, index.row());
    if (first >= int(node->rows.size()))
        return;
    m_reference = CHmiVariableDatabase::ReferenceText(*node, node->rows[std::size_t(first)]);
    accept();
}

std::optional<QString> PickVariable(QWidget* parent, const CHmiVariableDatabase& database,
                                    const ProjectContext::DialogRunner& run)
{
    CVariableDialog dialog(database, {}, parent);
    if (run(dialog) != QDialog::Accepted)
        return std::nullopt;
    return FromModel(dialog.Reference());
}

std::optional<QString> PickProjectVariable(QWidget* parent, const ProjectContext::DialogRunner& run)
{
    CHmiVariableDatabase database;
    database.LoadProject(GetProjectPath());
    return PickVariable(parent, database, run);
}
