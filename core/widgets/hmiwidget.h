#pragma once

#include "base/hmitypes.h"
#include "dynamics/widgetevent.h"
#include "hmiwidgetprop.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class CHmiDC;
class CHmiView;
class CHmiWidget;
class COptionTree;
class COptionTreeItem;
class CTamloDoc;

// Destroys a widget the way its class wants to be destroyed: through CHmiWidget::Remove.
struct CHmiWidgetRemover {
    void operator()(CHmiWidget* widget) const;
};
using HmiWidgetPtr = std::unique_ptr<CHmiWidget, CHmiWidgetRemover>;

// The class record of a widget class: its name, how to create an object of it, and its base.
struct CHmiRuntimeClass {
    const char* m_lpszClassName;
    CHmiWidget* (*m_pfnCreateObject)();
    const CHmiRuntimeClass* m_pBaseClass;

    HmiWidgetPtr CreateObject() const;
    bool IsDerivedFrom(const CHmiRuntimeClass* base) const;
};

// One registry entry: the class key of the window file and the class it creates, then how the
// toolbox offers the class. Widget libraries pass static arrays of these to RegisterWidgetsLib.
struct CWidgetRunTimeClass {
    std::string m_strClassKey;
    const CHmiRuntimeClass* m_pRuntimeClass;
    // The toolbox label; empty: the class key.
    std::string m_strToolboxLabel = {};
    // The toolbox icon as an image in XPM form (a toolkit-free array of texts); null: the
    // toolbox's own icon for a library's classes, none for the built-in ones.
    const char* const* m_pToolboxIcon = nullptr;
};

// Declares and defines the class record of a widget class, its creation function and
// GetRuntimeClass. Every widget class, built in or from a library, uses this pair.
#define HMI_DECLARE_WIDGET_CLASS(ClassName)                                                        \
public:                                                                                            \
    static const CHmiRuntimeClass class##ClassName;                                                \
    static CHmiWidget* CreateObject();                                                             \
    const CHmiRuntimeClass* GetRuntimeClass() const override;

#define HMI_IMPLEMENT_WIDGET_CLASS(ClassName, BaseClassName)                                       \
    CHmiWidget* ClassName::CreateObject() { return new ClassName; }                                \
    const CHmiRuntimeClass ClassName::class##ClassName = {#ClassName, &ClassName::CreateObject,    \
                                                          &BaseClassName::class##BaseClassName};   \
    const CHmiRuntimeClass* ClassName::GetRuntimeClass() const { return &class##ClassName; }

enum class TrackerState { normal = 0, selected = 1, active = 2 };

// Mouse cursors that the selection handles show.
enum class HmiCursor { Arrow, SizeNWSE, SizeNESW, SizeNS, SizeWE };

// Basic properties added after the widget layout was fixed; they live in a block of their own.
struct HmiWidgetExtension {
    std::int32_t xoffset = 0;
    std::int32_t yoffset = 0;
    std::int32_t enable = 1; // used as an 8-bit value
};

// The base of every object that can stand on an HMI window.
class CHmiWidget {
public:
    static const CHmiRuntimeClass classCHmiWidget;

    CHmiWidget();
    // Sets the rectangle, then builds the widget as the default constructor does.
    explicit CHmiWidget(const HmiRect& rect);
    CHmiWidget(const CHmiWidget&) = delete;
    CHmiWidget& operator=(const CHmiWidget&) = delete;

    // Virtual operations, in the order of the widget-library contract.
    virtual const CHmiRuntimeClass* GetRuntimeClass() const;
    virtual ~CHmiWidget();
    // Appends this widget's element to a window file text.
    virtual void Serialize(std::string& archive) const;
    // A new widget of the same class with a copy of this one's state; the base has no state
    // of its own to give and returns null.
    virtual HmiWidgetPtr Clone() const;
    virtual void Draw(CHmiDC& dc);
    virtual void DrawThumb(CHmiDC& dc);
    // Called once the widget is created and its properties set; false rejects the widget.
    virtual bool Init();
    // Applies one property read from a window file; returns 1 if the name was known.
    virtual int SetWidgetProperty(std::string_view name, std::string_view type, std::string_view value,
                                  std::string_view length);
    virtual void CreateWidgetPropertyTree(COptionTree& tree);
    virtual void UpdateTreeByWidgetProp();
    virtual void UpdateWidgetPropByTree(COptionTreeItem* item);
    // The current value of a property as text; returns 0 for a name this class does not know.
    virtual int GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const;
    virtual void CreateWidgetRootItems(COptionTree& tree);
    // Declares the widget kind's events, each with empty code.
    virtual void CreateEventItems();
    // The class key written as `class` in the window file.
    virtual std::string GetWidgetClassName() const;
    // With selected 0: 1 if the point lies on the body. Otherwise the number of the handle
    // under the point, or 0.
    virtual int HitTest(HmiPoint point, const CHmiView* view, int selected) const;
    virtual bool Intersects(HmiPoint point) const;
    // True when the whole widget lies inside the rectangle (rubber-band selection).
    virtual bool Intersects(const HmiRect& rect) const;
    virtual int GetHandleCount() const;
    virtual HmiPoint GetHandle(int handle) const;
    virtual HmiCursor GetHandleCursor(int handle) const;
    // The rectangle that results from dragging a handle to a point, not normalised; applied
    // with MoveTo when apply is set.
    virtual HmiRect MoveHandleTo(int handle, HmiPoint point, CHmiView* view, bool apply);
    virtual void MoveTo(const HmiRect& rect, CHmiView* view);
    // Destroys the widget.
    virtual void Remove();
    virtual void DrawTracker(CHmiDC& dc, TrackerState state) const;
    // Appends the widget's `property` lines to a window file text.
    virtual void SaveWidgetProperties(std::string& archive) const;
    // Called when the button of one of the widget's own rows is pressed; the base does nothing.
    virtual void WidgetItemClick(COptionTreeItem* item);

    void SetWidgetRect(const HmiRect& rect) { m_rect = rect; }
    const HmiRect& GetWidgetRect() const { return m_rect; }
    const std::string& GetWidgetName() const { return m_strName; }
    void SetWidgetName(std::string name) { m_strName = std::move(name); }
    // A handle's square of 7 by 7 view pixels around its point, in window coordinates.
    HmiRect GetHandleRect(int handle, const CHmiView* view) const;
    // Copies the base state into another widget of the same class (not the name).
    void CopyTo(CHmiWidget& other) const;
    // Binds the first property of that exact name to an expression; null if there is none.
    CHmiWidgetProp* AddWidgetDynProp(std::string_view name, std::string_view expression);
    // Stores the code of the first event of that exact name; unknown names change nothing.
    void SetWidgetEventCode(std::string_view name, std::string_view code);

    // Writers of one `property` line; length may be null.
    static void SaveWidgetProperty(std::string& archive, const char* name, const char* type,
                                   const char* length, std::string_view value);
    static void SaveWidgetProperty(std::string& archive, const char* name, const char* type,
                                   const char* length, std::int32_t value);
    static void SaveWidgetProperty(std::string& archive, const char* name, const char* type,
                                   const char* length, const float& value);
    // A `property` line without a length attribute, whatever the type: for the few strings
    // the panel reads without one.
    static void SaveWidgetPropertyWithoutLength(std::string& archive, const char* name, const char* type,
                                                std::string_view value);
    // The XML escaping of property values and expressions.
    static std::string ConvertExpToXMLFormat(std::string_view text);

    // Property-list helpers.
    CHmiWidgetProp* GetWidgetPropByTreeItem(const COptionTreeItem* item) const;
    // Forgets the list and its items, which the list is about to destroy: the list calls it when
    // it stops showing the widget, so that no record keeps pointing into it.
    void ReleasePropertyTree();
    // Gives a record the root item of its group (by caption); the basic root when none matches.
    void SetWidgetParentItem(CHmiWidgetProp& prop);
    COptionTreeItem* CreateNewRootItem(const std::string& caption, const std::string& info);
    COptionTreeItem* CreateNewStaticItem(COptionTreeItem* parent, const std::string& caption,
                                         const std::string& info, const std::string& text);
    COptionTreeItem* CreateNewPropEditItem(COptionTreeItem* parent, const std::string& caption,
                                           const std::string& info, const std::string& text);
    COptionTreeItem* CreateNewPropEditItem(COptionTreeItem* parent, const std::string& caption,
                                           const std::string& info, std::int32_t value);
    COptionTreeItem* CreateNewPropEditItem(COptionTreeItem* parent, const std::string& caption,
                                           const std::string& info, float value);
    COptionTreeItem* CreateNewPropColorItem(COptionTreeItem* parent, const std::string& caption,
                                            const std::string& info, HmiColor color);
    COptionTreeItem* CreateNewPropComboItem(COptionTreeItem* parent, const std::string& caption,
                                            const std::string& info, const char* const* list,
                                            std::int32_t count, std::int32_t selection);
    COptionTreeItem* CreateNewPropCheckboxItem(COptionTreeItem* parent, const std::string& caption,
                                               const std::string& info, bool checked);
    COptionTreeItem* CreateNewPropFileItem(COptionTreeItem* parent, const std::string& caption,
                                           const std::string& info, const std::string& path);

    // A process-wide counter for the ids of live controls; the first id is 500.
    static int GetNewControlId();

    // The widget class registry.
    static std::vector<CWidgetRunTimeClass> WidgetClassList;
    // The class the placing tool creates next.
    static const CHmiRuntimeClass* CurWidgetClass;
    static bool AddWidgetRunTimeClass(std::string_view key, const CHmiRuntimeClass* runtimeClass);
    // Adds the whole entry, toolbox label and icon included; false, as above, for no key or class.
    static bool AddWidgetRunTimeClass(const CWidgetRunTimeClass& entry);
    // The class registered first under exactly this key; the custom widget's class when none is.
    static const CHmiRuntimeClass* GetWidgetClass(std::string_view key);
    // The entry registered first under exactly this key, or null.
    static const CWidgetRunTimeClass* FindWidgetClassEntry(std::string_view key);
    static void RemoveAllRunTimeClass();

    // Rectangle, flags and owners are open to the canvas and the format commands, as in the
    // widget-library contract.
    HmiRect m_rect;
    std::uint8_t m_bVisible = 1;
    std::uint8_t m_bNoRedraw = 0;
    CTamloDoc* m_pDocument = nullptr;
    CHmiView* m_pView = nullptr;
    std::int32_t m_nFlash = 0;
    std::int32_t m_nFlashSpeed = 1;

    const std::vector<std::unique_ptr<CHmiWidgetProp>>& GetProperties() const { return m_properties; }
    const std::vector<CHmiWidgetEvent>& GetEvents() const { return m_events; }
    const HmiWidgetExtension& GetExtension() const { return *m_pExtension; }
    // The first property record of exactly that name, or null.
    CHmiWidgetProp* FindProperty(std::string_view name) const;

protected:
    // Appends a property record; a widget class declares its own after the basic ones.
    CHmiWidgetProp& DeclareProperty(const char* name, const char* label, const char* description,
                                    std::int32_t bindable, const char* group, PropItemType itemType);
    void DeclareEvent(const char* name, const char* label, const char* description);
    // Paints a row's extra column red when the property is bound, else in the face colour.
    void SetWidgetDynPropBkColor(CHmiWidgetProp& prop) const;

    std::string m_strName;
    std::vector<std::unique_ptr<CHmiWidgetProp>> m_properties;
    COptionTreeItem* m_pBasicRootItem = nullptr;
    COptionTreeItem* m_pEventRootItem = nullptr;
    COptionTree* m_pPropertyTree = nullptr;
    std::vector<COptionTreeItem*> m_rootItems; // made by CreateNewRootItem for this widget
    std::vector<CHmiWidgetEvent> m_events;
    std::unique_ptr<HmiWidgetExtension> m_pExtension;

private:
    void DeclareBasicProperties();
    void WriteDynamics(std::string& archive) const;
    void WriteEvents(std::string& archive) const;
    COptionTreeItem* CreatePropItem(CHmiWidgetProp& prop);
    void RefreshPropItem(const CHmiWidgetProp& prop) const;
};
