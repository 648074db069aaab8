#include "hmiwidgetcontrols.h"

#include "controlpictures.h"

HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetCheckbox, CHmiCtrlWidget)
HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetCombobox, CHmiCtrlWidget)
HMI_IMPLEMENT_WIDGET_CLASS(CHmiWidgetEdit, CHmiCtrlWidget)

// A bound variable carries the length 32 while it is shorter than that; a longer expression
// is written without a length. Captions and lists never carry one.

std::span<const PropertySpec<CHmiWidgetCheckbox>> CHmiWidgetCheckbox::Properties()
{
    using W = CHmiWidgetCheckbox;
    static const PropertySpec<W> properties[] = {
        {.key = "caption", .label = "Caption", .description = "Set caption", .bindable = 0, .xmlType = "string",
         .text = &W::m_strCaption, .textLength = TextLength::None},
        {.key = "variable", .label = "Variable", .description = "Set variable", .itemType = PROP_VARIABLE,
         .xmlType = "string", .text = &W::m_strVariable, .textLength = TextLength::ShortVariable},
    };
    return properties;
}

std::span<const PropertySpec<CHmiWidgetCombobox>> CHmiWidgetCombobox::Properties()
{
    using W = CHmiWidgetCombobox;
    static const PropertySpec<W> properties[] = {
        {.key = "list", .label = "List", .description = "Set combobox down list data,use comma to separate fields",
         .bindable = 0, .xmlType = "string", .text = &W::m_strList, .textLength = TextLength::None},
        {.key = "variable", .label = "Variable", .description = "Set combobox related variable",
         .itemType = PROP_VARIABLE, .xmlType = "string", .text = &W::m_strVariable,
         .textLength = TextLength::ShortVariable},
        {.key = "itemheight", .label = "Item height", .description = "Set item height", .bindable = 0,
         .number = &W::m_nItemHeight},
    };
    return properties;
}

void CHmiWidgetCombobox::CreateEventItems()
{
    CHmiTableWidget::CreateEventItems();
    DeclareEvent("selchange", "Select changed", "Trigger the event when select changed.");
}

std::span<const PropertySpec<CHmiWidgetEdit>> CHmiWidgetEdit::Properties()
{
    using W = CHmiWidgetEdit;
    static const PropertySpec<W> properties[] = {
        {.key = "variable", .label = "variable", .description = "set variable", .itemType = PROP_VARIABLE,
         .xmlType = "string", .text = &W::m_strVariable, .textLength = TextLength::ShortVariable},
    };
    return properties;
}

void CHmiWidgetCheckbox::DrawWithoutControl(CHmiDC& dc)
{
    DrawCheckboxPicture(dc, m_rect, m_strCaption);
}

void CHmiWidgetCombobox::DrawWithoutControl(CHmiDC& dc)
{
    DrawComboPicture(dc, m_rect, std::string_view(m_strList).substr(0, m_strList.find(',')));
}

void CHmiWidgetEdit::DrawWithoutControl(CHmiDC& dc)
{
    DrawEditPicture(dc, m_rect);
}
