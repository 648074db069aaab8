#pragma once

#include "dynamics/dynamictype.h"

// A binding type that counts its live instances, for checks of ownership and cloning.
class FakeDynamicType : public CHmiDynamicType {
public:
    FakeDynamicType() { ++alive; }
    FakeDynamicType(const FakeDynamicType& other) : CHmiDynamicType(other) { ++alive; }
    ~FakeDynamicType() override { --alive; }

    const char* GetTypeName() const override { return "fake"; }
    std::string ComposeExpression() const override { return expression; }
    void WriteInnerElement(std::string& archive) const override
    {
        archive += "\t\t\t\t<type_params expression=\"" + expression + "\" />\r\n";
    }
    bool ReadInnerElement(const XmlElement&) override { return true; }
    std::unique_ptr<CHmiDynamicType> Clone() const override { return std::make_unique<FakeDynamicType>(*this); }

    static inline int alive = 0;
};
