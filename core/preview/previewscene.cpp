#include "previewscene.h"

#include "dynamics/dynamictypes.h"
#include "widgets/hmiwidgetcustom.h"
#include "widgets/tamlodoc.h"

#include <algorithm>
#include <string_view>

namespace {

// The step of the flash speed.
constexpr std::int64_t kFlashStepMs = 100;

// The length attribute the file would give a text property of that value (32, or the byte
// length and its terminating zero for a longer text): texts that keep their length take it
// from there as they are read.
std::string TextLength(const std::string& text)
{
    return std::to_string(std::max<std::size_t>(32, text.size() + 1));
}

// Whether an evaluation gives what the last one gave, so that nothing needs applying.
bool SameOutcome(const ExpressionResult& a, const ExpressionResult& b)
{
    if (a.error || b.error)
        return a.error && b.error && a.error->message == b.error->message && a.error->position == b.error->position;
    return a.value == b.value;
}

} // namespace

CPreviewScene::CPreviewScene(const CTamloDoc& document, CPreviewValues& values)
    : m_values(values), m_window(document.FindWindowWidget())
{
    std::vector<const CHmiWidget*> shown;
    if (m_window)
        shown.push_back(m_window);
    for (const HmiWidgetPtr& widget : document.Widgets())
        if (widget.get() != m_window && !document.IsWidgetDeleted(widget.get()))
            shown.push_back(widget.get());

    m_readers.resize(values.Variables().size());
    for (const CHmiWidget* original : shown) {
        HmiWidgetPtr evaluated = Copy(*original);
        if (!evaluated)
            continue; // a class that cannot copy its widgets: nothing to draw it with
        Widget& widget = m_widgets.emplace_back(Widget{original, std::move(evaluated), {}});
        for (const auto& prop : original->GetProperties()) {
            const CHmiDynamicType* type = prop->GetDynamicType();
            if (prop->m_strExpression.empty() || (type && std::string_view(type->GetTypeName()) == CHmiDynScript::kTypeName))
                continue;
            const std::size_t index = m_bindings.size();
            Binding& binding = m_bindings.emplace_back(
                Binding{m_widgets.size() - 1, prop->m_strName, CCompiledExpression(prop->m_strExpression), std::nullopt});
            widget.bindings.push_back(index);
            for (const std::string& reference : binding.expression.References())
                if (const std::optional<std::size_t> variable = values.Find(reference))
                    m_readers[*variable].push_back(index);
        }
    }
    std::vector<std::size_t> all(m_bindings.size());
    for (std::size_t index = 0; index < all.size(); ++index)
        all[index] = index;
    std::vector<HmiRect> areas;
    Evaluate(all, areas);
    m_values.AddObserver(this);
}

CPreviewScene::~CPreviewScene()
{
    m_values.RemoveObserver(this);
}

HmiWidgetPtr CPreviewScene::Copy(const CHmiWidget& original) const
{
    HmiWidgetPtr copy = original.Clone();
    if (copy) {
        copy->SetWidgetName(original.GetWidgetName());
        copy->m_pView = nullptr; // drawn on no canvas: a live control stays where it is
    }
    return copy;
}

void CPreviewScene::VariablesChanged(std::span<const std::size_t> variables)
{
    std::vector<std::size_t> bindings;
    for (const std::size_t variable : variables)
        if (variable < m_readers.size())
            bindings.insert(bindings.end(), m_readers[variable].begin(), m_readers[variable].end());
    if (variables.size() > 1) { // in ascending order, and once each: a binding may read two of them
        std::sort(bindings.begin(), bindings.end());
        bindings.erase(std::unique(bindings.begin(), bindings.end()), bindings.end());
    }
    std::vector<HmiRect> areas;
    Evaluate(bindings, areas);
    if (areas.empty())
        return;
    for (CPreviewSceneObserver* observer : std::vector(m_observers))
        observer->SceneChanged(areas);
}

void CPreviewScene::Evaluate(std::span<const std::size_t> bindings, std::vector<HmiRect>& areas)
{
    std::vector<std::pair<std::size_t, HmiRect>> changed; // widgets with where they stood
    std::vector<std::size_t> rebuilt;
    for (const std::size_t index : bindings) {
        Binding& binding = m_bindings[index];
        ExpressionResult result = binding.expression.Evaluate(m_values);
        if (binding.result && SameOutcome(*binding.result, result))
            continue;
        const bool evaluated = binding.result && *binding.result;
        binding.result = std::move(result);
        // Bindings come in ascending order, so a widget's stand next to each other.
        if (changed.empty() || changed.back().first != binding.widget)
            changed.emplace_back(binding.widget, m_widgets[binding.widget].evaluated->GetWidgetRect().Normalized());
        if (*binding.result)
            Apply(binding);
        else if (evaluated)
            rebuilt.push_back(binding.widget);
    }
    for (const std::size_t widget : rebuilt)
        Rebuild(widget);
    for (const auto& [widget, before] : changed) {
        areas.push_back(before);
        areas.push_back(m_widgets[widget].evaluated->GetWidgetRect().Normalized());
    }
}

void CPreviewScene::Apply(const Binding& binding)
{
    CHmiWidget& widget = *m_widgets[binding.widget].evaluated;
    const std::string text = ExpressionValueText(binding.result->value);
    // A widget of a class the editor does not know keeps its own properties as the lines it
    // writes back, and draws without them: only the basic properties apply.
    if (widget.GetRuntimeClass() == &CHmiWidgetCustom::classCHmiWidgetCustom)
        widget.CHmiWidget::SetWidgetProperty(binding.property, {}, text, {});
    else
        widget.SetWidgetProperty(binding.property, {}, text, TextLength(text));
}

void CPreviewScene::Rebuild(std::size_t index)
{
    Widget& widget = m_widgets[index];
    widget.evaluated = Copy(*widget.original);
    for (const std::size_t binding : widget.bindings)
        if (m_bindings[binding].result && *m_bindings[binding].result)
            Apply(m_bindings[binding]);
}

void CPreviewScene::Draw(CHmiDC& dc, std::int64_t timeMs) const
{
    for (const Widget& widget : m_widgets)
        if (widget.original == m_window || IsShownAt(*widget.evaluated, timeMs))
            widget.evaluated->Draw(dc);
}

std::vector<BindingProblem> CPreviewScene::Problems() const
{
    std::vector<BindingProblem> problems;
    for (const Binding& binding : m_bindings)
        if (binding.result && binding.result->error) {
            const CHmiWidget* widget = m_widgets[binding.widget].original;
            problems.push_back({widget, binding.property, widget->FindProperty(binding.property)->m_strExpression,
                                *binding.result->error,
                                m_widgets[binding.widget].evaluated->GetWidgetRect().Normalized()});
        }
    return problems;
}

const CHmiWidget* CPreviewScene::Evaluated(const CHmiWidget& documentWidget) const
{
    const auto found = std::find_if(m_widgets.begin(), m_widgets.end(),
                                    [&](const Widget& widget) { return widget.original == &documentWidget; });
    return found == m_widgets.end() ? nullptr : found->evaluated.get();
}

std::vector<HmiRect> CPreviewScene::FlashTurns(std::int64_t fromMs, std::int64_t toMs) const
{
    std::vector<HmiRect> areas;
    for (const Widget& widget : m_widgets)
        if (widget.evaluated->m_nFlash && IsShownAt(*widget.evaluated, fromMs) != IsShownAt(*widget.evaluated, toMs))
            areas.push_back(widget.evaluated->GetWidgetRect().Normalized());
    return areas;
}

const CHmiWidget* CPreviewScene::WidgetAt(HmiPoint point, std::int64_t timeMs) const
{
    for (auto widget = m_widgets.rbegin(); widget != m_widgets.rend(); ++widget)
        if (widget->original != m_window && IsShownAt(*widget->evaluated, timeMs) &&
            widget->evaluated->GetWidgetRect().Normalized().Contains(point))
            return widget->original;
    return nullptr;
}

std::int64_t CPreviewScene::FlashPhaseMs(std::int32_t flashSpeed)
{
    return kFlashStepMs * std::max(flashSpeed, 1);
}

bool CPreviewScene::IsShownAt(const CHmiWidget& widget, std::int64_t timeMs)
{
    if (!widget.m_bVisible)
        return false;
    return !widget.m_nFlash || (std::max<std::int64_t>(timeMs, 0) / FlashPhaseMs(widget.m_nFlashSpeed)) % 2 == 0;
}

void CPreviewScene::AddObserver(CPreviewSceneObserver* observer)
{
    m_observers.push_back(observer);
}

void CPreviewScene::RemoveObserver(CPreviewSceneObserver* observer)
{
    std::erase(m_observers, observer);
}
