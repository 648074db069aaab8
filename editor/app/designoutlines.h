#pragma once

#include "widgets/documentchange.h"

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

class CCanvasMapping;
class CHmiWidget;
class CTamloDoc;
class QPainter;

// Design-time outlines: a widget that draws nothing on the panel, a timer, a custom widget of a
// library that is not loaded, a text without text, would be lost on the canvas. The canvas shows
// it as a faint dashed outline with its class's toolbox icon, or its class key's initial in a
// small box for a class without one. Only the canvas draws these: rendered images and window
// files never see them. Whether a widget draws nothing is found by drawing it once where nothing
// is painted, and kept until its properties change.
class CDesignOutlines : public CDocumentObserver {
public:
    explicit CDesignOutlines(CTamloDoc& document);
    ~CDesignOutlines() override;
    CDesignOutlines(const CDesignOutlines&) = delete;
    CDesignOutlines& operator=(const CDesignOutlines&) = delete;

    // Outlines the widgets that draw nothing and meet one of the areas (window coordinates),
    // on a painter in client coordinates. Widgets shown as live controls draw through them.
    void Paint(QPainter& painter, const CCanvasMapping& mapping, std::span<const HmiRect> areas);

    void DocumentChanged(const CDocumentChange& change) override;

private:
    bool DrawsNothing(CHmiWidget& widget);
    // The widgets that may need an outline, in drawing order: those that draw nothing and those
    // shown as live controls, kept until a change adds, removes, reorders or edits widgets.
    const std::vector<CHmiWidget*>& Candidates();

    CTamloDoc& m_document;
    std::unordered_map<const CHmiWidget*, bool> m_drawsNothing;
    std::optional<std::vector<CHmiWidget*>> m_candidates;
};
