#include "hmiwidget.h"

#include "base/numberparsers.h"
#include "base/windowfiletext.h"
#include "dynamics/dynamictype.h"
#include "hmidc.h"
#include "hmiview.h"
#include "optiontree.h"
#include "tamlodoc.h"
#include "widgetfilewriter.h"

#include <algorithm>

namespace {

constexpr const char* kBasicGroup = "Basic properties";
constexpr int kHandleHalfSize = 3;
constexpr int kFirstControlId = 500;

std::string Decimal(std::int32_t value)
{
    return std::to_string(value);
}

} // namespace

void CHmiWidgetRemover::operator()(CHmiWidget* widget) const
{
    if (widget)
        widget->Remove();
}

HmiWidgetPtr CHmiRuntimeClass::CreateObject() const
{
    return HmiWidgetPtr(m_pfnCreateObject ? m_pfnCreateObject() : nullptr);
}

bool CHmiRuntimeClass::IsDerivedFrom(const CHmiRuntimeClass* base) const
{
    for (const CHmiRuntimeClass* cls = this; cls; cls = cls->m_pBaseClass) {
        if (cls == base)
            return true;
    }
    return false;
}

const CHmiRuntimeClass CHmiWidget::classCHmiWidget = {"CHmiWidget", nullptr, nullptr};

CHmiWidget::CHmiWidget()
    : m_pExtension(std::make_unique<HmiWidgetExtension>())
{
    DeclareBasicProperties();
}

CHmiWidget::CHmiWidget(const HmiRect& rect)
    : CHmiWidget()
{
    m_rect = rect;
}

CHmiWidget::~CHmiWidget() = default;

void CHmiWidget::DeclareBasicProperties()
{
    DeclareProperty("name", "Name", "Name", 0, kBasicGroup, PROP_EDIT);
    DeclareProperty("left", "Left", "Left position", 1, kBasicGroup, PROP_EDIT);
    DeclareProperty("top", "Top", "Top position", 1, kBasicGroup, PROP_EDIT);
    DeclareProperty("right", "Right", "Right position", 1, kBasicGroup, PROP_EDIT);
    DeclareProperty("bottom", "Bottom", "Bottom position", 1, kBasicGroup, PROP_EDIT);
    DeclareProperty("width", "Width", "Width", 0, kBasicGroup, PROP_EDIT);
    DeclareProperty("height", "Height", "Height", 0, kBasicGroup, PROP_EDIT);
    DeclareProperty("visible", "Visible", "Is widget visible", 1, kBasicGroup, PROP_CHECKBOX);
    DeclareProperty("enable", "Enable", "when enable=0,can't use event scripts", 1, kBasicGroup, PROP_CHECKBOX);
    DeclareProperty("flash", "Flash", "Is widget flash", 1, kBasicGroup, PROP_CHECKBOX);
    DeclareProperty("flashspeed", "Flash speed", "Flash speed,faster when smaller", 1, kBasicGroup, PROP_EDIT);
    DeclareProperty("noredraw", "Not redraw", "=0 auto redraw", 1, kBasicGroup, PROP_CHECKBOX);
    DeclareProperty("xoffset", "Horizontal offset", "horizontal offset value of widget", 1, kBasicGroup, PROP_EDIT);
    DeclareProperty("yoffset", "Vertical offset", "vertical offset value of widget", 1, kBasicGroup, PROP_EDIT);
}

CHmiWidgetProp& CHmiWidget::DeclareProperty(const char* name, const char* label, const char* description,
                                            std::int32_t bindable, const char* group, PropItemType itemType)
{
    m_properties.push_back(std::make_unique<CHmiWidgetProp>(name, label, description, bindable, group, itemType));
    return *m_properties.back();
}

void CHmiWidget::DeclareEvent(const char* name, const char* label, const char* description)
{
    m_events.push_back({name, label, description, {}});
}

const CHmiRuntimeClass* CHmiWidget::GetRuntimeClass() const
{
    return &classCHmiWidget;
}

HmiWidgetPtr CHmiWidget::Clone() const
{
    return nullptr;
}

void CHmiWidget::Draw(CHmiDC&)
{
}

void CHmiWidget::DrawThumb(CHmiDC& dc)
{
    Draw(dc);
}

bool CHmiWidget::Init()
{
    return true;
}

void CHmiWidget::Remove()
{
    delete this;
}

std::string CHmiWidget::GetWidgetClassName() const
{
    return {};
}

void CHmiWidget::WidgetItemClick(COptionTreeItem*)
{
}

void CHmiWidget::CreateEventItems()
{
    DeclareEvent("click", "Button Down", "trigger this event when mouse button down");
    DeclareEvent("buttonup", "Button Up", "trigger this event when mouse button up");
}

// ---------------------------------------------------------------------------------------------
// Geometry

int CHmiWidget::GetHandleCount() const
{
    return 8;
}

HmiPoint CHmiWidget::GetHandle(int handle) const
{
    const HmiRect& r = m_rect;
    const auto xCenter = std::int32_t(r.left + (std::int64_t(r.right) - r.left) / 2);
    const auto yCenter = std::int32_t(r.top + (std::int64_t(r.bottom) - r.top) / 2);
    switch (handle) {
    case 2: return {xCenter, r.top};
    case 3: return {r.right, r.top};
    case 4: return {r.right, yCenter};
    case 5: return {r.right, r.bottom};
    case 6: return {xCenter, r.bottom};
    case 7: return {r.left, r.bottom};
    case 8: return {r.left, yCenter};
    default: return {r.left, r.top};
    }
}

HmiCursor CHmiWidget::GetHandleCursor(int handle) const
{
    switch (handle) {
    case 2:
    case 6: return HmiCursor::SizeNS;
    case 3:
    case 7: return HmiCursor::SizeNESW;
    case 4:
    case 8: return HmiCursor::SizeWE;
    default: return HmiCursor::SizeNWSE;
    }
}

HmiRect CHmiWidget::GetHandleRect(int handle, const CHmiView* view) const
{
    HmiPoint point = GetHandle(handle);
    if (view)
        point = view->DocToClient(point);
    point = point.ForDrawing(); // where the handle is drawn
    HmiPoint topLeft{point.x - kHandleHalfSize, point.y - kHandleHalfSize};
    HmiPoint bottomRight{point.x + kHandleHalfSize, point.y + kHandleHalfSize};
    if (view) {
        topLeft = view->ClientToDoc(topLeft);
        bottomRight = view->ClientToDoc(bottomRight);
    }
    return {topLeft.x, topLeft.y, bottomRight.x, bottomRight.y};
}

int CHmiWidget::HitTest(HmiPoint point, const CHmiView* view, int selected) const
{
    if (!selected)
        return m_rect.Contains(point) ? 1 : 0;
    for (int handle = 1; handle <= GetHandleCount(); ++handle) {
        if (GetHandleRect(handle, view).Contains(point))
            return handle;
    }
    return 0;
}

bool CHmiWidget::Intersects(HmiPoint point) const
{
    return m_rect.Contains(point);
}

bool CHmiWidget::Intersects(const HmiRect& rect) const
{
    const HmiRect mine = m_rect.Normalized();
    const HmiRect band = rect.Normalized();
    return band.Contains({mine.left, mine.top}) && band.Contains({mine.right, mine.bottom});
}

HmiRect CHmiWidget::MoveHandleTo(int handle, HmiPoint point, CHmiView* view, bool apply)
{
    HmiRect r = m_rect;
    switch (handle) {
    case 2: r.top = point.y; break;
    case 3: r.right = point.x; r.top = point.y; break;
    case 4: r.right = point.x; break;
    case 5: r.right = point.x; r.bottom = point.y; break;
    case 6: r.bottom = point.y; break;
    case 7: r.left = point.x; r.bottom = point.y; break;
    case 8: r.left = point.x; break;
    default: r.left = point.x; r.top = point.y; break;
    }
    if (apply)
        MoveTo(r, view);
    return r;
}

void CHmiWidget::MoveTo(const HmiRect& rect, CHmiView* view)
{
    if (rect == m_rect)
        return;
    const HmiRect before = m_rect;
    m_rect = rect.Normalized();
    // A document's views repaint both areas when they hear of the change.
    if (m_pDocument) {
        m_pDocument->WidgetChanged(*this, DocChange::Geometry, before);
    } else if (view) {
        view->InvalidateDocRect(before);
        view->InvalidateDocRect(m_rect);
    }
}

void CHmiWidget::DrawTracker(CHmiDC& dc, TrackerState state) const
{
    if (state == TrackerState::normal)
        return;
    constexpr HmiColor white = 0x00FFFFFF;
    constexpr HmiColor black = 0x00000000;
    const bool active = state == TrackerState::active;
    // Each handle is a square with a one-pixel frame, filled twice: a selection of thousands of
    // widgets has tens of thousands of them.
    for (int handle = 1; handle <= GetHandleCount(); ++handle) {
        HmiPoint p = GetHandle(handle);
        if (m_pView)
            p = m_pView->DocToClient(p);
        p = p.ForDrawing();
        const HmiRect square{p.x - kHandleHalfSize, p.y - kHandleHalfSize, p.x + kHandleHalfSize + 1,
                             p.y + kHandleHalfSize + 1};
        dc.FillSolidRect(square, active ? white : black);
        dc.FillSolidRect(square.Inflated(-1, -1), active ? black : white);
    }
}

// ---------------------------------------------------------------------------------------------
// Properties, bindings and events

CHmiWidgetProp* CHmiWidget::FindProperty(std::string_view name) const
{
    for (const auto& prop : m_properties) {
        if (prop->m_strName == name)
            return prop.get();
    }
    return nullptr;
}

CHmiWidgetProp* CHmiWidget::AddWidgetDynProp(std::string_view name, std::string_view expression)
{
    CHmiWidgetProp* prop = FindProperty(name);
    if (prop)
        prop->m_strExpression = expression;
    return prop;
}

void CHmiWidget::SetWidgetEventCode(std::string_view name, std::string_view code)
{
    if (m_events.empty())
        CreateEventItems();
    for (CHmiWidgetEvent& event : m_events) {
        if (event.name == name) {
            event.code = code;
            return;
        }
    }
}

void CHmiWidget::CopyTo(CHmiWidget& other) const
{
    other.m_pDocument = m_pDocument;
    other.m_pView = m_pView;
    other.m_rect = m_rect;
    other.m_pPropertyTree = m_pPropertyTree;
    other.m_bVisible = m_bVisible;
    other.m_bNoRedraw = m_bNoRedraw;
    other.m_nFlash = m_nFlash;
    other.m_nFlashSpeed = m_nFlashSpeed;
    *other.m_pExtension = *m_pExtension;
    other.m_events.insert(other.m_events.end(), m_events.begin(), m_events.end());
    for (const auto& mine : m_properties) {
        for (const auto& theirs : other.m_properties) {
            if (theirs->m_strName != mine->m_strName)
                continue;
            theirs->m_strExpression = mine->m_strExpression;
            if (const CHmiDynamicType* type = mine->GetDynamicType())
                theirs->SetDynamicType(type->Clone());
        }
    }
}

int CHmiWidget::SetWidgetProperty(std::string_view name, std::string_view, std::string_view value,
                                  std::string_view)
{
    // The file stores the 8-bit flags and the offsets in their low byte only.
    const auto lowByte = [&value] { return HmiDecimalToLong(value) & 0xFF; };
    if (name == "left")
        m_rect.left = HmiDecimalToLong(value);
    else if (name == "right")
        m_rect.right = HmiDecimalToLong(value);
    else if (name == "top")
        m_rect.top = HmiDecimalToLong(value);
    else if (name == "bottom")
        m_rect.bottom = HmiDecimalToLong(value);
    else if (name == "visible")
        m_bVisible = std::uint8_t(lowByte());
    else if (name == "enable")
        m_pExtension->enable = lowByte();
    else if (name == "noredraw")
        m_bNoRedraw = std::uint8_t(lowByte());
    else if (name == "flash")
        m_nFlash = lowByte();
    else if (name == "flashspeed")
        m_nFlashSpeed = lowByte();
    else if (name == "xoffset")
        m_pExtension->xoffset = lowByte();
    else if (name == "yoffset")
        m_pExtension->yoffset = lowByte();
    else
        return 0;
    return 1;
}

int CHmiWidget::GetWidgetPropValue(const CHmiWidgetProp& prop, std::string& text) const
{
    const std::string& name = prop.m_strName;
    if (name == "name") {
        text = m_strName;
        return 1;
    }
    std::int32_t value;
    if (name == "left")
        value = m_rect.left;
    else if (name == "top")
        value = m_rect.top;
    else if (name == "right")
        value = m_rect.right;
    else if (name == "bottom")
        value = m_rect.bottom;
    else if (name == "width")
        value = m_rect.Width();
    else if (name == "height")
        value = m_rect.Height();
    else if (name == "visible")
        value = m_bVisible;
    else if (name == "enable")
        value = m_pExtension->enable;
    else if (name == "noredraw")
        value = m_bNoRedraw;
    else if (name == "flash")
        value = m_nFlash;
    else if (name == "flashspeed")
        value = m_nFlashSpeed;
    else if (name == "xoffset")
        value = m_pExtension->xoffset;
    else if (name == "yoffset")
        value = m_pExtension->yoffset;
    else
        return 0;
    text = Decimal(value);
    return 1;
}

// ---------------------------------------------------------------------------------------------
// Window file writing

std::string CHmiWidget::ConvertExpToXMLFormat(std::string_view text)
{
    return EscapedAttribute(text);
}

void CHmiWidget::SaveWidgetProperty(std::string& archive, const char* name, const char* type, const char* length,
                                    std::string_view value)
{
    if (length) {
        AppendPropertyLine(archive, name, type, length, value);
    } else if (std::string_view(type) == "string") {
        constexpr std::size_t kMinimumStringLength = 32;
        const std::size_t size = value.size() < kMinimumStringLength ? kMinimumStringLength : value.size() + 1;
        AppendPropertyLine(archive, name, type, std::to_string(size), value);
    } else {
        AppendPropertyLine(archive, name, type, {}, value);
    }
}

void CHmiWidget::SaveWidgetPropertyWithoutLength(std::string& archive, const char* name, const char* type,
                                                 std::string_view value)
{
    AppendPropertyLine(archive, name, type, {}, value);
}

void CHmiWidget::SaveWidgetProperty(std::string& archive, const char* name, const char* type, const char* length,
                                    std::int32_t value)
{
    SaveWidgetProperty(archive, name, type, length, std::string_view(Decimal(value)));
}

void CHmiWidget::SaveWidgetProperty(std::string& archive, const char* name, const char* type, const char* length,
                                    const float& value)
{
    SaveWidgetProperty(archive, name, type, length, std::string_view(HmiFormatFloat(value)));
}

void CHmiWidget::SaveWidgetProperties(std::string& archive) const
{
    SaveWidgetProperty(archive, "left", "short", nullptr, m_rect.left);
    SaveWidgetProperty(archive, "right", "short", nullptr, m_rect.right);
    SaveWidgetProperty(archive, "top", "short", nullptr, m_rect.top);
    SaveWidgetProperty(archive, "bottom", "short", nullptr, m_rect.bottom);
    SaveWidgetProperty(archive, "visible", "uchar", nullptr, std::int32_t(m_bVisible));
    SaveWidgetProperty(archive, "enable", "uchar", nullptr, m_pExtension->enable);
    SaveWidgetProperty(archive, "noredraw", "uchar", nullptr, std::int32_t(m_bNoRedraw));
    SaveWidgetProperty(archive, "xoffset", "short", nullptr, m_pExtension->xoffset);
    SaveWidgetProperty(archive, "yoffset", "short", nullptr, m_pExtension->yoffset);
    SaveWidgetProperty(archive, "flash", "uchar", nullptr, m_nFlash);
    SaveWidgetProperty(archive, "flashspeed", "ulong", nullptr, m_nFlashSpeed);
}

void CHmiWidget::Serialize(std::string& archive) const
{
    archive += "\t<widget name=\"";
    AppendPlainAttribute(archive, m_strName);
    archive += "\"  class=\"";
    AppendPlainAttribute(archive, GetWidgetClassName());
    archive += "\">\r\n\t\t<properties>\r\n";
    SaveWidgetProperties(archive);
    archive += "\t\t</properties>\r\n";
    WriteDynamics(archive);
    WriteEvents(archive);
    archive += "\t</widget>\r\n";
}

void CHmiWidget::WriteDynamics(std::string& archive) const
{
    archive += "\t\t<dynamics>\r\n";
    for (const auto& prop : m_properties) {
        if (prop->m_strExpression.empty())
            continue;
        archive += "\t\t\t<dynamic propname=\"";
        AppendPlainAttribute(archive, prop->m_strName);
        archive += "\" expression=\"";
        AppendEscapedAttribute(archive, prop->m_strExpression);
        if (const CHmiDynamicType* type = prop->GetDynamicType()) {
            archive += "\" type=\"";
            AppendPlainAttribute(archive, type->GetTypeName());
            archive += "\" >\r\n";
            type->WriteInnerElement(archive);
            archive += "\t\t\t</dynamic>\r\n";
        } else {
            archive += "\" />\r\n";
        }
    }
    archive += "\t\t</dynamics>\r\n";
}

void CHmiWidget::WriteEvents(std::string& archive) const
{
    archive += "\t\t<events>\r\n";
    for (const CHmiWidgetEvent& event : m_events) {
        if (event.code.empty())
            continue;
        archive += "\t\t\t<event name=\"";
        AppendPlainAttribute(archive, event.name);
        archive += "\">\n\t\t\t\t";
        AppendCDataSection(archive, event.code);
        archive += "\n\t\t\t</event>\r\n";
    }
    archive += "\t\t</events>\r\n";
}

// ---------------------------------------------------------------------------------------------
// Registry

int CHmiWidget::GetNewControlId()
{
    static int nextId = kFirstControlId;
    return nextId++;
}
