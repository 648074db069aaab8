#pragma once

#include "propertytable.h"
#include "widgets/hmictrlwidget.h"

// The widgets the canvas shows as live controls of the toolkit: a check box, a drop-down
// list and a one-line edit box. The editor creates their controls; without one (saving, the
// command line) they are plain data.

class CHmiWidgetCheckbox : public CHmiTableWidget<CHmiWidgetCheckbox, CHmiCtrlWidget> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetCheckbox)
public:
    static constexpr const char* kClassKey = "checkbox";
    static constexpr const char* kGroup = "Checkbox";
    static constexpr const char* kRootText = "Checkbox properties";
    static std::span<const PropertySpec<CHmiWidgetCheckbox>> Properties();

    std::string m_strCaption;
    std::string m_strVariable;

protected:
    void DrawWithoutControl(CHmiDC& dc) override;
};

class CHmiWidgetCombobox : public CHmiTableWidget<CHmiWidgetCombobox, CHmiCtrlWidget> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetCombobox)
public:
    static constexpr const char* kClassKey = "combobox";
    static constexpr const char* kGroup = "Combobox";
    static constexpr const char* kRootText = "Combobox properties";
    static std::span<const PropertySpec<CHmiWidgetCombobox>> Properties();

    // Its own event after the touch events every widget has.
    void CreateEventItems() override;

    std::string m_strList; // the items, separated by commas
    std::string m_strVariable;
    std::int32_t m_nItemHeight = 0;

protected:
    void DrawWithoutControl(CHmiDC& dc) override;
};

class CHmiWidgetEdit : public CHmiTableWidget<CHmiWidgetEdit, CHmiCtrlWidget> {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetEdit)
public:
    static constexpr const char* kClassKey = "edit";
    static constexpr const char* kGroup = "Edit";
    static constexpr const char* kRootText = "Edit properties";
    static std::span<const PropertySpec<CHmiWidgetEdit>> Properties();

    std::string m_strVariable;

protected:
    void DrawWithoutControl(CHmiDC& dc) override;
};
