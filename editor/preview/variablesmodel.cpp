#include "variablesmodel.h"

#include "editor/projectdialogs/modeltext.h"

#include <algorithm>

#include <QCoreApplication>

namespace {

const QString kNoGenerator = QStringLiteral("none");
constexpr CValueGenerator::Kind kKinds[] = {CValueGenerator::Kind::Constant, CValueGenerator::Kind::Toggle,
                                            CValueGenerator::Kind::Ramp, CValueGenerator::Kind::Sine,
                                            CValueGenerator::Kind::Random};

QString TypeText(const PreviewVariable& variable)
{
    const QString name = QString::fromLatin1(VariableTypeName(variable.type));
    return variable.type == VariableType::String ? QStringLiteral("%1(%2)").arg(name).arg(variable.length) : name;
}

QVariant OtherNames(const PreviewVariable& variable)
{
    if (variable.others.empty())
        return {};
    QStringList names;
    for (const std::string& name : variable.others)
        names << FromModel(name);
    return QCoreApplication::translate("CVariablesModel", "Also named %1").arg(names.join(QStringLiteral(", ")));
}

// A generator as it starts when chosen for a variable that has none: toggling between 0 and 1,
// or moving between 0 and 100, once a second.
CValueGenerator FreshGenerator(CValueGenerator::Kind kind)
{
    return {kind, 0, kind == CValueGenerator::Kind::Toggle ? 1.0 : 100.0, 1000};
}

} // namespace

CVariablesModel::CVariablesModel(QObject* parent) : QAbstractTableModel(parent) {}

CVariablesModel::~CVariablesModel()
{
    if (m_values)
        m_values->RemoveObserver(this);
}

void CVariablesModel::SetValues(CPreviewValues* values)
{
    beginResetModel();
    if (m_values)
        m_values->RemoveObserver(this);
    m_values = values;
    if (m_values)
        m_values->AddObserver(this);
    endResetModel();
}

QStringList CVariablesModel::GeneratorChoices()
{
    QStringList choices{kNoGenerator};
    for (const CValueGenerator::Kind kind : kKinds)
        choices << QString::fromLatin1(CValueGenerator::KindName(kind));
    return choices;
}

int CVariablesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_values ? 0 : int(m_values->Variables().size());
}

int CVariablesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CVariablesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char* const kHeaders[] = {QT_TR_NOOP("Variable"), QT_TR_NOOP("Type"),      QT_TR_NOOP("Value"),
                                           QT_TR_NOOP("Generator"), QT_TR_NOOP("Low"), QT_TR_NOOP("High"),
                                           QT_TR_NOOP("Period (ms)")};
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return tr(kHeaders[section]);
}

QVariant CVariablesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::EditRole && role != Qt::ToolTipRole))
        return {};
    const PreviewVariable& variable = m_values->Variables()[std::size_t(index.row())];
    if (role == Qt::ToolTipRole) // the other names that stand for the variable
        return OtherNames(variable);
    const std::optional<CValueGenerator>& generator = variable.generator;
    switch (index.column()) {
    case Reference:
        return FromModel(variable.reference);
    case Type:
        return TypeText(variable);
    case Value:
        return FromModel(ExpressionValueText(variable.value));
    case Generator:
        return generator ? QString::fromLatin1(CValueGenerator::KindName(generator->kind)) : kNoGenerator;
    case Low:
        return generator ? QVariant(generator->low) : QVariant();
    case High:
        return generator ? QVariant(generator->high) : QVariant();
    case Period:
        return generator ? QVariant(qlonglong(generator->periodMs)) : QVariant();
    }
    return {};
}

Qt::ItemFlags CVariablesModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid())
        return flags;
    const bool generated = m_values->Variables()[std::size_t(index.row())].generator.has_value();
    if (index.column() == Value || index.column() == Generator || (index.column() >= Low && generated))
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool CVariablesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    const auto variable = std::size_t(index.row());
    if (index.column() != Value)
        return SetGenerator(variable, index.column(), value);
    const PreviewVariable& target = m_values->Variables()[variable];
    const bool generated = target.generator.has_value();
    if (!m_values->SetValue(variable, ToModel(value.toString()))) {
        emit valueRefused(tr("%1 holds a number: \"%2\" is none.")
                              .arg(FromModel(target.reference), value.toString()));
        return false;
    }
    if (generated) {
        m_values->SetGenerator(variable, std::nullopt);
        emit dataChanged(index.siblingAtColumn(Generator), index.siblingAtColumn(Period));
    }
    return true;
}

bool CVariablesModel::SetGenerator(std::size_t variable, int column, const QVariant& value)
{
    std::optional<CValueGenerator> generator = m_values->Variables()[variable].generator;
    if (!generator && column != Generator)
        return false;
    bool number = true;
    switch (column) {
    case Generator:
        if (const std::optional<CValueGenerator::Kind> kind = CValueGenerator::KindNamed(value.toString().toStdString()))
            generator = generator ? CValueGenerator{*kind, generator->low, generator->high, generator->periodMs}
                                  : FreshGenerator(*kind);
        else
            generator.reset();
        break;
    case Low:
        generator->low = value.toDouble(&number);
        break;
    case High:
        generator->high = value.toDouble(&number);
        break;
    case Period:
        generator->periodMs = std::max<qlonglong>(1, value.toLongLong(&number));
        break;
    default:
        return false;
    }
    if (!number)
        return false;
    m_values->SetGenerator(variable, generator);
    const int row = int(variable);
    emit dataChanged(index(row, Generator), index(row, Period));
    return true;
}

void CVariablesModel::VariablesChanged(std::span<const std::size_t> variables)
{
    for (const std::size_t variable : variables)
        emit dataChanged(index(int(variable), Value), index(int(variable), Value), {Qt::DisplayRole, Qt::EditRole});
}
