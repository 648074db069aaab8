#pragma once

#include "base/hmitypes.h"
#include "dynamictype.h"

#include <array>
#include <cstdint>
#include <string>

// The six binding types. Each is created with its defaults by CreateDynamicType; the dialogs
// then fill the public fields. Colours are 0x00BBGGRR values.

// "color_digit": a colour that follows a switch, the open colour while the expression is true
// and the close colour otherwise.
class CHmiDynColorDigit final : public CHmiDynamicType {
public:
    static constexpr const char* kTypeName = "color_digit";

    const char* GetTypeName() const override;
    std::string ComposeExpression() const override;
    void WriteInnerElement(std::string& archive) const override;
    bool ReadInnerElement(const XmlElement& element) override;
    std::unique_ptr<CHmiDynamicType> Clone() const override;

    HmiColor openColor = 0;
    HmiColor closeColor = 0;
};

// "color_analog": a colour that follows a measured value through a cascade of thresholds. Below
// limits[0] the value shows the default colour, from limits[i] up colors[i]; the limits are
// therefore meant to be in ascending order. Limits are expression texts, kept as entered.
class CHmiDynColorAnalog final : public CHmiDynamicType {
public:
    static constexpr const char* kTypeName = "color_analog";
    static constexpr std::int32_t kMaxLevels = 32;

    const char* GetTypeName() const override;
    std::string ComposeExpression() const override;
    void WriteInnerElement(std::string& archive) const override;
    bool ReadInnerElement(const XmlElement& element) override;
    std::unique_ptr<CHmiDynamicType> Clone() const override;
    // The raw expression and the limits in use.
    std::vector<std::string*> ExpressionTexts() override;

    // The levels in use: count held to 0..kMaxLevels, so that a bad count never reaches
    // past the arrays. A negative count, kept as a file gives it, means no levels.
    std::int32_t LevelCount() const;

    std::int32_t count = 0;
    HmiColor defaultColor = 0;
    std::array<HmiColor, kMaxLevels> colors{};
    std::array<std::string, kMaxLevels> limits;
};

// The text types show a number through a formatting function of the panel runtime with a
// given number of digits. They differ only in that function and in whether they have a
// decimal width, so they share this implementation.
class CHmiDynText : public CHmiDynamicType {
public:
    const char* GetTypeName() const override;
    std::string ComposeExpression() const override;
    void WriteInnerElement(std::string& archive) const override;
    bool ReadInnerElement(const XmlElement& element) override;

    // False for "text_int", which shows whole numbers and neither writes nor reads decWidth.
    bool HasDecimalWidth() const { return m_hasDecimalWidth; }

    std::int32_t intWidth = 0; // digits before the decimal point
    std::int32_t decWidth = 2; // digits after it

protected:
    CHmiDynText(const char* typeName, const char* runtimeFunction, bool hasDecimalWidth)
        : m_typeName(typeName), m_runtimeFunction(runtimeFunction), m_hasDecimalWidth(hasDecimalWidth)
    {
    }

private:
    const char* m_typeName;
    const char* m_runtimeFunction;
    bool m_hasDecimalWidth;
};

// "text_int": (long2str2((E),intWidth)).
class CHmiDynTextInt final : public CHmiDynText {
public:
    static constexpr const char* kTypeName = "text_int";

    CHmiDynTextInt() : CHmiDynText(kTypeName, "long2str2", false) {}
    std::unique_ptr<CHmiDynamicType> Clone() const override;
};

// "text_float": (float2str3((E),intWidth,decWidth)).
class CHmiDynTextFloat final : public CHmiDynText {
public:
    static constexpr const char* kTypeName = "text_float";

    CHmiDynTextFloat() : CHmiDynText(kTypeName, "float2str3", true) {}
    std::unique_ptr<CHmiDynamicType> Clone() const override;
};

// "text_double": (double2str3((E),intWidth,decWidth)).
class CHmiDynTextDouble final : public CHmiDynText {
public:
    static constexpr const char* kTypeName = "text_double";

    CHmiDynTextDouble() : CHmiDynText(kTypeName, "double2str3", true) {}
    std::unique_ptr<CHmiDynamicType> Clone() const override;
};

// "script": the expression field holds script code, which travels in a `code` element. The
// binding composes no runtime expression.
class CHmiDynScript final : public CHmiDynamicType {
public:
    static constexpr const char* kTypeName = "script";

    const char* GetTypeName() const override;
    std::string ComposeExpression() const override;
    void WriteInnerElement(std::string& archive) const override;
    bool ReadInnerElement(const XmlElement& element) override;
    std::unique_ptr<CHmiDynamicType> Clone() const override;
};
