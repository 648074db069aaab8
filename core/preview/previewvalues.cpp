#include "previewvalues.h"

#include "base/numberparsers.h"
#include "base/textcodec.h"
#include "project/datatypes.h"
#include "project/variabledatabase.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

struct TypeInfo {
    VariableType type;
    const char* shortName;
    std::int64_t min = 0; // the range of a whole-number type
    std::int64_t max = 0;
};

constexpr TypeInfo kTypes[] = {
    {VariableType::Char, "char", -128, 127},
    {VariableType::UChar, "uchar", 0, 255},
    {VariableType::Short, "short", -32768, 32767},
    {VariableType::UShort, "ushort", 0, 65535},
    {VariableType::Long, "long", std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()},
    {VariableType::ULong, "ulong", 0, std::numeric_limits<std::uint32_t>::max()},
    {VariableType::Float, "float"},
    {VariableType::Double, "double"},
    {VariableType::String, "string"},
};

const TypeInfo& Info(VariableType type)
{
    return kTypes[std::size_t(type)];
}

// The rows show the type by its full name. A type the table does not know has a length only,
// so its value is kept as bytes: a string.
VariableType TypeOfFullName(const std::string& fullName)
{
    for (const TypeInfo& info : kTypes)
        if (HmiTypeFullName(info.shortName) == fullName)
            return info.type;
    return VariableType::String;
}

// The text cut to the bytes a string of that declared length holds, before the character
// that would not fit whole.
std::string Fitted(std::string text, std::int32_t length)
{
    if (length <= 0)
        return text;
    const std::size_t room = std::size_t(length - 1);
    std::size_t end = 0;
    while (end < text.size()) {
        const auto byte = static_cast<unsigned char>(text[end]);
        const std::size_t size = text[end] == kForeignMark ? ReadForeignCharacter(text, end).length
                                 : byte >= 0x80                ? 2
                                                               : 1;
        if (end + size > room)
            break;
        end += size;
    }
    text.resize(std::min(end, text.size()));
    return text;
}

// A number as a variable of the type holds it.
ExpressionValue Held(const TypeInfo& info, const ExpressionValue& number)
{
    const auto* whole = std::get_if<std::int64_t>(&number);
    const double real = whole ? double(*whole) : std::get<double>(number);
    if (info.type == VariableType::Float)
        return double(static_cast<float>(real));
    if (info.type == VariableType::Double)
        return real;
    if (whole) {
        // Wrapped as the type's width does: the span is a power of two, so unsigned arithmetic
        // modulo 2^64 keeps the remainder right.
        const auto span = std::uint64_t(info.max - info.min) + 1;
        return std::int64_t((std::uint64_t(*whole) - std::uint64_t(info.min)) % span) + info.min;
    }
    if (std::isnan(real))
        return std::int64_t(0);
    return std::int64_t(std::clamp(std::trunc(real), double(info.min), double(info.max)));
}

// The value a variable of that type and length holds for the given one; none when a text
// does not read as a number. A text is read as a constant expression: "0x1F", "-2.5", "1e3".
std::optional<ExpressionValue> Held(VariableType type, std::int32_t length, const ExpressionValue& value)
{
    if (type == VariableType::String)
        return Fitted(ExpressionValueText(value), length);
    if (const auto* text = std::get_if<std::string>(&value)) {
        struct NoVariables : CExpressionValues {
            const ExpressionValue* FindValue(std::string_view) const override { return nullptr; }
        };
        const ExpressionResult read = CCompiledExpression(*text).Evaluate(NoVariables());
        if (!read || std::holds_alternative<std::string>(read.value))
            return std::nullopt;
        return Held(Info(type), read.value);
    }
    return Held(Info(type), value);
}

// A stable seed per variable, so that a random generator plays the same in every run.
std::uint64_t Seed(std::string_view reference)
{
    std::uint64_t hash = 14695981039346656037ULL; // FNV-1a
    for (const char c : reference)
        hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    return hash;
}

// Calls visit(node, row) for every row of the tree under the roots, in tree order.
template <class Visit>
void ForEachRow(const CHmiVariableDatabase& database, Visit visit)
{
    std::vector<const VariableNode*> pending{&database.HmiRoot(), &database.RealtimeRoot()};
    while (!pending.empty()) {
        const VariableNode* node = pending.back();
        pending.pop_back();
        for (const VariableRow& row : node->rows)
            visit(*node, row);
        pending.insert(pending.end(), node->children.rbegin(), node->children.rend());
    }
}

} // namespace

const char* VariableTypeName(VariableType type)
{
    return Info(type).shortName;
}

CPreviewValues::CPreviewValues(const CHmiVariableDatabase& database)
{
    // The variables first, then the other names, which may stand before what they name.
    ForEachRow(database, [this](const VariableNode& node, const VariableRow& row) {
        if (row.kind != VariableRow::Kind::Data && row.kind != VariableRow::Kind::Memory)
            return;
        PreviewVariable variable;
        variable.reference = CHmiVariableDatabase::ReferenceText(node, row);
        if (m_byReference.contains(variable.reference))
            return; // a database read twice: the first counts
        variable.type = TypeOfFullName(row.type);
        variable.length = HmiDecimalToLong(row.length);
        variable.init = Held(variable.type, variable.length, row.init).value_or(Held(variable.type, 0, std::int64_t(0)).value());
        variable.value = variable.init;
        m_byReference.emplace(variable.reference, m_variables.size());
        m_variables.push_back(std::move(variable));
    });
    ForEachRow(database, [this](const VariableNode& node, const VariableRow& row) {
        std::string target;
        if (row.kind == VariableRow::Kind::Alias) {
            VariableRow named = row;
            named.name = row.alias;
            target = CHmiVariableDatabase::ReferenceText(node, named);
        } else if (row.kind == VariableRow::Kind::Io) {
            target = "$" + row.dbname + "." + row.dataname;
        } else {
            return;
        }
        const std::optional<std::size_t> variable = Find(target);
        std::string reference = CHmiVariableDatabase::ReferenceText(node, row);
        if (!variable || m_byReference.contains(reference))
            return;
        m_variables[*variable].others.push_back(reference);
        m_byReference.emplace(std::move(reference), *variable);
    });
}

std::optional<std::size_t> CPreviewValues::Find(std::string_view reference) const
{
    const auto found = m_byReference.find(std::string(reference));
    if (found == m_byReference.end())
        return std::nullopt;
    return found->second;
}

const ExpressionValue* CPreviewValues::FindValue(std::string_view reference) const
{
    const std::optional<std::size_t> variable = Find(reference);
    return variable ? &m_variables[*variable].value : nullptr;
}

bool CPreviewValues::SetValue(std::size_t variable, const ExpressionValue& value)
{
    PreviewVariable& target = m_variables.at(variable);
    std::optional<ExpressionValue> held = Held(target.type, target.length, value);
    if (!held)
        return false;
    if (*held != target.value) {
        target.value = std::move(*held);
        Tell({&variable, 1});
    }
    return true;
}

void CPreviewValues::SetGenerator(std::size_t variable, std::optional<CValueGenerator> generator)
{
    m_variables.at(variable).generator = generator;
}

void CPreviewValues::Reset()
{
    std::vector<std::size_t> changed;
    for (std::size_t index = 0; index < m_variables.size(); ++index) {
        PreviewVariable& variable = m_variables[index];
        variable.generator.reset();
        if (variable.value != variable.init) {
            variable.value = variable.init;
            changed.push_back(index);
        }
    }
    Tell(changed);
}

void CPreviewValues::AdvanceTo(std::int64_t timeMs)
{
    std::vector<std::size_t> changed;
    for (std::size_t index = 0; index < m_variables.size(); ++index) {
        PreviewVariable& variable = m_variables[index];
        if (!variable.generator)
            continue;
        ExpressionValue held =
            *Held(variable.type, variable.length, variable.generator->ValueAt(timeMs, Seed(variable.reference)));
        if (held != variable.value) {
            variable.value = std::move(held);
            changed.push_back(index);
        }
    }
    Tell(changed);
}

void CPreviewValues::AddObserver(CPreviewValuesObserver* observer)
{
    m_observers.push_back(observer);
}

void CPreviewValues::RemoveObserver(CPreviewValuesObserver* observer)
{
    std::erase(m_observers, observer);
}

void CPreviewValues::Tell(std::span<const std::size_t> variables)
{
    if (variables.empty())
        return;
    for (CPreviewValuesObserver* observer : std::vector(m_observers))
        observer->VariablesChanged(variables);
}
