#pragma once

#include "preview/previewscene.h"

#include <cstdint>
#include <functional>
#include <span>

class CPreviewValues;
class CTamloDoc;

// The preview of one window while it runs: the window evaluated with the project's values, on a
// clock that starts at 0 and that the editor advances. It tells where the drawing changed, when
// values change (by hand or by their generators) and when flashing widgets turn, so that the
// canvas repaints only there. The document is only read, and must outlive the session.
class CPreviewSession : private CPreviewSceneObserver {
public:
    using Repaint = std::function<void(std::span<const HmiRect> areas)>;

    CPreviewSession(const CTamloDoc& document, CPreviewValues& values, Repaint repaint);
    CPreviewSession(const CPreviewSession&) = delete;
    CPreviewSession& operator=(const CPreviewSession&) = delete;
    ~CPreviewSession() override;

    const CPreviewScene& Scene() const { return m_scene; }
    std::int64_t TimeMs() const { return m_timeMs; }

    // Moves the clock on: the generated variables take their values at that time.
    void AdvanceTo(std::int64_t timeMs);
    void Draw(CHmiDC& dc) const { m_scene.Draw(dc, m_timeMs); }

private:
    void SceneChanged(std::span<const HmiRect> areas) override;

    CPreviewValues& m_values;
    CPreviewScene m_scene;
    Repaint m_repaint;
    std::int64_t m_timeMs = 0;
};
