#pragma once

#include <string>

// An XML file that declares one internal entity and refers to it many times in the `name` of
// an element under the root: a few hundred kilobytes that expand into gigabytes when the value
// is read. Roots and element names are the readers' own, so each reader reads the value.
inline std::string EntityExpansionFile(const std::string& root, const std::string& element,
                                       std::size_t entityBytes = 8000, std::size_t references = 20000)
{
    std::string refs;
    refs.reserve(references * 3);
    for (std::size_t i = 0; i < references; ++i)
        refs += "&e;";
    return "<?xml version=\"1.0\"?>\n<!DOCTYPE " + root + " [<!ENTITY e \"" + std::string(entityBytes, 'x') +
           "\">]>\n<" + root + "><" + element + " name=\"" + refs + "\" class=\"" + refs + "\"/></" + root + ">\n";
}
