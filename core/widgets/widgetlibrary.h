#pragma once

// The interface a widget library codes against.
//
// A widget library is a shared object in the editor's "modules" folder. It links against the
// core library, derives its widgets from CHmiWidget (or CHmiCtrlWidget), and exports one
// function, `extern "C" int WidgetsLibInit()`, which the editor calls once after loading it.
// That function registers the library's classes by key:
//
//     class CGaugeWidget : public CHmiWidget {
//         HMI_DECLARE_WIDGET_CLASS(CGaugeWidget)
//     public:
//         CGaugeWidget() { DeclareProperty("needle", "Needle", "Needle colour", 1, "Gauge", PROP_COLOR); }
//         std::string GetWidgetClassName() const override { return "gauge"; }
//         ...
//     };
//     HMI_IMPLEMENT_WIDGET_CLASS(CGaugeWidget, CHmiWidget)
//
//     static const CWidgetRunTimeClass gaugeClasses[] = {
//         {"gauge", &CGaugeWidget::classCGaugeWidget},
//     };
//     extern "C" int WidgetsLibInit()
//     {
//         return RegisterWidgetsLib("gauges", 1, gaugeClasses);
//     }
//
// The key is what the window file stores as a widget's `class`; the first class registered
// under a key wins, so a library cannot replace a built-in kind.

#include "hmiwidget.h"

#include <cstddef>
#include <string>
#include <vector>

// One library that registered its classes.
struct CWidgetLibRecord {
    std::string m_strName;
    int m_nCount;
    const CWidgetRunTimeClass* m_pEntries; // owned by the library
};

// Records the library and registers each entry in array order, skipping entries with an empty
// key or no class. Returns 0 (and records nothing) for a count below 1, an empty name or no
// entries; 1 otherwise.
int RegisterWidgetsLib(const char* libraryName, int count, const CWidgetRunTimeClass* entries);

// The libraries registered so far, in order.
const std::vector<CWidgetLibRecord>& RegisteredWidgetLibs();

// Forgets every registered library; for shutdown and tests.
void ClearRegisteredWidgetLibs();

// Forgets the libraries registered after the first `count`: the loader takes back the record of
// a library that registered and then declined, since the record points into its unloaded code.
void TruncateRegisteredWidgetLibs(std::size_t count);
