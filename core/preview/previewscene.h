#pragma once

#include "base/hmitypes.h"
#include "dynamics/expressionevaluator.h"
#include "previewvalues.h"
#include "widgets/hmiwidget.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

class CHmiDC;
class CTamloDoc;

// A bound property whose expression does not evaluate: the document's widget, the property,
// and the error with its position in the runtime expression.
struct BindingProblem {
    const CHmiWidget* widget;
    std::string property;
    std::string expression;
    ExpressionError error;
    HmiRect area; // where the widget stands with the bindings that evaluate
};

// Hears that evaluated properties changed: the areas (window coordinates) where the changed
// widgets stood and stand.
class CPreviewSceneObserver {
public:
    virtual ~CPreviewSceneObserver() = default;
    virtual void SceneChanged(std::span<const HmiRect> areas) = 0;
};

// A window as the panel would show it with the preview's values: a copy of the document's
// widgets whose bound properties are set from their evaluated runtime expressions, the way the
// window-file reader sets properties. The document itself is never touched. When values change,
// only the bindings that read a changed variable are evaluated again. A binding that fails
// leaves its property as the document has it and is listed among the problems. Script
// bindings carry code, which the preview does not run.
// The scene reads the document once: it stands for the window as it was when it was made, and
// must not outlive the document (the copies find their pictures through it).
class CPreviewScene : private CPreviewValuesObserver {
public:
    CPreviewScene(const CTamloDoc& document, CPreviewValues& values);
    CPreviewScene(const CPreviewScene&) = delete;
    CPreviewScene& operator=(const CPreviewScene&) = delete;
    ~CPreviewScene() override;

    // Draws the window as DrawWindow does, with the evaluated properties: widgets that are not
    // visible are left out, and flashing ones show or hide as they would at the time.
    void Draw(CHmiDC& dc, std::int64_t timeMs) const;
    // The bindings that fail, in drawing order.
    std::vector<BindingProblem> Problems() const;
    // The evaluated copy of a widget of the document, or null; valid until the values change.
    const CHmiWidget* Evaluated(const CHmiWidget& documentWidget) const;
    // The areas of the flashing widgets that show at one of the times and not at the other.
    std::vector<HmiRect> FlashTurns(std::int64_t fromMs, std::int64_t toMs) const;
    // The document's widget that a click at the point meets at the time: the topmost one shown
    // there, the window widget aside; null where there is none.
    const CHmiWidget* WidgetAt(HmiPoint point, std::int64_t timeMs) const;

    // A flashing widget shows for this many milliseconds and hides for as long; a smaller flash
    // speed flashes faster (speed 0 flashes as speed 1).
    static std::int64_t FlashPhaseMs(std::int32_t flashSpeed);
    static bool IsShownAt(const CHmiWidget& widget, std::int64_t timeMs);

    void AddObserver(CPreviewSceneObserver* observer);
    void RemoveObserver(CPreviewSceneObserver* observer);

private:
    struct Binding {
        std::size_t widget; // index into m_widgets
        std::string property;
        CCompiledExpression expression;
        std::optional<ExpressionResult> result; // none before the first evaluation
    };
    struct Widget {
        const CHmiWidget* original;
        HmiWidgetPtr evaluated;
        std::vector<std::size_t> bindings;
    };

    void VariablesChanged(std::span<const std::size_t> variables) override;
    // Evaluates the bindings (indices in ascending order) again and applies what changed,
    // adding the areas of the widgets that changed.
    void Evaluate(std::span<const std::size_t> bindings, std::vector<HmiRect>& areas);
    void Apply(const Binding& binding);
    // A fresh copy of the document's widget with the bindings that evaluate applied: for a
    // binding that failed after it had evaluated, so that its property is the document's again.
    void Rebuild(std::size_t widget);
    HmiWidgetPtr Copy(const CHmiWidget& original) const;

    CPreviewValues& m_values;
    const CHmiWidget* m_window; // the document's window widget, drawn first whatever it says
    std::vector<Widget> m_widgets; // the window widget first, then in drawing order
    std::vector<Binding> m_bindings;
    std::vector<std::vector<std::size_t>> m_readers; // per variable: the bindings that read it
    std::vector<CPreviewSceneObserver*> m_observers;
};
