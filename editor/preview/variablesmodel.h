#pragma once

#include "preview/previewvalues.h"

#include <QAbstractTableModel>

// The preview's variables as table rows: the reference, the type, the value and its generator
// with the generator's low, high and period. The value and the generator are edited in place;
// a value typed in replaces the variable's generator. The rows follow the values' changes.
class CVariablesModel : public QAbstractTableModel, private CPreviewValuesObserver {
    Q_OBJECT
public:
    enum Column { Reference, Type, Value, Generator, Low, High, Period, ColumnCount };

    explicit CVariablesModel(QObject* parent = nullptr);
    ~CVariablesModel() override;

    // Shows these values (not owned), or none.
    void SetValues(CPreviewValues* values);
    CPreviewValues* Values() const { return m_values; }
    // What the generator column offers: "none", then the generator kinds.
    static QStringList GeneratorChoices();

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

signals:
    // A value typed in that its variable cannot hold; nothing changed.
    void valueRefused(const QString& reason);

private:
    void VariablesChanged(std::span<const std::size_t> variables) override;
    bool SetGenerator(std::size_t variable, int column, const QVariant& value);

    CPreviewValues* m_values = nullptr;
};
