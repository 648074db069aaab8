#pragma once

#include "workspace/widgettexts.h"

#include <QWidget>

#include <string>
#include <vector>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

// A place in one of the project's windows that a row leads to.
struct PlaceLink {
    QString path; // the window file
    std::string widget;
    WidgetPlace place;
};

// A list of places in the project's windows under a line that sums them up: the problems, the
// uses of a variable. Activating a row (a double-click, Enter) asks to show its place.
class CPlaceList : public QWidget {
    Q_OBJECT
public:
    explicit CPlaceList(const QStringList& headers, QWidget* parent = nullptr);

    QTreeWidget* Tree() const { return m_tree; }
    QString Summary() const;

signals:
    void placeActivated(const PlaceLink& link);

protected:
    void ClearPlaces(const QString& summary);
    // A row without a path leads nowhere.
    QTreeWidgetItem* AddPlace(const QStringList& columns, PlaceLink link);

private:
    QLabel* m_summary;
    QTreeWidget* m_tree;
    std::vector<PlaceLink> m_links; // by row
};
