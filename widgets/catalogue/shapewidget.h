#pragma once

#include "widgets/core/hmiwidget.h"
#include "widgets/core/numberparsers.h"
#include "widgets/core/optiontree.h"

#include <cstdint>
#include <iterator>
#include <memory>
#include <span>
#include <string>

// One own property of a shape: where its value lives and how the property list shows it.
// Every shape property is bindable, labelled with its key, read from the window file as a
// signed decimal number and written as "ulong".
template <class Widget>
struct ShapeProperty {
    const char* key;
    const char* description;
    PropItemType itemType; // PROP_COLOR, PROP_EDIT or PROP_COMBO
    HmiColor Widget::*color = nullptr;      // colour items
    std::int32_t Widget::*number = nullptr; // edit and combo items
    std::span<const char* const> choices = {};
    std::int32_t codeOffset = 0; // a combo stores its list index plus this offset
};

// The common behaviour of the shapes and gradient shapes, driven by the widget's table of
// properties. A shape class declares:
//   static constexpr const char* kClassKey, kGroup, kRootText;
//   static std::span<const ShapeProperty<Widget>> Properties();
// and draws itself; everything else comes from here.
template <class Widget>
class CHmiShapeWidget : public CHmiWidget {
public:
    CHmiShapeWidget()
    {
        for (const ShapeProperty<Widget>& property : Widget::Properties()) {
            CHmiWidgetProp& prop =
                DeclareProperty(property.key, property.key, property.description, 1, Widget::kGroup, property.itemType);
            if (!property.choices.empty())
                prop.SetComboList(property.choices.data(), std::int32_t(property.choices.size()));
        }
    }

    HmiWidgetPtr Clone() const override
    {
        auto copy = std::make_unique<Widget>();
        for (const ShapeProperty<Widget>& property : Widget::Properties()) {
            if (property.color)
                copy.get()->*property.color = Self().*property.color;
            else
                copy.get()->*property.number = Self().*property.number;
        }
        CopyTo(*copy);
        return HmiWidgetPtr(copy.release());
    }

    std::string GetWidgetClassName() const override { return Widget::kClassKey; }

    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override
    {
        if (CHmiWidget::SetWidgetProperty(name, type, value, length))
            return 1;
        const ShapeProperty<Widget>* property = Find(name);
        if (!property)
            return 0;
        const std::int32_t number = HmiDecimalToLong(value);
        if (property->color)
            Self().*property->color = HmiColor(number);
        else
            Self().*property->number = number;
        return 1;
    }

    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override
    {
        if (CHmiWidget::GetWidgetPropValue(prop, text))
            return 1;
        const ShapeProperty<Widget>* property = Find(prop.m_strName);
        if (!property)
            return 0;
        if (property->color)
            text = std::to_string(std::int32_t(Self().*property->color));
        else
            text = std::to_string(Self().*property->number - property->codeOffset);
        return 1;
    }

    void CreateWidgetRootItems(COptionTree& tree) override
    {
        CHmiWidget::CreateWidgetRootItems(tree);
        CreateNewRootItem(Widget::kGroup, Widget::kRootText)->Expand();
    }

    void UpdateWidgetPropByTree(COptionTreeItem* item) override
    {
        CHmiWidget::UpdateWidgetPropByTree(item);
        const CHmiWidgetProp* prop = GetWidgetPropByTreeItem(item);
        const ShapeProperty<Widget>* property = prop ? Find(prop->m_strName) : nullptr;
        if (!property)
            return;
        if (property->color)
            Self().*property->color = item->GetColor();
        else if (property->itemType == PROP_COMBO)
            Self().*property->number = item->GetCurSel() + property->codeOffset;
        else
            Self().*property->number = HmiDecimalToLong(item->GetEditText());
    }

    void SaveWidgetProperties(std::string& archive) const override
    {
        CHmiWidget::SaveWidgetProperties(archive);
        for (const ShapeProperty<Widget>& property : Widget::Properties()) {
            const std::int32_t value =
                property.color ? std::int32_t(Self().*property.color) : Self().*property.number;
            SaveWidgetProperty(archive, property.key, "ulong", nullptr, value);
        }
    }

private:
    Widget& Self() { return static_cast<Widget&>(*this); }
    const Widget& Self() const { return static_cast<const Widget&>(*this); }

    static const ShapeProperty<Widget>* Find(std::string_view key)
    {
        for (const ShapeProperty<Widget>& property : Widget::Properties())
            if (key == property.key)
                return &property;
        return nullptr;
    }
};
