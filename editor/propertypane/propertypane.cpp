#include "propertypane.h"

#include "captionwidth.h"
#include "propertypaneitem.h"
#include "sharedrows.h"

#include "editor/translations/coretexts.h"
#include "widgets/tamlodoc.h"

#include <QColorDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kExtraColumnWidth = 14;
// What the pane would like for the value column: a value and the row's "..." button.
constexpr int kValueColumnWidth = 160;
// Several widgets are read this many at a time, each part when control returns to the event
// loop, so that a selection of thousands never keeps the canvas waiting for long.
constexpr std::size_t kWidgetsReadAtOnce = 500;

// Paints the extra column in the row's binding colour only, so that the mark of a bound
// property stays visible on the current row instead of disappearing under the highlight.
class CBindingMarkDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        painter->fillRect(option.rect, index.data(Qt::BackgroundRole).value<QBrush>());
    }
};

} // namespace

CPropertyPane::CPropertyPane(QWidget* parent)
    : QWidget(parent)
    , m_tree(new QTreeWidget(this))
    , m_description(new QLabel(this))
    , m_sharedRowsDue(new QTimer(this))
    , m_chooseColor([](const QColor& initial, QWidget* owner) { return QColorDialog::getColor(initial, owner); })
{
    m_tree->setColumnCount(3);
    m_tree->setHeaderLabels({tr("Property"), tr("Value"), QString()});
    m_tree->setRootIsDecorated(true);
    m_tree->setSelectionMode(QAbstractItemView::SingleSelection);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QHeaderView* header = m_tree->header();
    header->setStretchLastSection(false);
    header->setMinimumSectionSize(kExtraColumnWidth);
    header->setSectionResizeMode(CaptionColumn, QHeaderView::Interactive);
    header->setSectionResizeMode(ValueColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(ExtraColumn, QHeaderView::Fixed);
    // The caption column shows every built-in caption whole; the user may drag it either way.
    header->resizeSection(CaptionColumn, DefaultCaptionWidth());
    header->resizeSection(ExtraColumn, kExtraColumnWidth);
    m_tree->setItemDelegateForColumn(ExtraColumn, new CBindingMarkDelegate(m_tree));

    m_description->setWordWrap(true);
    m_description->setFrameShape(QFrame::StyledPanel);
    m_description->setMinimumHeight(3 * m_description->fontMetrics().height());
    m_description->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_description);

    m_sharedRowsDue->setSingleShot(true);
    m_sharedRowsDue->setInterval(0);
    connect(m_sharedRowsDue, &QTimer::timeout, this, &CPropertyPane::ShowSharedRows);
    connect(m_tree, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* current) { ShowDescription(current); });
    connect(this, &CPropertyPane::itemChanged, this, [this](COptionTreeItem* item) {
        // A copy: the document's change may rebuild the pane before the edit has returned.
        const std::vector<CHmiWidget*> widgets = m_widgets;
        ApplyToWidgets(widgets, item);
    });
}

// Out of line: the items are complete only here.
CPropertyPane::~CPropertyPane()
{
    if (m_document)
        m_document->RemoveObserver(this);
}

int CPropertyPane::DefaultCaptionWidth() const
{
    // A property's row stands one level under its group's, after the branch marks of both.
    const int textMargins = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, m_tree) + 1);
    return 2 * m_tree->indentation() + WidestBuiltinCaption(m_tree->font()) + textMargins;
}

QSize CPropertyPane::sizeHint() const
{
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, m_tree);
    const int width = m_tree->header()->sectionSize(CaptionColumn) + kValueColumnWidth + kExtraColumnWidth +
                      scrollBar + 2 * m_tree->frameWidth();
    return {width, QWidget::sizeHint().height()};
}

COptionTreeItem* CPropertyPane::CreateNewRootItem(const std::string& caption, const std::string& info)
{
    return AddItem(OptionItemKind::Root, nullptr, caption, info);
}

COptionTreeItem* CPropertyPane::CreateNewItem(OptionItemKind kind, COptionTreeItem* parent,
                                              const std::string& caption, const std::string& info)
{
    // Every item this pane hands out is one of its own.
    return AddItem(kind, static_cast<CPropertyPaneItem*>(parent), caption, info);
}

CPropertyPaneItem* CPropertyPane::AddItem(OptionItemKind kind, CPropertyPaneItem* parent, const std::string& caption,
                                          const std::string& info)
{
    auto* row = parent ? new QTreeWidgetItem(parent->Row()) : new QTreeWidgetItem(m_tree);
    // Shown in the user's language; the item keeps the core's caption, which the widget compares.
    const char* context = CoreTextContext::PaneRow(kind);
    const QString infoText = TranslateCoreText(context, info);
    row->setText(CaptionColumn, TranslateCoreText(context, caption));
    row->setToolTip(CaptionColumn, infoText);
    row->setToolTip(ValueColumn, infoText);
    m_items.push_back(std::make_unique<CPropertyPaneItem>(*this, kind, parent, row, caption));
    return m_items.back().get();
}

void CPropertyPane::Clear()
{
    if (CHmiWidget* widget = CurrentWidget())
        widget->ReleasePropertyTree();
    // Items go first, so that editors hidden by the clearing find nobody to commit to.
    m_sharedItems.clear();
    m_items.clear();
    m_shared.reset();
    m_tree->clear();
    m_description->clear();
    m_sharedRowsDue->stop();
    m_widgets.clear();
    m_shown.clear();
    if (m_document)
        std::exchange(m_document, nullptr)->RemoveObserver(this);
}

void CPropertyPane::ShowWidgets(std::vector<CHmiWidget*> widgets)
{
    Clear();
    std::erase(widgets, nullptr);
    if (widgets.empty())
        return;
    m_widgets = std::move(widgets);
    m_shown.insert(m_widgets.begin(), m_widgets.end());
    if (m_widgets.size() == 1)
        m_widgets.front()->CreateWidgetPropertyTree(*this);
    else
        m_sharedRowsDue->start();
    m_document = m_widgets.front()->m_pDocument;
    if (m_document)
        m_document->AddObserver(this);
}

void CPropertyPane::ShowSharedRows()
{
    if (!m_shared)
        m_shared = std::make_unique<CSharedRows>(m_widgets);
    if (!m_shared->ReadMore(kWidgetsReadAtOnce))
        return m_sharedRowsDue->start();
    if (m_sharedItems.empty())
        AddSharedRows();
    ShowSharedValues();
}

bool CPropertyPane::IsReading() const
{
    return m_sharedRowsDue->isActive();
}

void CPropertyPane::AddSharedRows()
{
    const std::vector<SharedRow>& rows = m_shared->Rows();
    // Only the groups that hold a shared row, in the first widget's order.
    std::vector<char> used(m_shared->Groups().size(), 0);
    for (const SharedRow& row : rows)
        if (row.group != SharedRow::kNoGroup)
            used[row.group] = 1;
    std::vector<CPropertyPaneItem*> groups(used.size(), nullptr);
    for (std::size_t g = 0; g < groups.size(); ++g) {
        if (!used[g])
            continue;
        const SharedGroup& group = m_shared->Groups()[g];
        groups[g] = AddItem(OptionItemKind::Root, nullptr, group.caption, group.info);
        groups[g]->Expand();
    }
    const QString oneWidget = tr("Works on one widget at a time: select a single widget to use it");
    for (const SharedRow& row : rows) {
        CPropertyPaneItem* parent = row.group == SharedRow::kNoGroup ? nullptr : groups[row.group];
        CPropertyPaneItem* item = AddItem(row.kind, parent, row.caption, row.info);
        for (const std::string& choice : row.choices)
            item->AddString(choice);
        item->SetBindable(row.bindable);
        item->DisableButtons(oneWidget);
        if (row.readOnly)
            item->SetReadOnly();
        m_sharedItems.push_back(item);
    }
}

void CPropertyPane::ShowSharedValues()
{
    const std::vector<SharedRow>& rows = m_shared->Rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
        CPropertyPaneItem& item = *m_sharedItems[i];
        if (rows[i].agree)
            ShowRowValue(item, rows[i].kind, rows[i].value);
        else
            item.ShowMixed();
        item.SetAdtColumnBkColor(rows[i].bound ? kHmiColorBound : kHmiColor3DFace);
    }
}

void CPropertyPane::ApplyToWidgets(const std::vector<CHmiWidget*>& widgets, COptionTreeItem* item)
{
    if (widgets.empty() || !item)
        return;
    const auto shared = std::find(m_sharedItems.begin(), m_sharedItems.end(), item);
    std::vector<HmiWidgetChange> changes;
    changes.reserve(widgets.size());
    for (CHmiWidget* widget : widgets) {
        const HmiRect before = widget->GetWidgetRect();
        if (shared != m_sharedItems.end())
            m_shared->Apply(*widget, std::size_t(shared - m_sharedItems.begin()), *item);
        else
            widget->UpdateWidgetPropByTree(item);
        changes.push_back({widget, DocChange::Properties, before});
    }
    if (CTamloDoc* document = widgets.front()->m_pDocument)
        document->WidgetsChanged(changes);
}

void CPropertyPane::DocumentChanged(const CDocumentChange& change)
{
    if (change.Has(DocChange::Reloaded))
        return Clear();
    DocChange shownChanged = DocChange::None;
    for (const HmiWidgetChange& entry : change.widgets)
        if (m_shown.contains(entry.widget))
            shownChanged |= entry.what;
    if (HasAny(shownChanged, DocChange::Removed))
        Clear();
    else if (HasAny(shownChanged, DocChange::Geometry | DocChange::Properties | DocChange::Bindings))
        Refresh();
}

void CPropertyPane::Refresh()
{
    if (CHmiWidget* widget = CurrentWidget()) {
        widget->UpdateTreeByWidgetProp();
        return;
    }
    if (m_shared)
        m_shared->Reread();
    m_sharedRowsDue->start();
}

void CPropertyPane::DocumentDestroyed()
{
    Clear();
}

void CPropertyPane::CommitItem(COptionTreeItem* item)
{
    const bool ownItem = std::any_of(m_items.begin(), m_items.end(),
                                     [item](const auto& own) { return own.get() == item; });
    if (ownItem)
        emit itemChanged(item);
}

CPropertyPaneItem* CPropertyPane::FindItem(const std::string& caption, const std::string& rootCaption) const
{
    for (const auto& item : m_items) {
        if (item->GetLabelText() != caption)
            continue;
        const COptionTreeItem* parent = item->GetParent();
        if (rootCaption.empty() || (parent && parent->GetLabelText() == rootCaption))
            return item.get();
    }
    return nullptr;
}

bool CPropertyPane::ShowPropertyRow(std::string_view key)
{
    const CHmiWidget* widget = CurrentWidget();
    const CHmiWidgetProp* prop = widget ? widget->FindProperty(key) : nullptr;
    return prop && MakeCurrent(prop->m_pTreeItem);
}

bool CPropertyPane::ShowEventRow(std::string_view name)
{
    const CHmiWidget* widget = CurrentWidget();
    if (!widget)
        return false;
    const std::vector<CHmiWidgetEvent>& events = widget->GetEvents();
    const auto event = std::find_if(events.begin(), events.end(), [&](const auto& e) { return e.name == name; });
    if (event == events.end())
        return false;
    const auto row = std::find_if(m_items.begin(), m_items.end(), [&](const auto& item) {
        return item->GetKind() == OptionItemKind::Event && item->GetLabelText() == event->label;
    });
    return row != m_items.end() && MakeCurrent(row->get());
}

bool CPropertyPane::MakeCurrent(const COptionTreeItem* item)
{
    const auto own = std::find_if(m_items.begin(), m_items.end(), [item](const auto& row) { return row.get() == item; });
    if (!item || own == m_items.end())
        return false;
    m_tree->setCurrentItem((*own)->Row());
    m_tree->scrollToItem((*own)->Row());
    return true;
}

QString CPropertyPane::DescriptionText() const
{
    return m_description->text();
}

void CPropertyPane::ShowDescription(QTreeWidgetItem* row)
{
    m_description->setText(row ? row->toolTip(CaptionColumn) : QString());
}

void CPropertyPane::ShowRefusal(const QString& reason)
{
    m_description->setText(reason);
}
