#pragma once

#include "widgets/hmiwidget.h"
#include "widgets/widgetlibrary.h"

#include <cstddef>
#include <utility>
#include <vector>

// Entries of one kind keyed by widget class, in registration order. A lookup walks from a class
// up its bases and takes the first entry of the nearest class that has one, so that derived
// classes inherit what their bases registered.
template <typename Entry>
class CClassRegistry final : public CLibraryExtensionPoint {
public:
    void Add(const CHmiRuntimeClass& widgetClass, Entry entry)
    {
        m_entries.push_back({&widgetClass, std::move(entry)});
    }

    // matches(entry) picks among the entries of one class.
    template <typename Matches>
    const Entry* Find(const CHmiRuntimeClass* widgetClass, Matches matches) const
    {
        for (const CHmiRuntimeClass* owner = widgetClass; owner; owner = owner->m_pBaseClass) {
            for (const auto& [entryClass, entry] : m_entries)
                if (entryClass == owner && matches(entry))
                    return &entry;
        }
        return nullptr;
    }

    std::size_t EntryCount() const override { return m_entries.size(); }
    void TruncateEntries(std::size_t count) override
    {
        if (count < m_entries.size())
            m_entries.resize(count);
    }

private:
    std::vector<std::pair<const CHmiRuntimeClass*, Entry>> m_entries;
};
