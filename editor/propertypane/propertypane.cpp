#include "propertypane.h"

#include "captionwidth.h"
#include "propertypaneitem.h"

#include "editor/translations/coretexts.h"
#include "widgets/tamlodoc.h"

#include <QColorDialog>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kExtraColumnWidth = 14;
// What the pane would like for the value column: a value and the row's "..." button.
constexpr int kValueColumnWidth = 160;

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

    connect(m_tree, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* current) { ShowDescription(current); });
    connect(this, &CPropertyPane::itemChanged, this, &CPropertyPane::ApplyToWidget);
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
    if (m_widget)
        m_widget->ReleasePropertyTree();
    // Items go first, so that editors hidden by the clearing find nobody to commit to.
    m_items.clear();
    m_tree->clear();
    m_description->clear();
    m_widget = nullptr;
    if (m_document)
        std::exchange(m_document, nullptr)->RemoveObserver(this);
}

void CPropertyPane::ShowWidget(CHmiWidget* widget)
{
    Clear();
    m_widget = widget;
    if (!widget)
        return;
    widget->CreateWidgetPropertyTree(*this);
    m_document = widget->m_pDocument;
    if (m_document)
        m_document->AddObserver(this);
}

void CPropertyPane::ApplyToWidget(COptionTreeItem* item)
{
    if (!m_widget)
        return;
    const HmiRect before = m_widget->GetWidgetRect();
    m_widget->UpdateWidgetPropByTree(item);
    if (m_document)
        m_document->WidgetChanged(*m_widget, DocChange::Properties, before);
}

void CPropertyPane::DocumentChanged(const CDocumentChange& change)
{
    if (change.Has(DocChange::Reloaded))
        return Clear();
    const auto shown = std::find_if(change.widgets.begin(), change.widgets.end(),
                                    [this](const HmiWidgetChange& entry) { return entry.widget == m_widget; });
    if (shown == change.widgets.end())
        return;
    if (HasAny(shown->what, DocChange::Removed))
        Clear();
    else if (HasAny(shown->what, DocChange::Geometry | DocChange::Properties | DocChange::Bindings))
        m_widget->UpdateTreeByWidgetProp();
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
    const CHmiWidgetProp* prop = m_widget ? m_widget->FindProperty(key) : nullptr;
    return prop && MakeCurrent(prop->m_pTreeItem);
}

bool CPropertyPane::ShowEventRow(std::string_view name)
{
    if (!m_widget)
        return false;
    const std::vector<CHmiWidgetEvent>& events = m_widget->GetEvents();
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
