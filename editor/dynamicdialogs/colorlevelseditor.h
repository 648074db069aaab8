#pragma once

#include "dialogservices.h"

#include <QWidget>

#include <optional>

class CHmiDynColorAnalog;
class QPushButton;
class QTableWidget;

// The levels of a "color_analog" binding as a table: one row per level with its limit value
// (an expression text, kept as typed) and the colour shown from that limit up. Rows are kept
// in the order of the binding, which is the order of ascending limits.
class CColorLevelsEditor : public QWidget {
    Q_OBJECT
public:
    enum Column { LimitColumn, ColorColumn };

    CColorLevelsEditor(const CHmiDynColorAnalog& binding, ColorChooser chooser, QWidget* parent = nullptr);

    int LevelCount() const;
    // Appends a level after the last one; nothing when all levels are in use.
    void AddLevel();
    // Removes the current level, or the last one when none is current.
    void RemoveLevel();
    // The first level (counted from 0) whose limit is empty, which the runtime cannot compare with.
    std::optional<int> FirstEmptyLimit() const;
    // Stores the levels in the binding; the slots past the last level go back to their defaults.
    void WriteTo(CHmiDynColorAnalog& binding) const;

    QTableWidget* Table() const { return m_table; }

private:
    void AppendRow(const QString& limit, HmiColor color);
    void UpdateButtons();

    ColorChooser m_chooseColor;
    QTableWidget* m_table;
    QPushButton* m_addButton;
    QPushButton* m_removeButton;
};
