#include "controlkinds.h"

#include "editor/projectdialogs/modeltext.h"
#include "catalogue/hmiwidgetalarmwnd.h"
#include "catalogue/hmiwidgetcontrols.h"
#include "catalogue/hmiwidgethislist.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeWidget>

CCheckboxControl::CCheckboxControl(const CHmiWidgetCheckbox& widget, QWidget& canvas)
    : CCanvasControl(new QCheckBox(&canvas)), m_widget(widget), m_box(static_cast<QCheckBox*>(Widget()))
{
    Refresh();
}

void CCheckboxControl::Refresh()
{
    const QString caption = FromModel(m_widget.m_strCaption);
    if (m_box->text() != caption)
        m_box->setText(caption);
}

CComboboxControl::CComboboxControl(const CHmiWidgetCombobox& widget, QWidget& canvas)
    : CCanvasControl(new QComboBox(&canvas)), m_widget(widget), m_box(static_cast<QComboBox*>(Widget()))
{
    Refresh();
}

void CComboboxControl::Refresh()
{
    const QString list = FromModel(m_widget.m_strList);
    const QStringList items = list.isEmpty() ? QStringList() : list.split(QLatin1Char(','));
    QStringList shown;
    for (int i = 0; i < m_box->count(); ++i)
        shown << m_box->itemText(i);
    if (shown == items)
        return;
    m_box->clear();
    m_box->addItems(items);
}

CListControl::CListControl(ListColumnsState& columns, QWidget& canvas, std::function<void()> columnResized)
    : CCanvasControl(new QTreeWidget(&canvas)), m_columns(columns), m_columnResized(std::move(columnResized)),
      m_list(static_cast<QTreeWidget*>(Widget()))
{
    m_list->setRootIsDecorated(false);
    m_list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QHeaderView* header = m_list->header();
    // The widths are the widget's, exactly: no stretching, no minimum, no moving or sorting.
    header->setStretchLastSection(false);
    header->setMinimumSectionSize(0);
    header->setSectionsMovable(false);
    header->setSectionsClickable(false);
    header->setDefaultAlignment(Qt::AlignCenter);
    QObject::connect(header, &QHeaderView::sectionResized, header,
                     [this](int column, int, int width) { TakeDraggedWidth(column, width); });
    ShowColumns();
}

void CListControl::Refresh()
{
    if (m_shown != m_columns.m_columns)
        ShowColumns();
}

void CListControl::ShowColumns()
{
    m_showing = true;
    m_shown = m_columns.m_columns;
    QStringList headings;
    for (const ListColumn& column : m_shown)
        headings << FromModel(column.field);
    m_list->setColumnCount(static_cast<int>(headings.size()));
    m_list->setHeaderLabels(headings);
    for (int i = 0; i < static_cast<int>(m_shown.size()); ++i)
        m_list->header()->resizeSection(i, m_shown[static_cast<std::size_t>(i)].width);
    m_showing = false;
}

void CListControl::TakeDraggedWidth(int column, int width)
{
    if (m_showing || column < 0 || column >= static_cast<int>(m_columns.m_columns.size()))
        return;
    m_columns.m_columns[static_cast<std::size_t>(column)].width = width;
    m_shown = m_columns.m_columns;
    m_columnResized();
}

std::unique_ptr<CCanvasControl> CreateCanvasControl(CHmiCtrlWidget& widget, QWidget& canvas,
                                                    const std::function<void()>& columnResized)
{
    if (auto* checkbox = dynamic_cast<CHmiWidgetCheckbox*>(&widget))
        return std::make_unique<CCheckboxControl>(*checkbox, canvas);
    if (auto* combobox = dynamic_cast<CHmiWidgetCombobox*>(&widget))
        return std::make_unique<CComboboxControl>(*combobox, canvas);
    if (dynamic_cast<CHmiWidgetEdit*>(&widget))
        return std::make_unique<CCanvasControl>(new QLineEdit(&canvas));
    if (auto* alarms = dynamic_cast<CHmiWidgetAlarmWnd*>(&widget))
        return std::make_unique<CListControl>(*alarms, canvas, columnResized);
    if (auto* history = dynamic_cast<CHmiWidgetHisList*>(&widget))
        return std::make_unique<CListControl>(*history, canvas, columnResized);
    return nullptr;
}
