#pragma once

#include "inputfieldsettings.h"
#include "propertytable.h"

// The text entry field of the panel: the operator touches it and types a text for a string
// variable, optionally hidden as a password. The editor shows an "abc" placeholder.
class CHmiWidgetTextInput : public CHmiTableWidget<CHmiWidgetTextInput>, public InputFieldSettings {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetTextInput)
public:
    static constexpr const char* kClassKey = "textinput";
    static constexpr const char* kGroup = "Text input";
    static constexpr const char* kRootText = "Text input properties";
    static std::span<const PropertySpec<CHmiWidgetTextInput>> Properties();
    static std::span<const char* const> SaveOrder();

    void Draw(CHmiDC& dc) override;
};
