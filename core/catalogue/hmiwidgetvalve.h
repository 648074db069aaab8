#pragma once

#include "widgets/hmiwidget.h"

// A valve symbol whose centre shows a state colour. The colour is edited in a row of its own
// rather than through a property record, so it cannot be bound to an expression.
class CHmiWidgetValve : public CHmiWidget {
    HMI_DECLARE_WIDGET_CLASS(CHmiWidgetValve)
public:
    HmiWidgetPtr Clone() const override;
    std::string GetWidgetClassName() const override;
    // A grey bow-tie body of two gradient triangles, a stem with a hand wheel, and a grey disc
    // with the centre colour inside.
    void Draw(CHmiDC& dc) override;
    // Reads "centercolor", decimal or hexadecimal.
    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override;
    void CreateWidgetRootItems(COptionTree& tree) override;
    void CreateWidgetPropertyTree(COptionTree& tree) override;
    // Recognises the colour row by its caption "centercolor".
    void UpdateWidgetPropByTree(COptionTreeItem* item) override;
    void SaveWidgetProperties(std::string& archive) const override;

    HmiColor m_centerColor = 0x000000FF; // red

private:
    COptionTreeItem* m_pValveRootItem = nullptr;
};
