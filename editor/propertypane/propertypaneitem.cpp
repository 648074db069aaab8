#include "propertypaneitem.h"

#include "propertypane.h"

#include "base/textcodec.h"
#include "editor/translations/coretexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>

namespace {

QString ToQt(const std::string& text)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(text));
}

QColor ToQColor(HmiColor color)
{
    return QColor(int(color & 0xFF), int((color >> 8) & 0xFF), int((color >> 16) & 0xFF));
}

HmiColor ToHmiColor(const QColor& color)
{
    return HmiColor(color.red()) | HmiColor(color.green()) << 8 | HmiColor(color.blue()) << 16;
}

} // namespace

CPropertyPaneItem::CPropertyPaneItem(CPropertyPane& pane, OptionItemKind kind, CPropertyPaneItem* parent,
                                     QTreeWidgetItem* row, std::string caption)
    : m_pane(pane)
    , m_kind(kind)
    , m_parent(parent)
    , m_row(row)
    , m_caption(std::move(caption))
{
    if (kind == OptionItemKind::Root) {
        QFont bold = row->font(CPropertyPane::CaptionColumn);
        bold.setBold(true);
        row->setFont(CPropertyPane::CaptionColumn, bold);
        row->setFirstColumnSpanned(true);
        return;
    }
    BuildEditor(row->toolTip(CPropertyPane::ValueColumn));
}

void CPropertyPaneItem::BuildEditor(const QString& info)
{
    m_cell = new QWidget;
    m_cell->setToolTip(info);
    m_layout = new QHBoxLayout(m_cell);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(0);
    QWidget* editor = nullptr;
    switch (m_kind) {
    case OptionItemKind::Edit:
    case OptionItemKind::File:
    case OptionItemKind::Variable:
        editor = m_edit = new QLineEdit;
        connect(m_edit, &QLineEdit::editingFinished, this, &CPropertyPaneItem::CommitText);
        break;
    case OptionItemKind::Color:
        editor = m_swatch = new QPushButton;
        connect(m_swatch, &QPushButton::clicked, this, &CPropertyPaneItem::ChooseColor);
        ShowColor();
        break;
    case OptionItemKind::Combo:
        editor = m_combo = new QComboBox;
        connect(m_combo, &QComboBox::activated, this, [this](int index) {
            if (index == m_selection)
                return;
            m_selection = index;
            emit m_pane.itemChanged(this);
        });
        break;
    case OptionItemKind::CheckBox:
        editor = m_check = new QCheckBox;
        // clicked, unlike toggled, is never sent for setChecked.
        connect(m_check, &QCheckBox::clicked, this, [this] {
            m_check->setTristate(false); // a partly checked box becomes checked, and stays two-state
            emit m_pane.itemChanged(this);
        });
        break;
    case OptionItemKind::Static:
    case OptionItemKind::Font:
    case OptionItemKind::Event:
    case OptionItemKind::Root:
        editor = m_label = new QLabel;
        m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        break;
    }
    editor->installEventFilter(this);
    editor->setToolTip(info);
    // A check box stays at its natural size so that a click on the row's free space does not toggle it.
    m_layout->addWidget(editor, m_check ? 0 : 1);
    if (m_check)
        m_layout->addStretch(1);

    if (m_kind == OptionItemKind::File)
        m_browse = AddButton([this] { emit m_pane.fileRequested(this); }, QObject::tr("Choose a file"));
    else if (m_kind == OptionItemKind::Variable)
        m_browse = AddButton([this] { emit m_pane.selectItemRequested(this); }, QObject::tr("Choose a variable"));
    else if (m_kind == OptionItemKind::Font)
        m_browse = AddButton([this] { emit m_pane.fontRequested(this); }, QObject::tr("Choose a font"));
    else if (m_kind == OptionItemKind::Event)
        m_browse = AddButton([this] { emit m_pane.eventEditRequested(this); }, QObject::tr("Edit the event script"));
    else if (m_kind == OptionItemKind::Static) // a widget's own rows: the widget decides what the button does
        m_browse = AddButton([this] { emit m_pane.selectItemRequested(this); }, QObject::tr("Edit"));

    m_pane.Tree()->setItemWidget(m_row, CPropertyPane::ValueColumn, m_cell);
    m_row->setSizeHint(CPropertyPane::ValueColumn, m_cell->sizeHint());
}

QToolButton* CPropertyPaneItem::AddButton(const std::function<void()>& request, const QString& toolTip)
{
    auto* button = new QToolButton;
    button->setText(QStringLiteral("..."));
    button->setToolTip(toolTip);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, request);
    m_layout->addWidget(button);
    button->show(); // in the cell's size at once, also when the pane is filled while it is shown
    return button;
}

bool CPropertyPaneItem::eventFilter(QObject* watched, QEvent* event)
{
    // Working in a row's editor makes it the current row, so its help text shows.
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress)
        m_pane.Tree()->setCurrentItem(m_row);
    return QObject::eventFilter(watched, event);
}

QWidget* CPropertyPaneItem::Editor() const
{
    if (m_edit)
        return m_edit;
    if (m_combo)
        return m_combo;
    if (m_check)
        return m_check;
    if (m_swatch)
        return m_swatch;
    return m_label;
}

void CPropertyPaneItem::Expand()
{
    m_row->setExpanded(true);
}

void CPropertyPaneItem::SetAdtColumnBkColor(HmiColor color)
{
    m_row->setBackground(CPropertyPane::ExtraColumn, ToQColor(color));
}

void CPropertyPaneItem::SetBindable(bool bindable)
{
    if (!m_cell || bindable == (m_bind != nullptr))
        return;
    if (bindable) {
        m_bind = AddButton([this] { emit m_pane.dynPropEditRequested(this); }, QObject::tr("Bind to an expression"));
    } else {
        delete m_bind;
        m_bind = nullptr;
    }
    m_row->setSizeHint(CPropertyPane::ValueColumn, m_cell->sizeHint());
}

std::string CPropertyPaneItem::GetEditText() const
{
    return m_edit ? m_text : std::string();
}

void CPropertyPaneItem::SetEditText(const std::string& text)
{
    if (!m_edit)
        return;
    m_text = text;
    const QSignalBlocker block(m_edit);
    m_edit->setText(ToQt(text));
    m_edit->setCursorPosition(0);
}

void CPropertyPaneItem::CommitText()
{
    const QString shown = m_edit->text();
    if (shown == ToQt(m_text))
        return; // focus left without a change, or Return pressed twice
    std::string text;
    if (!Utf8ToGb2312(shown.toStdString(), text)) {
        // The window file and the panel know GB2312 only; keeping other bytes would corrupt the file.
        SetEditText(m_text);
        m_pane.ShowRefusal(QObject::tr("\"%1\" was not taken: the panel shows only characters of the GB2312 set.")
                               .arg(shown));
        return;
    }
    m_text = std::move(text);
    emit m_pane.itemChanged(this);
}

void CPropertyPaneItem::SetColor(HmiColor color)
{
    m_color = color;
    m_mixedColor = false;
    ShowColor();
}

void CPropertyPaneItem::ShowColor()
{
    if (!m_swatch)
        return;
    if (m_mixedColor) {
        m_swatch->setStyleSheet(QStringLiteral("border: 1px solid gray;"));
        m_swatch->setToolTip(QObject::tr("The widgets have different colours"));
        return;
    }
    const QColor color = ToQColor(m_color);
    m_swatch->setStyleSheet(QStringLiteral("background-color: %1; border: 1px solid gray;").arg(color.name()));
    m_swatch->setToolTip(color.name());
}

void CPropertyPaneItem::ChooseColor()
{
    const QColor chosen = m_pane.ChooseColor(ToQColor(m_color));
    if (!chosen.isValid() || (ToHmiColor(chosen) == m_color && !m_mixedColor))
        return;
    SetColor(ToHmiColor(chosen));
    emit m_pane.itemChanged(this);
}

bool CPropertyPaneItem::GetCheck() const
{
    return m_check && m_check->isChecked();
}

void CPropertyPaneItem::SetCheck(bool checked)
{
    if (!m_check)
        return;
    const QSignalBlocker block(m_check);
    m_check->setTristate(false);
    m_check->setChecked(checked);
}

void CPropertyPaneItem::AddString(const std::string& text)
{
    if (!m_combo)
        return;
    const QSignalBlocker block(m_combo);
    m_combo->addItem(TranslateCoreText(CoreTextContext::kChoice, text));
    // A combo selects its first entry by itself; the row shows only what it was told.
    m_combo->setCurrentIndex(m_selection);
}

void CPropertyPaneItem::SetCurSel(int index)
{
    if (!m_combo)
        return;
    m_selection = index >= 0 && index < m_combo->count() ? index : -1;
    const QSignalBlocker block(m_combo);
    m_combo->setCurrentIndex(m_selection);
}

void CPropertyPaneItem::SetStaticText(const std::string& text)
{
    if (!m_label)
        return;
    m_text = text;
    m_label->setText(ToQt(text).simplified()); // event scripts have several lines; the row has one
}

void CPropertyPaneItem::ShowMixed()
{
    if (m_edit) {
        SetEditText({});
    } else if (m_check) {
        const QSignalBlocker block(m_check);
        m_check->setTristate(true);
        m_check->setCheckState(Qt::PartiallyChecked);
    } else if (m_combo) {
        SetCurSel(-1);
    } else if (m_swatch) {
        m_mixedColor = true;
        ShowColor();
    } else if (m_label) {
        SetStaticText({});
    }
}

void CPropertyPaneItem::SetReadOnly()
{
    if (m_edit)
        m_edit->setReadOnly(true);
    else if (QWidget* editor = Editor())
        editor->setEnabled(false);
}

void CPropertyPaneItem::DisableButtons(const QString& reason)
{
    for (QToolButton* button : {m_browse, m_bind}) {
        if (button) {
            button->setEnabled(false);
            button->setToolTip(reason);
        }
    }
}
