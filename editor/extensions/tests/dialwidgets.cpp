// A widget library that extends the editor as well, built the way a third party builds one: its
// dial stands on the canvas as a live control, its "scale" row opens a dialog of the library's
// own, and the toolbox shows it with the library's label and icon. Without the editor (the
// command-line tool) the dial draws itself.
#include "catalogue/propertytable.h"
#include "editor/extensions/editorextensions.h"
#include "widgets/hmictrlwidget.h"
#include "widgets/hmidc.h"
#include "widgets/widgetlibrary.h"

#include <QDial>
#include <QDialog>
#include <QDialogButtonBox>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

class CDialWidget : public CHmiTableWidget<CDialWidget, CHmiCtrlWidget> {
    HMI_DECLARE_WIDGET_CLASS(CDialWidget)
public:
    static constexpr const char* kClassKey = "dial";
    static constexpr const char* kGroup = "Dial";
    static constexpr const char* kRootText = "Dial properties";
    static std::span<const PropertySpec<CDialWidget>> Properties();

    std::int32_t m_scale = 100;
    HmiColor m_face = 0x0000A0FF;

protected:
    void DrawWithoutControl(CHmiDC& dc) override
    {
        dc.SelectPen({HmiPenStyle::Solid, 1, 0});
        dc.SelectBrush({false, m_face});
        dc.Ellipse(m_rect);
        dc.MoveTo({(m_rect.left + m_rect.right) / 2, (m_rect.top + m_rect.bottom) / 2});
        dc.LineTo({m_rect.right, m_rect.top});
    }
};
HMI_IMPLEMENT_WIDGET_CLASS(CDialWidget, CHmiCtrlWidget)

std::span<const PropertySpec<CDialWidget>> CDialWidget::Properties()
{
    static const PropertySpec<CDialWidget> properties[] = {
        {.key = "face", .label = "Face", .description = "Face colour", .itemType = PROP_COLOR,
         .color = &CDialWidget::m_face},
        {.key = "scale", .label = "Scale", .description = "The largest value the dial shows",
         .itemType = PROP_STATIC, .bindable = 0, .xmlType = "long", .number = &CDialWidget::m_scale},
    };
    return properties;
}

class CDialControl : public CCanvasControl {
public:
    CDialControl(const CDialWidget& widget, QWidget& canvas)
        : CCanvasControl(new QDial(&canvas)), m_widget(widget), m_dial(static_cast<QDial*>(Widget()))
    {
        m_dial->setNotchesVisible(true);
        Refresh();
    }
    void Refresh() override { m_dial->setMaximum(m_widget.m_scale); }

private:
    const CDialWidget& m_widget;
    QDial* m_dial;
};

void EditScale(QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context)
{
    auto& dial = static_cast<CDialWidget&>(widget);
    QDialog dialog(parent);
    dialog.setWindowTitle(QStringLiteral("Dial Scale"));
    auto* scale = new QSpinBox(&dialog);
    scale->setObjectName(QStringLiteral("scale"));
    scale->setRange(1, 10000);
    scale->setValue(dial.m_scale);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(scale);
    layout->addWidget(buttons);
    if (context.runDialog(dialog) == QDialog::Accepted)
        dial.m_scale = scale->value();
}

const char* const kDialIcon[] = {
    "8 8 3 1", "  c None", "# c #202020", ". c #FFA000",
    "  ####  ", " #....# ", "#......#", "#......#", "#......#", "#......#", " #....# ", "  ####  ",
};

const CWidgetRunTimeClass kClasses[] = {
    {"dial", &CDialWidget::classCDialWidget, "Dial", kDialIcon},
};

} // namespace

HMI_WIDGET_LIBRARY_INTERFACE

extern "C" int WidgetsLibInit()
{
    if (!RegisterWidgetsLib("dialwidgets", 1, kClasses))
        return 0;
    RegisterCanvasControl(CDialWidget::classCDialWidget, [](CHmiCtrlWidget& widget, QWidget& canvas, const auto&) {
        return std::make_unique<CDialControl>(static_cast<CDialWidget&>(widget), canvas);
    });
    RegisterRowDialog(CDialWidget::classCDialWidget, "scale", EditScale);
    return 1;
}
