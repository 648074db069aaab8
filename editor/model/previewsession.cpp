#include "previewsession.h"

#include "preview/previewvalues.h"

CPreviewSession::CPreviewSession(const CTamloDoc& document, CPreviewValues& values, Repaint repaint)
    : m_values(values), m_scene(document, values), m_repaint(std::move(repaint))
{
    m_scene.AddObserver(this);
    m_values.AdvanceTo(0);
}

CPreviewSession::~CPreviewSession()
{
    m_scene.RemoveObserver(this);
}

void CPreviewSession::AdvanceTo(std::int64_t timeMs)
{
    const std::int64_t before = m_timeMs;
    m_timeMs = timeMs;
    m_values.AdvanceTo(timeMs); // the scene tells what the new values changed
    if (const std::vector<HmiRect> turned = m_scene.FlashTurns(before, timeMs); !turned.empty())
        m_repaint(turned);
}

void CPreviewSession::SceneChanged(std::span<const HmiRect> areas)
{
    m_repaint(areas);
}
