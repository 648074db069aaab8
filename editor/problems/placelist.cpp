#include "placelist.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

CPlaceList::CPlaceList(const QStringList& headers, QWidget* parent)
    : QWidget(parent)
    , m_summary(new QLabel(this))
    , m_tree(new QTreeWidget(this))
{
    m_tree->setColumnCount(int(headers.size()));
    m_tree->setHeaderLabels(headers);
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->header()->setStretchLastSection(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addWidget(m_tree, 1);
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* row) {
        const PlaceLink& link = m_links[std::size_t(m_tree->indexOfTopLevelItem(row))];
        if (!link.path.isEmpty())
            emit placeActivated(link);
    });
}

QString CPlaceList::Summary() const
{
    return m_summary->text();
}

void CPlaceList::ClearPlaces(const QString& summary)
{
    m_tree->clear();
    m_links.clear();
    m_summary->setText(summary);
}

QTreeWidgetItem* CPlaceList::AddPlace(const QStringList& columns, PlaceLink link)
{
    auto* row = new QTreeWidgetItem(m_tree, columns);
    for (int column = 0; column < columns.size(); ++column)
        row->setToolTip(column, columns[column]);
    m_links.push_back(std::move(link));
    return row;
}
