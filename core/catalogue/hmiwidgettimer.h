#pragma once

#include "widgets/hmiwidget.h"

// An invisible timer: the panel runs its "timer" script each time the interval elapses.
class CHmiWidgetTimer : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetTimer)
public:
    CHmiWidgetTimer();

    HmiWidgetPtr Clone() const override;
    std::string GetWidgetClassName() const override;
    // Reads "interval" as a decimal number.
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override;
    void CreateWidgetRootItems(COptionTree& tree) override;
    void UpdateWidgetPropByTree(COptionTreeItem* item) override;
    void SaveWidgetProperties(std::string& archive) const override;
    void CreateEventItems() override;

    std::int32_t m_nInterval = 0; // milliseconds
};
