#include "widgetnamecombo.h"

#include "base/textcodec.h"
#include "widgets/tamlodoc.h"

#include <QSignalBlocker>

#include <algorithm>
#include <vector>

namespace {

// A change of more widgets than this lists the names anew, at less cost than finding each.
constexpr std::size_t kNamesPlacedOneByOne = 64;

QString DisplayName(const CHmiWidget& widget)
{
    return QString::fromStdString(Gb2312ToUtf8OrKeep(widget.GetWidgetName()));
}

QVariant ItemData(const CHmiWidget* widget)
{
    return QVariant::fromValue(reinterpret_cast<quintptr>(widget));
}

} // namespace

CWidgetNameCombo::CWidgetNameCombo(QWidget* parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMinimumContentsLength(16);
    connect(this, &QComboBox::activated, this, [this](int index) {
        if (CHmiWidget* widget = WidgetAt(index))
            emit widgetChosen(widget);
    });
}

CWidgetNameCombo::~CWidgetNameCombo()
{
    if (m_document)
        m_document->RemoveObserver(this);
}

CHmiWidget* CWidgetNameCombo::WidgetAt(int index) const
{
    return reinterpret_cast<CHmiWidget*>(itemData(index).value<quintptr>());
}

int CWidgetNameCombo::FindWidget(const CHmiWidget* widget) const
{
    return findData(ItemData(widget));
}

void CWidgetNameCombo::ShowDocument(CTamloDoc* document)
{
    if (m_document)
        m_document->RemoveObserver(this);
    m_document = document;
    m_shown = nullptr;
    if (m_document)
        m_document->AddObserver(this);
    ListWidgets();
}

void CWidgetNameCombo::ListWidgets()
{
    const QSignalBlocker quiet(this);
    clear();
    if (!m_document)
        return;
    for (const HmiWidgetPtr& widget : m_document->Widgets())
        if (!m_document->IsWidgetDeleted(widget.get()))
            addItem(DisplayName(*widget), ItemData(widget.get()));
}

void CWidgetNameCombo::SelectWidget(const CHmiWidget* widget)
{
    const QSignalBlocker quiet(this);
    m_shown = widget;
    setCurrentIndex(FindWidget(widget));
}

void CWidgetNameCombo::DocumentChanged(const CDocumentChange& change)
{
    // Moving or resizing widgets leaves their names as they are.
    constexpr DocChange kListed = DocChange::Added | DocChange::Removed | DocChange::Order | DocChange::Properties;
    if (!change.Has(kListed | DocChange::Reloaded))
        return;
    const QSignalBlocker quiet(this);
    const auto listed = [](const HmiWidgetChange& entry) { return HasAny(entry.what, kListed); };
    if (change.Has(DocChange::Reloaded) ||
        std::size_t(std::count_if(change.widgets.begin(), change.widgets.end(), listed)) > kNamesPlacedOneByOne)
        ListWidgets();
    else
        Follow(change.widgets);
    setCurrentIndex(FindWidget(m_shown));
}

void CWidgetNameCombo::Follow(const std::vector<HmiWidgetChange>& changed)
{
    // Widgets that came, went or moved in the drawing order are taken off the list and put back
    // where they now stand; the list holds the others in drawing order all along.
    std::vector<const CHmiWidget*> placed;
    for (const HmiWidgetChange& entry : changed) {
        const int index = FindWidget(entry.widget);
        if (HasAny(entry.what, DocChange::Added | DocChange::Removed | DocChange::Order)) {
            placed.push_back(entry.widget);
            if (index >= 0)
                removeItem(index);
        } else if (index >= 0 && HasAny(entry.what, DocChange::Properties)) {
            setItemText(index, DisplayName(*entry.widget));
        }
    }
    if (!placed.empty())
        PutBack(placed);
}

void CWidgetNameCombo::PutBack(const std::vector<const CHmiWidget*>& widgets)
{
    int index = 0;
    for (const HmiWidgetPtr& widget : m_document->Widgets()) {
        if (m_document->IsWidgetDeleted(widget.get()))
            continue;
        if (std::find(widgets.begin(), widgets.end(), widget.get()) != widgets.end())
            insertItem(index, DisplayName(*widget), ItemData(widget.get()));
        ++index;
    }
}

void CWidgetNameCombo::DocumentDestroyed()
{
    m_document = nullptr;
    m_shown = nullptr;
    ListWidgets();
}
