#include "datatypes.h"

namespace {

struct DataType {
    const char* shortName;
    const char* fullName;
    std::int32_t size;
};

constexpr DataType kDataTypes[] = {
    {"", "", 0},
    {"char", "signed char", 1},
    {"uchar", "unsigned char", 1},
    {"short", "short", 2},
    {"ushort", "unsigned short", 2},
    {"long", "long", 4},
    {"ulong", "unsigned long", 4},
    {"float", "float", 4},
    {"double", "double", 8},
    {"string", "string", 0},
};

const DataType* Find(std::string_view shortName)
{
    for (const DataType& type : kDataTypes)
        if (shortName == type.shortName)
            return &type;
    return nullptr;
}

} // namespace

std::int32_t HmiTypeSize(std::string_view shortName)
{
    const DataType* type = Find(shortName);
    return type ? type->size : 0;
}

std::string HmiTypeFullName(std::string_view shortName)
{
    const DataType* type = Find(shortName);
    return type ? type->fullName : "";
}
