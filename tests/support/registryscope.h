#pragma once

#include "widgets/widgetlibrary.h"

// The widget class registry is process-wide. A test holds one of these for as long as it uses
// it: the registry starts with the built-in classes only (or with none), and when the scope
// ends, every class, library record and editor extension registered meanwhile is gone again.
class CRegistryScope {
public:
    enum class Start { Builtins, Empty };
    explicit CRegistryScope(Start start = Start::Builtins);
    ~CRegistryScope();
    CRegistryScope(const CRegistryScope&) = delete;
    CRegistryScope& operator=(const CRegistryScope&) = delete;

private:
    const CWidgetLibRegistrations m_start;
};
