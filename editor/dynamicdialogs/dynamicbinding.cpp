#include "dynamicbinding.h"

#include "dynamics/dynamictypes.h"
#include "widgets/hmiwidgetprop.h"

std::string BindingExpression(const CHmiDynamicType& binding)
{
    if (dynamic_cast<const CHmiDynScript*>(&binding))
        return binding.expression.empty() ? std::string() : CHmiDynScript::kTypeName;
    return binding.ComposeExpression();
}

void ApplyDynamicBinding(CHmiWidgetProp& prop, std::unique_ptr<CHmiDynamicType> binding)
{
    prop.m_strExpression = binding ? BindingExpression(*binding) : std::string();
    prop.SetDynamicType(std::move(binding));
}
