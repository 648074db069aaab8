#include "hmiwidgetprop.h"

#include "dynamics/dynamictype.h"

CHmiWidgetProp::CHmiWidgetProp(const char* name, const char* label, const char* description,
                               std::int32_t bindable, const char* group, PropItemType itemType)
    : m_strName(name)
    , m_strLabel(label)
    , m_strDescription(description)
    , m_nBindable(bindable)
    , m_nItemType(itemType)
    , m_strGroup(group)
{
}

CHmiWidgetProp::CHmiWidgetProp(const CHmiWidgetProp& other)
    : m_strName(other.m_strName)
    , m_strLabel(other.m_strLabel)
    , m_strDescription(other.m_strDescription)
    , m_nBindable(other.m_nBindable)
    , m_nItemType(other.m_nItemType)
    , m_pTreeItem(other.m_pTreeItem)
    , m_strGroup(other.m_strGroup)
    , m_pParentItem(other.m_pParentItem)
    , m_strExpression(other.m_strExpression)
    , m_pComboList(other.m_pComboList)
    , m_nComboCount(other.m_nComboCount)
    , m_pDynamicType(other.m_pDynamicType ? other.m_pDynamicType->Clone() : nullptr)
{
}

CHmiWidgetProp& CHmiWidgetProp::operator=(const CHmiWidgetProp& other)
{
    if (this != &other)
        *this = CHmiWidgetProp(other);
    return *this;
}

CHmiWidgetProp::CHmiWidgetProp(CHmiWidgetProp&&) noexcept = default;
CHmiWidgetProp& CHmiWidgetProp::operator=(CHmiWidgetProp&&) noexcept = default;
CHmiWidgetProp::~CHmiWidgetProp() = default;

void CHmiWidgetProp::SetComboList(const char* const* strings, std::int32_t count)
{
    m_pComboList = strings;
    m_nComboCount = count;
}

void CHmiWidgetProp::SetDynamicType(std::unique_ptr<CHmiDynamicType> type)
{
    m_pDynamicType = std::move(type);
}
