#include "projectnamechoice.h"

ProjectNameChoice::ProjectNameChoice(int (*reader)(std::string names[], int& count), int capacity)
{
    std::vector<std::string> names(static_cast<std::size_t>(capacity));
    int count = 0;
    reader(names.data(), count);
    names.resize(std::size_t(count));
    m_names = std::move(names);
    for (const std::string& name : m_names)
        m_choices.push_back(name.c_str());
}

void ProjectNameChoice::ShowIn(CHmiWidgetProp& record) const
{
    record.SetComboList(m_choices.data(), std::int32_t(m_choices.size()));
}

std::string ProjectNameChoice::NameAt(std::int32_t index) const
{
    return index >= 0 && index < Count() ? m_names[std::size_t(index)] : std::string();
}

std::int32_t ProjectNameChoice::IndexOf(const std::string& name) const
{
    for (std::size_t i = 0; i < m_names.size(); ++i)
        if (m_names[i] == name)
            return std::int32_t(i);
    return -1;
}
