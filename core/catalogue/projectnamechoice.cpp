#include "projectnamechoice.h"

#include "project/readnotices.h"

#include <algorithm>

namespace {

constexpr const char* kNotInProject = "not in the project";

} // namespace

ProjectNameChoice::ProjectNameChoice(int (*reader)(std::string names[], int& count), int capacity,
                                     const char* kind)
    : m_kind(kind)
{
    std::vector<std::string> names(static_cast<std::size_t>(capacity));
    int count = 0;
    reader(names.data(), count);
    names.resize(std::size_t(count));
    m_names = std::move(names);
    UpdateChoices();
}

void ProjectNameChoice::ShowIn(CHmiWidgetProp& record)
{
    m_record = &record;
    UpdateChoices();
}

std::string ProjectNameChoice::NameAt(std::int32_t index) const
{
    if (index >= 0 && index < Count())
        return m_names[std::size_t(index)];
    return IsKept(index) ? *m_kept : std::string();
}

bool ProjectNameChoice::Offers(std::int32_t index, const std::optional<std::string>& name) const
{
    if (index < 0 || index >= std::max(Count(), 1))
        return false;
    return !name || *name == (index < Count() ? m_names[std::size_t(index)] : std::string());
}

std::int32_t ProjectNameChoice::IndexOf(const std::string& name) const
{
    for (std::int32_t i = 0; i < std::max(Count(), 1); ++i)
        if (Offers(i, name))
            return i;
    return -1;
}

std::int32_t ProjectNameChoice::Keep(std::string name, std::string detail)
{
    m_keptLabel = (name.empty() ? std::string("(no name)") : name) + " (" + (detail.empty() ? "" : detail + ", ") +
                  kNotInProject + ")";
    m_kept = std::move(name);
    m_keptDetail = std::move(detail);
    UpdateChoices();
    return Count();
}

void ProjectNameChoice::KeepAsIn(const ProjectNameChoice& other)
{
    if (other.m_kept)
        Keep(*other.m_kept, other.m_keptDetail);
}

void ProjectNameChoice::ReportKept(std::string_view widgetKind, std::string_view widgetName) const
{
    if (!m_kept)
        return;
    const std::string detail = m_keptDetail.empty() ? "" : " (" + m_keptDetail + ")";
    ReportReadNotice(std::string(widgetKind) + " \"" + std::string(widgetName) + "\": the " + m_kind + " \"" +
                     *m_kept + "\"" + detail + " is " + kNotInProject + "; it is kept as it is.");
}

void ProjectNameChoice::UpdateChoices()
{
    m_choices.clear();
    for (const std::string& name : m_names)
        m_choices.push_back(name.c_str());
    if (m_kept)
        m_choices.push_back(m_keptLabel.c_str());
    if (m_record)
        m_record->SetComboList(m_choices.data(), std::int32_t(m_choices.size()));
}
