#pragma once

#include <QObject>
#include <QString>

class QSettings;

// The user's choices about how the editor works, which belong to no window file: read from the
// editor's settings when made and written back whenever one changes. Whoever depends on a
// choice listens to changed().
class CEditorPreferences : public QObject {
    Q_OBJECT
public:
    // How far Undo reaches back: the last command only, or every edit of the session.
    enum class UndoHistory { OneStep, Unlimited };

    struct Values {
        UndoHistory undoHistory = UndoHistory::OneStep;
        bool showGrid = false;
        int gridSize = 10; // canvas pixels between grid lines
        bool snapToGrid = false;
        bool snapToWidgets = false; // to the edges and centres of other widgets and of the window
        QString language;           // empty: the system's; otherwise a locale name such as "en"

        bool operator==(const Values&) const = default;
    };
    static constexpr int kMinGridSize = 2;
    static constexpr int kMaxGridSize = 200;

    explicit CEditorPreferences(QSettings& settings, QObject* parent = nullptr);

    const Values& Get() const { return m_values; }
    // Keeps the values (a grid size is brought into its range) and tells the listeners when
    // anything changed.
    void Set(const Values& values);

signals:
    void changed();

private:
    void Write() const;

    QSettings& m_settings;
    Values m_values;
};
