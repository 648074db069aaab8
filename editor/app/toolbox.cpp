#include "toolbox.h"

#include "editor/model/canvastools.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetwindow.h"

#include <algorithm>

namespace {

struct BuiltinToolboxLabel {
    const char* classKey;
    const char* label;
};

constexpr BuiltinToolboxLabel kBuiltinToolbox[] = {
    {"rectangle", "Rectangle"},
    {"line", "Line"},
    {"ellipse", "Ellipse"},
    {"text", "Text"},
    {"picture", "Picture"},
    {"gradrectangle", "Gradient rectangle"},
    {"gradellipse", "Gradient ellipse"},
    {"gradtriangle", "Gradient triangle"},
    {"timer", "Timer"},
    {"numinput", "Data input"},
    {"textinput", "Text input"},
    {"button", "Button"},
    {"checkbox", "Checkbox"},
    {"combobox", "Combobox"},
    {"alarmwnd", "Alarm window"},
    {"curve", "Realtime curve"},
    {"hiscurve", "History curve"},
    {"bmptext", "Vector Text"},
};

constexpr int kClassKeyRole = Qt::UserRole;

bool IsRegistered(const std::string& key)
{
    return std::any_of(CHmiWidget::WidgetClassList.begin(), CHmiWidget::WidgetClassList.end(),
                       [&key](const CWidgetRunTimeClass& entry) { return entry.m_strClassKey == key; });
}

} // namespace

std::vector<ToolboxEntry> ToolboxEntries()
{
    std::vector<ToolboxEntry> entries{{QStringLiteral("Pointer"), {}}};
    for (const BuiltinToolboxLabel& builtin : kBuiltinToolbox)
        if (IsRegistered(builtin.classKey))
            entries.push_back({QString::fromLatin1(builtin.label), builtin.classKey});
    for (const CWidgetRunTimeClass& registered : CHmiWidget::WidgetClassList) {
        const std::string& key = registered.m_strClassKey;
        const bool listed = std::any_of(entries.begin(), entries.end(),
                                        [&key](const ToolboxEntry& entry) { return entry.classKey == key; });
        if (key != kWindowClassKey && !listed)
            entries.push_back({QString::fromStdString(key), key});
    }
    return entries;
}

CToolbox::CToolbox(QWidget* parent) : QListWidget(parent)
{
    setSelectionMode(QAbstractItemView::SingleSelection);
    for (const ToolboxEntry& entry : ToolboxEntries()) {
        auto* item = new QListWidgetItem(entry.label, this);
        item->setData(kClassKeyRole, QString::fromStdString(entry.classKey));
    }
    setCurrentRow(0);
    connect(this, &QListWidget::itemClicked, this, &CToolbox::Choose);
    connect(this, &QListWidget::itemActivated, this, &CToolbox::Choose);
}

void CToolbox::Choose(QListWidgetItem* item)
{
    const std::string key = item->data(kClassKeyRole).toString().toStdString();
    CCanvasTools& tools = CCanvasTools::Instance();
    if (key.empty()) {
        CHmiWidget::CurWidgetClass = nullptr;
        tools.SetCurrentTool(CanvasTool::Select);
        return;
    }
    CHmiWidget::CurWidgetClass = CHmiWidget::GetWidgetClass(key);
    tools.SetCurrentTool(CanvasTool::Place);
}

void CToolbox::SyncWithCurrentTool()
{
    if (CCanvasTools::Instance().CurrentTool() == CanvasTool::Select && currentRow() != 0)
        setCurrentRow(0);
}
