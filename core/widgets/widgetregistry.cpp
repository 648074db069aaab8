#include "hmiwidget.h"
#include "widgetlibrary.h"

#include "hmiwidgetcustom.h"

#include <algorithm>

std::vector<CWidgetRunTimeClass> CHmiWidget::WidgetClassList;
const CHmiRuntimeClass* CHmiWidget::CurWidgetClass = nullptr;

namespace {

std::vector<CWidgetLibRecord>& WidgetLibs()
{
    static std::vector<CWidgetLibRecord> libs;
    return libs;
}

std::vector<CLibraryExtensionPoint*>& ExtensionPoints()
{
    static std::vector<CLibraryExtensionPoint*> points;
    return points;
}

} // namespace

bool CHmiWidget::AddWidgetRunTimeClass(std::string_view key, const CHmiRuntimeClass* runtimeClass)
{
    return AddWidgetRunTimeClass({std::string(key), runtimeClass});
}

bool CHmiWidget::AddWidgetRunTimeClass(const CWidgetRunTimeClass& entry)
{
    if (entry.m_strClassKey.empty() || !entry.m_pRuntimeClass)
        return false;
    WidgetClassList.push_back(entry);
    return true;
}

const CWidgetRunTimeClass* CHmiWidget::FindWidgetClassEntry(std::string_view key)
{
    for (const CWidgetRunTimeClass& entry : WidgetClassList) {
        if (entry.m_strClassKey == key)
            return &entry;
    }
    return nullptr;
}

const CHmiRuntimeClass* CHmiWidget::GetWidgetClass(std::string_view key)
{
    const CWidgetRunTimeClass* entry = FindWidgetClassEntry(key);
    return entry ? entry->m_pRuntimeClass : &CHmiWidgetCustom::classCHmiWidgetCustom;
}

void CHmiWidget::RemoveAllRunTimeClass()
{
    WidgetClassList.clear();
}

int RegisterWidgetsLib(const char* libraryName, int count, const CWidgetRunTimeClass* entries)
{
    if (count <= 0 || !libraryName || !*libraryName || !entries)
        return 0;
    WidgetLibs().push_back({libraryName, count, entries});
    for (int i = 0; i < count; ++i)
        CHmiWidget::AddWidgetRunTimeClass(entries[i]);
    return 1;
}

const std::vector<CWidgetLibRecord>& RegisteredWidgetLibs()
{
    return WidgetLibs();
}

void ClearRegisteredWidgetLibs()
{
    WidgetLibs().clear();
}

CLibraryExtensionPoint::CLibraryExtensionPoint()
{
    ExtensionPoints().push_back(this);
}

CLibraryExtensionPoint::~CLibraryExtensionPoint()
{
    std::erase(ExtensionPoints(), this);
}

CWidgetLibRegistrations::CWidgetLibRegistrations()
    : m_classCount(CHmiWidget::WidgetClassList.size()), m_libraryCount(WidgetLibs().size())
{
    for (CLibraryExtensionPoint* point : ExtensionPoints())
        m_extensionCounts.emplace_back(point, point->EntryCount());
}

std::size_t CWidgetLibRegistrations::AddedClassCount() const
{
    return CHmiWidget::WidgetClassList.size() - m_classCount;
}

void CWidgetLibRegistrations::WithdrawAdded() const
{
    auto& classes = CHmiWidget::WidgetClassList;
    classes.erase(classes.begin() + std::ptrdiff_t(std::min(m_classCount, classes.size())), classes.end());
    WidgetLibs().resize(std::min(m_libraryCount, WidgetLibs().size()));
    for (const auto& [point, count] : m_extensionCounts)
        point->TruncateEntries(count);
}
