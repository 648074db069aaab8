#pragma once

#include "base/numberparsers.h"
#include "widgets/hmiwidget.h"
#include "widgets/optiontree.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

// How a property's value is read back from the window file.
enum class FileNumber {
    Decimal,  // signed decimal, stopping at the first non-digit
    Unsigned, // HmiParseULong: decimal, or hexadecimal when the text holds "0x"
    Signed,   // HmiParseLong
};

// How a text property's length attribute is written.
enum class TextLength {
    Standard,      // 32, or the byte length plus one for longer texts
    None,          // never
    ShortVariable, // 32 for a text shorter than 32 bytes, none for a longer one
};

// Per-curve settings come in families of this many entries (key1 to key16).
inline constexpr std::size_t kSeriesCount = 16;

// One own property of a catalogue widget: its record in the property list, the member that
// holds its value and how that value travels through the window file. Exactly one member
// pointer is set; the series pointers name an array member and `series` the entry. Tables
// are written with designated initialisers, so each entry says only what differs from the
// common case.
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
    std::array<HmiColor, kSeriesCount> Widget::*colors = nullptr;
    std::array<float, kSeriesCount> Widget::*reals = nullptr;
    std::array<std::string, kSeriesCount> Widget::*texts = nullptr;
    std::size_t series = 0;

    FileNumber read = FileNumber::Decimal;
    std::span<const char* const> choices = {};
    std::int32_t codeOffset = 0; // a combo stores its list index plus this offset
    // Codes outside first..last read from a file become the first (0, 0: no check).
    std::int32_t firstCode = 0;
    std::int32_t lastCode = 0;
    // A font size kept as its list index and written as the size at that index.
    std::span<const std::int32_t> sizes = {};
    TextLength textLength = TextLength::Standard;
    // A text written with a length attribute taken from this member, which it also sets
    // when read back.
    std::int32_t Widget::*length = nullptr;
    // A value that travels as a text of the widget's own making, such as a name for an index.
    std::string (*writeText)(const Widget&) = nullptr;
    void (*readText)(Widget&, std::string_view) = nullptr;
    bool declared = true; // false: read and written, but no row in the property list
    bool saved = true;    // false: only in the property list
    const char* group = nullptr; // the root item it goes under; the widget's kGroup when null
};

// The catalogue's pattern for every widget whose properties are plain values: the records,
// the values shown in and taken from the property list, reading, writing and cloning all come
// from the widget's table. A widget class declares
//   static constexpr const char* kClassKey, kGroup, kRootText;
//   static std::span<const PropertySpec<Widget>> Properties();
// and, when it writes its properties in another order than it lists them,
//   static std::span<const char* const> SaveOrder();
template <class Widget, class Base = CHmiWidget>
class CHmiTableWidget : public Base {
public:
    CHmiTableWidget()
    {
        for (const PropertySpec<Widget>& spec : Widget::Properties()) {
            if (!spec.declared)
                continue;
            CHmiWidgetProp& prop =
                this->DeclareProperty(spec.key, spec.label, spec.description, spec.bindable, RecordGroup(spec),
                                      spec.itemType);
            if (!spec.choices.empty())
                prop.SetComboList(spec.choices.data(), std::int32_t(spec.choices.size()));
        }
    }

    // A widget with state outside its table copies it in `void CopyExtraState(Widget&) const`.
    HmiWidgetPtr Clone() const override
    {
        auto copy = std::make_unique<Widget>();
        for (const PropertySpec<Widget>& spec : Widget::Properties()) {
            if (!HasMember(spec))
                continue; // a value made from others at saving
            if (const std::string* text = TextOf(Self(), spec))
                *TextOf(*copy, spec) = *text;
            else if (const float* real = RealOf(Self(), spec))
                *RealOf(*copy, spec) = *real;
            else
                copy->SetNumber(spec, Number(spec));
        }
        if constexpr (requires { Self().CopyExtraState(*copy); })
            Self().CopyExtraState(*copy);
        this->CopyTo(*copy);
        return HmiWidgetPtr(copy.release());
    }

    std::string GetWidgetClassName() const override { return Widget::kClassKey; }

    int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                          std::string_view length) override
    {
        if (Base::SetWidgetProperty(name, type, value, length))
            return 1;
        const PropertySpec<Widget>* spec = Find(name);
        if (!spec)
            return 0;
        if (spec->readText) {
            spec->readText(Self(), value);
        } else if (std::string* text = TextOf(Self(), *spec)) {
            *text = std::string(value);
            if (spec->length)
                Self().*spec->length = HmiDecimalToLong(length);
        } else if (float* real = RealOf(Self(), *spec)) {
            *real = HmiParseFloat(value);
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
        if (Base::GetWidgetPropValue(prop, text))
            return 1;
        const PropertySpec<Widget>* spec = Find(prop.m_strName);
        if (!spec)
            return 0;
        if (const std::string* value = TextOf(Self(), *spec)) {
            text = *value;
        } else if (const float* real = RealOf(Self(), *spec)) {
            text = HmiFormatFloat(*real);
        } else {
            text = std::to_string(Number(*spec) - spec->codeOffset);
        }
        return 1;
    }

    // A widget with more root items than its group's adds them in `AddRootItems()`.
    void CreateWidgetRootItems(COptionTree& tree) override
    {
        Base::CreateWidgetRootItems(tree);
        this->CreateNewRootItem(Widget::kGroup, Widget::kRootText)->Expand();
        if constexpr (requires { Self().AddRootItems(); })
            Self().AddRootItems();
    }

    void UpdateWidgetPropByTree(COptionTreeItem* item) override
    {
        Base::UpdateWidgetPropByTree(item);
        const CHmiWidgetProp* prop = this->GetWidgetPropByTreeItem(item);
        const PropertySpec<Widget>* spec = prop ? Find(prop->m_strName) : nullptr;
        // A static row only shows its value; its own dialog changes it.
        if (!spec || spec->itemType == PROP_STATIC)
            return;
        if (std::string* text = TextOf(Self(), *spec))
            *text = item->GetEditText();
        else if (float* real = RealOf(Self(), *spec))
            *real = HmiParseFloat(item->GetEditText());
        else if (spec->color || spec->colors)
            SetNumber(*spec, std::int32_t(item->GetColor()));
        else if (spec->itemType == PROP_COMBO)
            SetNumber(*spec, item->GetCurSel() + spec->codeOffset);
        else if (spec->itemType == PROP_CHECKBOX)
            SetNumber(*spec, item->GetCheck() ? 1 : 0);
        else
            SetNumber(*spec, HmiDecimalToLong(item->GetEditText()));
    }

    void SaveWidgetProperties(std::string& archive) const override
    {
        Base::SaveWidgetProperties(archive);
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
        const Widget& self = Self();
        if (spec.color)
            return std::int32_t(self.*spec.color);
        if (spec.colors)
            return std::int32_t(*((self.*spec.colors).data() + spec.series));
        if (spec.flag)
            return self.*spec.flag;
        return self.*spec.number;
    }

    void SetNumber(const PropertySpec<Widget>& spec, std::int32_t value)
    {
        Widget& self = Self();
        if (spec.color)
            self.*spec.color = HmiColor(value);
        else if (spec.colors)
            *((self.*spec.colors).data() + spec.series) = HmiColor(value);
        else if (spec.flag)
            self.*spec.flag = std::uint8_t(value);
        else
            self.*spec.number = value;
    }

    void SaveProperty(std::string& archive, const PropertySpec<Widget>& spec) const
    {
        if (spec.writeText)
            SaveText(archive, spec, spec.writeText(Self()));
        else if (const std::string* text = TextOf(Self(), spec))
            SaveText(archive, spec, *text);
        else if (const float* real = RealOf(Self(), spec))
            this->SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, *real);
        else if (!spec.sizes.empty())
            this->SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, SizeAt(spec, Number(spec)));
        else
            this->SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, Number(spec));
    }

private:
    Widget& Self() { return static_cast<Widget&>(*this); }
    const Widget& Self() const { return static_cast<const Widget&>(*this); }

    static bool HasMember(const PropertySpec<Widget>& spec)
    {
        return spec.color || spec.number || spec.flag || spec.real || spec.text || spec.colors || spec.reals ||
               spec.texts;
    }

    static const char* RecordGroup(const PropertySpec<Widget>& spec)
    {
        return spec.group ? spec.group : Widget::kGroup;
    }

    template <class Object>
    static auto TextOf(Object& self, const PropertySpec<Widget>& spec) -> decltype(&(self.*spec.text))
    {
        if (spec.text)
            return &(self.*spec.text);
        return spec.texts ? (self.*spec.texts).data() + spec.series : nullptr;
    }

    template <class Object>
    static auto RealOf(Object& self, const PropertySpec<Widget>& spec) -> decltype(&(self.*spec.real))
    {
        if (spec.real)
            return &(self.*spec.real);
        return spec.reals ? (self.*spec.reals).data() + spec.series : nullptr;
    }

    void SaveText(std::string& archive, const PropertySpec<Widget>& spec, const std::string& text) const
    {
        constexpr std::size_t kShortText = 32;
        if (spec.length) {
            const std::string length = std::to_string(Self().*spec.length);
            this->SaveWidgetProperty(archive, spec.key, spec.xmlType, length.c_str(), text);
        } else if (spec.textLength == TextLength::None ||
                   (spec.textLength == TextLength::ShortVariable && text.size() >= kShortText)) {
            this->SaveWidgetPropertyWithoutLength(archive, spec.key, spec.xmlType, text);
        } else if (spec.textLength == TextLength::ShortVariable) {
            this->SaveWidgetProperty(archive, spec.key, spec.xmlType, "32", text);
        } else {
            this->SaveWidgetProperty(archive, spec.key, spec.xmlType, nullptr, text);
        }
    }

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

    // The font size at a list index; 0 for an index outside the list.
    static std::int32_t SizeAt(const PropertySpec<Widget>& spec, std::int32_t index)
    {
        return index >= 0 && std::size_t(index) < spec.sizes.size() ? spec.sizes[std::size_t(index)] : 0;
    }
};
