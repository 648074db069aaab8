#pragma once

#include "dynamics/expressionevaluator.h"
#include "valuegenerator.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class CHmiVariableDatabase;

// The types of the realtime database, as values hold them.
enum class VariableType { Char, UChar, Short, UShort, Long, ULong, Float, Double, String };
// The type's name as rtdb.xml writes it: "char", "ulong", "string".
const char* VariableTypeName(VariableType type);

// One variable of the project with the value the preview gives it.
struct PreviewVariable {
    std::string reference;           // "$database.data" or "$name" of an HMI variable
    std::vector<std::string> others; // aliases and HMI variables that stand for it
    VariableType type = VariableType::Long;
    std::int32_t length = 0; // a string's declared length in bytes
    ExpressionValue init;
    ExpressionValue value;
    std::optional<CValueGenerator> generator;
};

// Hears which variables changed value, once per change of any number of them.
class CPreviewValuesObserver {
public:
    virtual ~CPreviewValuesObserver() = default;
    virtual void VariablesChanged(std::span<const std::size_t> variables) = 0;
};

// The values of a project's variables for the preview: every variable of rtdb.xml and hmidb.xml
// starts at its init value, and holds what it is given as its type holds it. Whole-number types
// wrap a whole number to their width and take a floating-point one truncated and held to their
// range; a float keeps single precision; a string keeps at most length − 1 bytes (the panel
// keeps a terminating zero), cut before a character that would not fit. An alias of the
// realtime database and an HMI variable of the io group are other names of the variable they
// stand for.
class CPreviewValues : public CExpressionValues {
public:
    explicit CPreviewValues(const CHmiVariableDatabase& database);
    CPreviewValues(const CPreviewValues&) = delete;
    CPreviewValues& operator=(const CPreviewValues&) = delete;

    const std::vector<PreviewVariable>& Variables() const { return m_variables; }
    // The variable a reference names, through aliases; none for an unknown reference.
    std::optional<std::size_t> Find(std::string_view reference) const;
    const ExpressionValue* FindValue(std::string_view reference) const override;

    // Gives a variable a value as its type holds it. A text for a number variable is read as a
    // number (decimal, "0x" hexadecimal or floating point) and refused (false, nothing changes)
    // when it is none; a number for a string variable becomes its text.
    bool SetValue(std::size_t variable, const ExpressionValue& value);
    // Null removes the generator; the value stays as it is until set.
    void SetGenerator(std::size_t variable, std::optional<CValueGenerator> generator);
    // Every variable back at its init value, without generators.
    void Reset();
    // Sets every generated variable to its generator's value at the time (milliseconds from the
    // start of the preview).
    void AdvanceTo(std::int64_t timeMs);

    // Observers hear of changed values after each SetValue, Reset or AdvanceTo; not owned.
    void AddObserver(CPreviewValuesObserver* observer);
    void RemoveObserver(CPreviewValuesObserver* observer);

private:
    void Tell(std::span<const std::size_t> variables);

    std::vector<PreviewVariable> m_variables;
    std::unordered_map<std::string, std::size_t> m_byReference; // aliases included
    std::vector<CPreviewValuesObserver*> m_observers;
};
