#include "tamlodoc.h"

#include "hmiview.h"

#include <algorithm>

void CTamloDoc::AddView(CHmiView* view)
{
    if (std::find(m_views.begin(), m_views.end(), view) == m_views.end())
        m_views.push_back(view);
}

void CTamloDoc::RemoveView(CHmiView* view)
{
    std::erase(m_views, view);
}

void CTamloDoc::UpdateAllViews(const HmiRect& area) const
{
    for (CHmiView* view : m_views)
        view->InvalidateDocRect(area);
}
