#include "projectexplorer.h"

#include "filewatch.h"

#include "editor/projectdialogs/modeltext.h"
#include "editor/translations/coretexts.h"
#include "project/projectcontents.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QScrollBar>
#include <QSet>

#include <utility>

namespace {

enum Role {
    WindowPathRole = Qt::UserRole, // the window file of a window item
    ReferenceRole,                 // the reference text of a variable item
};

const char* const kWindowsHeading = QT_TRANSLATE_NOOP("CProjectExplorer", "Windows");
constexpr int kRefreshDelayMs = 200;

QString FromFileName(const std::string& name)
{
    return QFile::decodeName(QByteArray::fromStdString(name));
}

// Names an item by the texts from the top of the tree down to it, so that it can be found
// again after the tree was built anew.
QString ItemKey(const QTreeWidgetItem* item)
{
    QString key = item->text(0);
    while ((item = item->parent()))
        key = item->text(0) + QLatin1Char('\n') + key;
    return key;
}

// Every item of the tree, parents before their children.
QList<QTreeWidgetItem*> AllItems(const QTreeWidget& tree)
{
    QList<QTreeWidgetItem*> items;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        items << tree.topLevelItem(i);
    for (qsizetype i = 0; i < items.size(); ++i)
        for (int child = 0; child < items[i]->childCount(); ++child)
            items << items[i]->child(child);
    return items;
}

void MarkAside(QTreeWidgetItem& item, const QString& why)
{
    QFont font = item.font(0);
    font.setItalic(true);
    item.setFont(0, font);
    item.setForeground(0, QBrush(Qt::darkGray));
    item.setToolTip(0, why);
}

} // namespace

CProjectExplorer::CProjectExplorer(QWidget* parent)
    : QTreeWidget(parent)
    , m_watch(new CFileWatch(this))
    , m_findReferences(new QAction(tr("Find References"), this))
{
    setHeaderLabel(QString());
    m_findReferences->setObjectName(QStringLiteral("findReferencesAction"));
    m_findReferences->setStatusTip(tr("List the windows and widgets that use this variable"));
    m_refreshSoon.setSingleShot(true);
    m_refreshSoon.setInterval(kRefreshDelayMs);
    connect(m_watch, &CFileWatch::changed, &m_refreshSoon, qOverload<>(&QTimer::start));
    connect(&m_refreshSoon, &QTimer::timeout, this, &CProjectExplorer::Refresh);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (const QString path = item->data(0, WindowPathRole).toString(); !path.isEmpty())
            emit windowOpenRequested(path);
    });
    connect(m_findReferences, &QAction::triggered, this, [this] {
        if (QTreeWidgetItem* item = currentItem(); item && !item->data(0, ReferenceRole).isNull())
            emit findReferencesRequested(item->data(0, ReferenceRole).toString());
    });
}

void CProjectExplorer::Refresh()
{
    m_refreshSoon.stop();
    QSet<QString> expanded;
    for (const QTreeWidgetItem* item : AllItems(*this))
        if (item->isExpanded())
            expanded << ItemKey(item);
    if (topLevelItemCount() == 0)
        expanded << tr(kWindowsHeading); // the windows are what a project is opened for
    const QString current = currentItem() ? ItemKey(currentItem()) : QString();
    const int scrolled = verticalScrollBar()->value();

    const CProjectContents contents;
    clear();
    const QString folder = FromFileName(contents.Folder());
    // The folder's own name, also for a project given as "./".
    const QString folderName = QFileInfo(QDir(folder).absolutePath()).fileName();
    setHeaderLabel(folder.isEmpty() ? tr("No project") : folderName);
    headerItem()->setToolTip(0, QDir::toNativeSeparators(folder));
    AddWindows(contents);
    AddVariables(contents.Variables().RealtimeRoot());
    AddVariables(contents.Variables().HmiRoot());
    AddNames(tr("History databases"), contents.HistoryDatabases(), FromModel);
    AddNames(tr("Data logs"), contents.DataLogs(), FromModel);
    AddNames(tr("Pictures"), contents.Pictures(), FromFileName);

    for (QTreeWidgetItem* item : AllItems(*this)) {
        const QString key = ItemKey(item);
        item->setExpanded(expanded.contains(key));
        if (key == current)
            setCurrentItem(item);
    }
    verticalScrollBar()->setValue(scrolled);

    QStringList watched;
    for (const std::string& path : contents.SourcePaths())
        watched << FromFileName(path);
    m_watch->Watch(watched);
}

QTreeWidgetItem* CProjectExplorer::AddHeading(const QString& text)
{
    auto* heading = new QTreeWidgetItem(this, {text});
    heading->setIcon(0, FolderIcon());
    return heading;
}

const QIcon& CProjectExplorer::FolderIcon()
{
    if (m_folderIcon.isNull())
        m_folderIcon = style()->standardIcon(QStyle::SP_DirIcon);
    return m_folderIcon;
}

void CProjectExplorer::AddWindows(const CProjectContents& contents)
{
    QTreeWidgetItem* heading = AddHeading(tr(kWindowsHeading));
    const QIcon icon = style()->standardIcon(QStyle::SP_FileIcon);
    for (const ProjectWindow& window : contents.Windows()) {
        const QString file = FromFileName(window.filename);
        QString text = window.listed ? FromModel(window.name) : file;
        if (!window.caption.empty())
            text += QStringLiteral(" (%1)").arg(FromModel(window.caption));
        auto* item = new QTreeWidgetItem(heading, {text});
        item->setIcon(0, icon);
        item->setToolTip(0, file);
        item->setData(0, WindowPathRole, FromFileName(contents.Folder()) + file);
        if (!window.listed)
            MarkAside(*item, tr("%1 is not in the window list (hmiwindow.xml)").arg(file));
        else if (!window.present)
            MarkAside(*item, tr("The window file %1 is missing").arg(file));
    }
}

void CProjectExplorer::AddVariables(const VariableNode& root)
{
    std::vector<std::pair<const VariableNode*, QTreeWidgetItem*>> pending{{&root, AddHeading(VariableNodeText(root))}};
    while (!pending.empty()) {
        const auto [node, item] = pending.back();
        pending.pop_back();
        for (const VariableNode* child : node->children) {
            auto* folder = new QTreeWidgetItem(item, {VariableNodeText(*child)});
            folder->setIcon(0, FolderIcon());
            pending.emplace_back(child, folder);
        }
        const std::vector<std::string> columns = CHmiVariableDatabase::Columns(*node);
        for (const VariableRow& row : node->rows) {
            const QString reference = FromModel(CHmiVariableDatabase::ReferenceText(*node, row));
            auto* variable = new QTreeWidgetItem(item, {FromModel(row.name)});
            variable->setData(0, ReferenceRole, reference);
            // The tip shows what the variable picker's columns show.
            QStringList tip{reference};
            const std::vector<std::string> cells = CHmiVariableDatabase::Cells(*node, row);
            for (std::size_t i = 0; i < columns.size() && i < cells.size(); ++i)
                if (!cells[i].empty())
                    tip << QStringLiteral("%1: %2").arg(TranslateCoreText(CoreTextContext::kVariables, columns[i]), FromModel(cells[i]));
            variable->setToolTip(0, tip.join(QLatin1Char('\n')));
        }
    }
}

void CProjectExplorer::AddNames(const QString& heading, const std::vector<std::string>& names, TextOf textOf)
{
    QTreeWidgetItem* parent = AddHeading(heading);
    for (const std::string& name : names)
        new QTreeWidgetItem(parent, {textOf(name)});
}

void CProjectExplorer::contextMenuEvent(QContextMenuEvent* event)
{
    QTreeWidgetItem* item = itemAt(event->pos());
    if (!item || item->data(0, ReferenceRole).isNull())
        return;
    setCurrentItem(item);
    QMenu menu(this);
    menu.addAction(m_findReferences);
    menu.exec(event->globalPos());
}
