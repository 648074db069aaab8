#pragma once

#include "hmiwidget.h"

// A widget of a class the editor does not know (from a widget library that is not loaded, say).
// It keeps every property it does not understand as the text of a `property` line and writes
// those lines back unchanged, so the widget survives loading and saving with its class key.
class CHmiWidgetCustom : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetCustom)
public:
    CHmiWidgetCustom();

    HmiWidgetPtr Clone() const override;
    // The class key read from the window file ("Custom" for a new one).
    std::string GetWidgetClassName() const override;
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    void SaveWidgetProperties(std::string& archive) const override;
    void CreateWidgetRootItems(COptionTree& tree) override;
    void CreateWidgetPropertyTree(COptionTree& tree) override;
    void UpdateWidgetPropByTree(COptionTreeItem* item) override;

    std::string ClassName = "Custom";
    std::string CustomInfo; // the `property` lines kept verbatim

private:
    COptionTreeItem* m_pCustomRootItem = nullptr;
    COptionTreeItem* m_pClassNameItem = nullptr;
    COptionTreeItem* m_pCustomInfoItem = nullptr;
};
