#include "toolbox.h"

#include "toolboxicons.h"

#include "editor/model/canvastools.h"
#include "editor/translations/coretexts.h"
#include "catalogue/builtinwidgets.h"
#include "catalogue/hmiwidgethislist.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/widgetlibrary.h"

#include <QImage>
#include <QPixmap>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int kClassKeyRole = Qt::UserRole;
constexpr int kIconSize = 24;

bool FromLibrary(const std::string& key)
{
    const std::vector<CWidgetLibRecord>& libraries = RegisteredWidgetLibs();
    return std::any_of(libraries.begin(), libraries.end(), [&key](const CWidgetLibRecord& library) {
        return std::any_of(library.m_pEntries, library.m_pEntries + library.m_nCount,
                           [&key](const CWidgetRunTimeClass& entry) { return entry.m_strClassKey == key; });
    });
}

// The entry's own icon; else the drawing of a built-in kind, else, for a library's class, a
// common icon.
QIcon IconOf(const CWidgetRunTimeClass& entry, const QStyle& style)
{
    if (entry.m_pToolboxIcon) {
        const QImage image(entry.m_pToolboxIcon);
        if (!image.isNull())
            return QIcon(QPixmap::fromImage(image));
    }
    if (QIcon drawn = BuiltinKindIcon(entry.m_strClassKey); !drawn.isNull())
        return drawn;
    return FromLibrary(entry.m_strClassKey) ? style.standardIcon(QStyle::SP_FileDialogContentsView) : QIcon();
}

// The registered label; the history list, a built-in kind registered without one, gets a
// readable name rather than its class key, as a library's class without a label does not.
QString LabelOf(const CWidgetRunTimeClass& entry)
{
    if (!entry.m_strToolboxLabel.empty())
        return TranslateCoreText(CoreTextContext::kKind, entry.m_strToolboxLabel);
    if (entry.m_strClassKey == CHmiWidgetHisList::kClassKey)
        return CToolbox::tr("History list");
    return TranslateCoreText(CoreTextContext::kKind, entry.m_strClassKey);
}

} // namespace

CToolbox::CToolbox(CCanvasTools& tools, QWidget* parent) : QListWidget(parent), m_tools(tools)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    setIconSize(QSize(kIconSize, kIconSize));
    // The entry of the current tool keeps its highlight while the canvas has the focus, so that
    // the placing tool shows as current after a placement too.
    QPalette colours = palette();
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        colours.setColor(QPalette::Inactive, role, colours.color(QPalette::Active, role));
    setPalette(colours);
    AddEntry(PointerIcon(), tr("Pointer"));
    for (const std::string_view key : BuiltinToolboxOrder())
        if (const CWidgetRunTimeClass* entry = CHmiWidget::FindWidgetClassEntry(key))
            AddClass(*entry);
    // Then every other class, those of widget libraries included; the window is never placed,
    // and of a key registered twice only the first class is ever created.
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList)
        if (entry.m_strClassKey != kWindowClassKey && !HasClass(entry.m_strClassKey))
            AddClass(entry);
    setCurrentRow(0);
    // The keys choose as a click does, so the highlight always shows the current tool.
    connect(this, &QListWidget::currentItemChanged, this, &CToolbox::Choose);
    connect(this, &QListWidget::itemClicked, this, &CToolbox::Choose);
}

void CToolbox::AddClass(const CWidgetRunTimeClass& entry)
{
    QListWidgetItem* item = AddEntry(IconOf(entry, *style()), LabelOf(entry));
    item->setData(kClassKeyRole, QString::fromStdString(entry.m_strClassKey));
}

QListWidgetItem* CToolbox::AddEntry(const QIcon& icon, const QString& label)
{
    // An entry without an icon has none in the meantime either, so that no row changes its size.
    m_icons.push_back(icon);
    return new QListWidgetItem(icon.isNull() ? QIcon() : BlankIcon(), label, this);
}

void CToolbox::ShowIcons()
{
    for (std::size_t row = 0; row < m_icons.size(); ++row)
        item(int(row))->setIcon(m_icons[row]);
    m_icons.clear();
}

bool CToolbox::HasClass(const std::string& key) const
{
    const QString wanted = QString::fromStdString(key);
    for (int row = 0; row < count(); ++row)
        if (item(row)->data(kClassKeyRole).toString() == wanted)
            return true;
    return false;
}

void CToolbox::Choose(QListWidgetItem* item)
{
    if (!item)
        return;
    const std::string key = item->data(kClassKeyRole).toString().toStdString();
    if (key.empty()) {
        CHmiWidget::CurWidgetClass = nullptr;
        m_tools.SetCurrentTool(CanvasTool::Select);
        return;
    }
    CHmiWidget::CurWidgetClass = CHmiWidget::GetWidgetClass(key);
    m_tools.SetCurrentTool(CanvasTool::Place);
}

QSize CToolbox::sizeHint() const
{
    const int scrollBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int frame = 2 * frameWidth();
    return {sizeHintForColumn(0) + scrollBar + frame, sizeHintForRow(0) * count() + frame};
}

void CToolbox::SyncWithCurrentTool()
{
    int row = 0;
    if (m_tools.CurrentTool() == CanvasTool::Place) {
        // No entry is highlighted for a class that another way made the one to place.
        row = -1;
        for (int entry = 1; entry < count() && row < 0; ++entry)
            if (CHmiWidget::GetWidgetClass(item(entry)->data(kClassKeyRole).toString().toStdString()) ==
                CHmiWidget::CurWidgetClass)
                row = entry;
    }
    if (row != currentRow())
        setCurrentRow(row);
}
