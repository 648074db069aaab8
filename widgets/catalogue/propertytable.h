#pragma once

#include "widgets/core/hmiwidget.h"
#include "widgets/core/numberparsers.h"
#include "widgets/core/optiontree.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

// How a property's value is read back from the window file.
enum class FileNumber {
    Decimal,  // signed decimal, stopping at the first non-digit
    Unsigned, // HmiParseULong: decimal, or hexadecimal when the text holds "0x"
    Signed,   // HmiParseLong
};

// One own property of a catalogue widget: its record in the property list, the member that
// holds its value and how that value travels through the window file. Exactly one member
// pointer is set. Tables are written with designated initialisers, so that each entry says
// only what differs from the common case.
template <class Widget>
struct PropertySpec {
    const char* key;
    const char* label;
    const char* description;
    PropItemType itemType = PROP_EDIT;
    std::int32_t bindable = 1;
    const char* xmlType = "ulong";

    HmiColor Widget::*color = nullptr;
    std::int32_t Widget::*number = nullptr;
    std::uint8_t Widget::*flag = nullptr;
    float Widget::*real = nullptr;
    std::string Widget::*text = nullptr;

    FileNumber read = FileNumber::Decimal;
    std::span<const char* const> choices = {};
    std::int32_t codeOffset = 0; // a combo stores its list index plus this offset
    // Codes outside first..last read from a file become the first (0, 0: no check).
    std::int32_t firstCode = 0;
    std::int32_t lastCode = 0;
    // A font size kept as its list index and written as the size at that index.
    std::span<const std::int32_t> sizes = {};
    // A text written with a length attribute taken from this member, which it also sets
    // when read back.
    std::int32_t Widget::*length = nullptr;
    bool saved = true; // false: only in the property list
};

// The catalogue's pattern for every widget whose properties are plain values: the records,
// the values shown in and taken from the property list, reading, writing and cloning all come
// from the widget's table. A widget class declares
//   static constexpr const char* kClassKey, kGroup, kRootText;
//   static std::span<const PropertySpec<Widget>> Properties();
// and, when it writes its properties in another order than it lists them,
//   static std::span<const char* const> SaveOrder();
template <class Widget>
class CHmiTableWidget : public CHmiWidget {
public:
    CHmiTableWidget()
    {
        for (const PropertySpec<Widget>& spec : Widget::Properties()) {
            CHmiWidgetProp& prop =
                DeclareProperty(spec.key, spec.label, spec.description, spec.bindable, Widget::kGroup, spec.itemType);
            if (!spec.choices.empty())
                prop.SetComboList(spec.choices.data(), std::int32_t(spec.choices.size()));
        }
    }

    // A widget with state outside its table copies it in `void CopyExtraState(Widget&) const`.
    HmiWidgetPtr Clone() const override
    {
        auto copy = std::make_unique<Widget>();
        for (const PropertySpec<Widget>& spec : Widget::Properties()) {
            if (spec.text)
                copy.get()->*spec.text = Self().*spec.text;
            else if (spec.real)
                copy.get()->*spec.real = Self().*spec.real;
            else
                copy->SetNumber(spec, Number(spec));
        }
        if constexpr (requires { Self().CopyExtraState(*copy); })
            Self().CopyExtraState(*copy);
        CopyTo(*copy);
        return HmiWidgetPtr(copy.release());
    }

    std::string GetWidgetClassName() const override { return Widget::kClassKey; }

    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override
    {
        if (CHmiWidget::SetWidgetProperty(name, type, value, length))
            return 1;
        const PropertySpec<Widget>* spec = Find(name);
        if (!spec)
            return 0;
        Widget& self = Self();
        if (spec->text) {
            self.*spec->text = std::string(value);
            if (spec->length)
                self.*spec->length = HmiDecimalToLong(length);
        } else if (spec->real) {
            self.*spec->real = float(std::atof(std::string(value).c_str()));
        } else {
            std::int32_t number = ReadNumber(*spec, value);
            if (!spec->sizes.empty())
                number = IndexOfSize(*spec, number);
            else if (spec->firstCode != spec->lastCode && (number < spec->firstCode || number > spec->lastCode))
                number = spec->firstCode;
            SetNumber(*spec, number);
        }
        return 1;
    }

    int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const override
    {
        if (CHmiWidget::GetWidgetPropValue(prop, text))
            return 1;
        const PropertySpec<Widget>* spec = Find(prop.m_strName);
        if (!spec)
            return 0;
        const Widget& self = Self();
        if (spec->text) {
            text = self.*spec->text;
        } else if (spec->real) {
            char buffer[64];
            std::snprintf(buffer, sizeof buffer, "%f", double(self.*spec->real));
            text = buffer;
        } else {
            text = std::to_string(Number(*spec) - spec->codeOffset);
        }
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
        const PropertySpec<Widget>* spec = prop ? Find(prop->m_strName) : nullptr;
        if (!spec)
            return;
        Widget& self = Self();
        if (spec->text)
            self.*spec->text = item->GetEditText();
        else if (spec->real)
            self.*spec->real = float(std::atof(item->GetEditText().c_str()));
        else if (spec->color)
            self.*spec->color = item->GetColor();
        else if (spec->itemType == PROP_COMBO)
            SetNumber(*spec, item->GetCurSel() + spec->codeOffset);
        else if (spec->itemType == PROP_CHECKBOX)
            SetNumber(*spec, item->GetCheck() ? 1 : 0);
        else
            SetNumber(*spec, HmiDecimalToLong(item->GetEditText()));
    }

    void SaveWidgetProperties(std::string& archive) const override
    {
        CHmiWidget::SaveWidgetProperties(archive);
        if constexpr (requires { Widget::SaveOrder(); }) {
            for (const char* key : Widget::SaveOrder())
                SaveProperty(archive, *Find(key));
        } else {
            for (const PropertySpec<Widget>& spec : Widget::Properties())
                if (spec.saved)
                    SaveProperty(archive, spec);
        }
    }

protected:
    static const PropertySpec<Widget>* Find(std::string_view key)
    {
        for (const PropertySpec<Widget>& spec : Widget::Properties())
            if (key == spec.key)
                return &spec;
        return nullptr;
    }

    // The value a number-like property holds (colour, number or flag).
    std::int32_t Number(const PropertySpec<Widget>& spec) const
    {
        if (spec.color)
            return std::int32_t(Self().*spec.color);
        if (spec.flag)
            return Self().*spec.flag;
        return Self().*spec.number;
    }

    void SetNumber(const PropertySpec<Widget>& spec, std::int32_t value)
    {
        if (spec.color)
            Self().*spec.color = HmiColor(value);
        else if (spec.flag)
            Self().*spec.flag = std::uint8_t(value);
        else
            Self().*spec.number = value;
    }

    void SaveProperty(std::string& archive, const PropertySpec<Widget>& spec) const
    {
        const Widget& self = Self();
        if (spec.text) {
            const std::string length = spec.length ? std::to_string(self.*spec.length) : std::string();
            SaveWidgetProperty(archive, spec.key, spec.xmlType, spec.length ? length.c_str() : nullptr,
                               self.*spec.text);
        } else if (spec.real) {
            SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, self.*spec.real);
        } else if (!spec.sizes.empty()) {
            const std::int32_t index = Number(spec);
            const bool known = index >= 0 && std::size_t(index) < spec.sizes.size();
            SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, known ? spec.sizes[std::size_t(index)] : 0);
        } else {
            SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, Number(spec));
        }
    }

private:
    Widget& Self() { return static_cast<Widget&>(*this); }
    const Widget& Self() const { return static_cast<const Widget&>(*this); }

    static std::int32_t ReadNumber(const PropertySpec<Widget>& spec, std::string_view value)
    {
        switch (spec.read) {
        case FileNumber::Unsigned:
            return std::int32_t(HmiParseULong(value));
        case FileNumber::Signed:
            return HmiParseLong(value);
        default:
            return HmiDecimalToLong(value);
        }
    }

    // The list index of a font size read from a file; a size not in the list is the first.
    static std::int32_t IndexOfSize(const PropertySpec<Widget>& spec, std::int32_t size)
    {
        const auto found = std::find(spec.sizes.begin(), spec.sizes.end(), size);
        return found == spec.sizes.end() ? 0 : std::int32_t(found - spec.sizes.begin());
    }
};
