#include "registryscope.h"

#include "catalogue/builtinwidgets.h"
#include "widgets/hmiwidget.h"

namespace {

CWidgetLibRegistrations Cleared()
{
    CHmiWidget::RemoveAllRunTimeClass();
    ClearRegisteredWidgetLibs();
    return {};
}

} // namespace

CRegistryScope::CRegistryScope(Start start) : m_start(Cleared())
{
    if (start == Start::Builtins)
        RegisterBuiltinWidgetClasses();
}

CRegistryScope::~CRegistryScope()
{
    m_start.WithdrawAdded();
}
