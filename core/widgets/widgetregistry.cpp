#include "hmiwidget.h"
#include "widgetlibrary.h"

#include "hmiwidgetcustom.h"

std::vector<CWidgetRunTimeClass> CHmiWidget::WidgetClassList;
const CHmiRuntimeClass* CHmiWidget::CurWidgetClass = nullptr;

namespace {

std::vector<CWidgetLibRecord>& WidgetLibs()
{
    static std::vector<CWidgetLibRecord> libs;
    return libs;
}

} // namespace

bool CHmiWidget::AddWidgetRunTimeClass(std::string_view key, const CHmiRuntimeClass* runtimeClass)
{
    if (key.empty() || !runtimeClass)
        return false;
    WidgetClassList.push_back({std::string(key), runtimeClass});
    return true;
}

const CHmiRuntimeClass* CHmiWidget::GetWidgetClass(std::string_view key)
{
    for (const CWidgetRunTimeClass& entry : WidgetClassList) {
        if (entry.m_strClassKey == key)
            return entry.m_pRuntimeClass;
    }
    return &CHmiWidgetCustom::classCHmiWidgetCustom;
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
        CHmiWidget::AddWidgetRunTimeClass(entries[i].m_strClassKey, entries[i].m_pRuntimeClass);
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

void TruncateRegisteredWidgetLibs(std::size_t count)
{
    if (count < WidgetLibs().size())
        WidgetLibs().resize(count);
}
