#pragma once

// The interface a widget library codes against.
//
// A widget library is a shared object in the editor's "modules" folder. It links against the
// core library, derives its widgets from CHmiWidget (or CHmiCtrlWidget), and exports one
// function, `extern "C" int WidgetsLibInit()`, which the editor calls once after loading it,
// and states the interface version it was built against with HMI_WIDGET_LIBRARY_INTERFACE.
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
//     HMI_WIDGET_LIBRARY_INTERFACE
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
#include <utility>
#include <vector>

// The version of the interface above: the widget base classes' layout and virtual operations,
// the registration and the extension points. It goes up with every change that breaks a library
// built before it, and the loader refuses a library built for another version before any of
// its registration code runs.
inline constexpr int kWidgetLibraryInterfaceVersion = 1;

// The name under which a library exports the version it was built against.
inline constexpr const char* kWidgetLibraryInterfaceSymbol = "WidgetsLibInterfaceVersion";

// Placed once in one source of a widget library, at namespace scope: exports the interface
// version the library is compiled against. A variable, not a function, so that the loader can
// read it without running the library's code.
#define HMI_WIDGET_LIBRARY_INTERFACE                                                                          \
    extern "C" __attribute__((visibility("default"))) const int WidgetsLibInterfaceVersion =                 \
        kWidgetLibraryInterfaceVersion;

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

// A list outside the class registry that libraries add to from WidgetsLibInit: the editor's live
// controls and property-row dialogs (editor/extensions/editorextensions.h). Its entries point
// into a library's code, so the loader takes back what a declining library added, as it does
// with the library's classes. A point takes part from its construction to its destruction.
class CLibraryExtensionPoint {
public:
    CLibraryExtensionPoint();
    virtual ~CLibraryExtensionPoint();
    CLibraryExtensionPoint(const CLibraryExtensionPoint&) = delete;
    CLibraryExtensionPoint& operator=(const CLibraryExtensionPoint&) = delete;

    virtual std::size_t EntryCount() const = 0;
    // Forgets the entries after the first count.
    virtual void TruncateEntries(std::size_t count) = 0;
};

// What is registered at the moment it is made: the loader makes one before a library's
// WidgetsLibInit runs, and withdraws what the library added (classes, its library record, its
// extension entries) when it declines, since all of it points into code about to be unloaded.
class CWidgetLibRegistrations {
public:
    CWidgetLibRegistrations();
    std::size_t AddedClassCount() const;
    void WithdrawAdded() const;

private:
    std::size_t m_classCount;
    std::size_t m_libraryCount;
    std::vector<std::pair<CLibraryExtensionPoint*, std::size_t>> m_extensionCounts;
};
