#pragma once

#include "widgets/core/hmiwidgetprop.h"

#include <cstdint>
#include <string>
#include <vector>

// The project's names of one kind (history databases, data logs) as a widget offers them in a
// combo row, and the choice among them. The names are read once, when the widget is made.
class ProjectNameChoice {
public:
    // Reads the names with one of the project's name-list readers.
    explicit ProjectNameChoice(int (*reader)(std::string names[], int& count), int capacity);
    ProjectNameChoice(const ProjectNameChoice&) = delete; // the choices point into the names
    ProjectNameChoice& operator=(const ProjectNameChoice&) = delete;

    // Makes the record's combo list show these names.
    void ShowIn(CHmiWidgetProp& record) const;
    // The name at an index; empty past the list.
    std::string NameAt(std::int32_t index) const;
    // The index of the first equal name, or -1.
    std::int32_t IndexOf(const std::string& name) const;
    std::int32_t Count() const { return std::int32_t(m_names.size()); }

private:
    std::vector<std::string> m_names;
    std::vector<const char*> m_choices;
};
