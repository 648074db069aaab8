#include "readnotices.h"

#include <algorithm>
#include <utility>

namespace {

thread_local CReadNoticeCollector* g_current = nullptr;

} // namespace

CReadNoticeCollector::CReadNoticeCollector() : m_outer(g_current)
{
    g_current = this;
}

CReadNoticeCollector::~CReadNoticeCollector()
{
    g_current = m_outer;
}

std::vector<std::string> CReadNoticeCollector::Take()
{
    return std::exchange(m_notices, {});
}

void ReportReadNotice(std::string text)
{
    if (!g_current)
        return;
    std::vector<std::string>& notices = g_current->m_notices;
    if (std::find(notices.begin(), notices.end(), text) == notices.end())
        notices.push_back(std::move(text));
}
