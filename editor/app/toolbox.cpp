#include "toolbox.h"

#include "editor/model/canvastools.h"
#include "editor/translations/coretexts.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetwindow.h"
#include "widgets/widgetlibrary.h"

#include <QImage>
#include <QPixmap>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int kClassKeyRole = Qt::UserRole;

bool FromLibrary(const std::string& key)
{
    const std::vector<CWidgetLibRecord>& libraries = RegisteredWidgetLibs();
    return std::any_of(libraries.begin(), libraries.end(), [&key](const CWidgetLibRecord& library) {
        return std::any_of(library.m_pEntries, library.m_pEntries + library.m_nCount,
                           [&key](const CWidgetRunTimeClass& entry) { return entry.m_strClassKey == key; });
    });
}

// The entry's own icon; else a library's class gets a common one, so that the classes a
// library adds stand out from the built-in kinds, which have none.
QIcon IconOf(const CWidgetRunTimeClass& entry, const QStyle& style)
{
    if (entry.m_pToolboxIcon) {
        const QImage image(entry.m_pToolboxIcon);
        if (!image.isNull())
            return QIcon(QPixmap::fromImage(image));
    }
    return FromLibrary(entry.m_strClassKey) ? style.standardIcon(QStyle::SP_FileDialogContentsView) : QIcon();
}

} // namespace

CToolbox::CToolbox(CCanvasTools& tools, QWidget* parent) : QListWidget(parent), m_tools(tools)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    addItem(tr("Pointer"));
    for (const std::string_view key : BuiltinToolboxOrder())
        if (const CWidgetRunTimeClass* entry = CHmiWidget::FindWidgetClassEntry(key))
            AddClass(*entry);
    // Then every other class, those of widget libraries included; the window is never placed,
    // and of a key registered twice only the first class is ever created.
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList)
        if (entry.m_strClassKey != kWindowClassKey && !HasClass(entry.m_strClassKey))
            AddClass(entry);
    setCurrentRow(0);
    connect(this, &QListWidget::itemClicked, this, &CToolbox::Choose);
    connect(this, &QListWidget::itemActivated, this, &CToolbox::Choose);
}

void CToolbox::AddClass(const CWidgetRunTimeClass& entry)
{
    const std::string& label = entry.m_strToolboxLabel.empty() ? entry.m_strClassKey : entry.m_strToolboxLabel;
    auto* item = new QListWidgetItem(IconOf(entry, *style()), TranslateCoreText(CoreTextContext::kKind, label), this);
    item->setData(kClassKeyRole, QString::fromStdString(entry.m_strClassKey));
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
    const std::string key = item->data(kClassKeyRole).toString().toStdString();
    if (key.empty()) {
        CHmiWidget::CurWidgetClass = nullptr;
        m_tools.SetCurrentTool(CanvasTool::Select);
        return;
    }
    CHmiWidget::CurWidgetClass = CHmiWidget::GetWidgetClass(key);
    m_tools.SetCurrentTool(CanvasTool::Place);
}

void CToolbox::SyncWithCurrentTool()
{
    if (m_tools.CurrentTool() == CanvasTool::Select && currentRow() != 0)
        setCurrentRow(0);
}
