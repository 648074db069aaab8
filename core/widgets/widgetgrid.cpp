#include "widgetgrid.h"

#include "hmiwidget.h"
#include "tamlodoc.h"

#include <algorithm>
#include <utility>

namespace {

// The side of a cell, in pixels: a few ordinary widgets fit in one.
constexpr std::int64_t kCellSide = 64;
// How far around its rectangle a widget may still be hit: a thin line's grab area and more.
constexpr std::int64_t kReach = 8;
// A widget over more cells than this, such as a background picture, is asked on every question
// instead of standing in all of them.
constexpr std::int64_t kMostCellsPerWidget = 256;
// More moved widgets than this part of the grid rebuild it instead of moving one by one.
constexpr std::size_t kMovedOneByOneDivisor = 4;

std::int64_t CellOf(std::int64_t coordinate)
{
    return coordinate >= 0 ? coordinate / kCellSide : -((-coordinate + kCellSide - 1) / kCellSide);
}

} // namespace

CWidgetGrid::CellRange CWidgetGrid::CellsOf(const HmiRect& rect)
{
    const HmiRect r = rect.Normalized();
    return {CellOf(std::int64_t(r.left) - kReach), CellOf(std::int64_t(r.top) - kReach),
            CellOf(std::int64_t(r.right) + kReach), CellOf(std::int64_t(r.bottom) + kReach)};
}

std::uint64_t CWidgetGrid::CellKey(std::int64_t column, std::int64_t row)
{
    return (std::uint64_t(std::uint32_t(column)) << 32) | std::uint32_t(row);
}

void CWidgetGrid::Moved(const CHmiWidget& widget)
{
    if (m_stale)
        return;
    m_moved.push_back(&widget);
    if (m_moved.size() > m_entries.size() / kMovedOneByOneDivisor)
        m_stale = true;
}

void CWidgetGrid::Refresh()
{
    if (m_stale)
        return Rebuild();
    for (const CHmiWidget* widget : m_moved) {
        const auto found = m_indexOf.find(widget);
        if (found == m_indexOf.end())
            continue; // the window widget
        Unplace(found->second);
        Place(found->second);
    }
    m_moved.clear();
}

void CWidgetGrid::Rebuild()
{
    m_entries.clear();
    m_indexOf.clear();
    m_cells.clear();
    m_everywhere.clear();
    m_moved.clear();
    const CHmiWidget* window = m_document.GetWindowWidget();
    for (const HmiWidgetPtr& widget : m_document.Widgets()) {
        if (widget.get() == window || m_document.IsWidgetDeleted(widget.get()))
            continue;
        m_indexOf.emplace(widget.get(), m_entries.size());
        m_entries.push_back({widget.get(), {}, false});
        Place(m_entries.size() - 1);
    }
    m_foundAt.assign(m_entries.size(), 0);
    m_question = 0;
    m_stale = false;
}

void CWidgetGrid::Place(std::size_t index)
{
    Entry& entry = m_entries[index];
    entry.cells = CellsOf(entry.widget->GetWidgetRect());
    entry.everywhere = entry.cells.Count() > kMostCellsPerWidget;
    if (entry.everywhere)
        return m_everywhere.push_back(index);
    for (std::int64_t row = entry.cells.top; row <= entry.cells.bottom; ++row)
        for (std::int64_t column = entry.cells.left; column <= entry.cells.right; ++column)
            m_cells[CellKey(column, row)].push_back(index);
}

void CWidgetGrid::Unplace(std::size_t index)
{
    const Entry& entry = m_entries[index];
    if (entry.everywhere)
        return (void)std::erase(m_everywhere, index);
    for (std::int64_t row = entry.cells.top; row <= entry.cells.bottom; ++row) {
        for (std::int64_t column = entry.cells.left; column <= entry.cells.right; ++column) {
            const auto cell = m_cells.find(CellKey(column, row));
            std::erase(cell->second, index);
            if (cell->second.empty())
                m_cells.erase(cell);
        }
    }
}

std::vector<std::size_t> CWidgetGrid::Candidates(const HmiRect& rect)
{
    Refresh();
    std::vector<std::size_t> found;
    const CellRange cells = CellsOf(rect);
    if (cells.Count() >= std::int64_t(m_cells.size())) {
        // Asking every widget costs less than visiting so many cells.
        found.resize(m_entries.size());
        for (std::size_t index = 0; index < found.size(); ++index)
            found[index] = index;
        return found;
    }
    if (++m_question == 0) { // after four billion questions, start counting again
        std::fill(m_foundAt.begin(), m_foundAt.end(), 0);
        m_question = 1;
    }
    found = m_everywhere;
    for (std::int64_t row = cells.top; row <= cells.bottom; ++row) {
        for (std::int64_t column = cells.left; column <= cells.right; ++column) {
            const auto cell = m_cells.find(CellKey(column, row));
            if (cell == m_cells.end())
                continue;
            for (std::size_t index : cell->second)
                if (std::exchange(m_foundAt[index], m_question) != m_question)
                    found.push_back(index);
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

CHmiWidget* CWidgetGrid::TopmostAt(HmiPoint point)
{
    const std::vector<std::size_t> candidates = Candidates({point.x, point.y, point.x, point.y});
    for (auto index = candidates.rbegin(); index != candidates.rend(); ++index)
        if (m_entries[*index].widget->Intersects(point))
            return m_entries[*index].widget;
    return nullptr;
}

std::vector<CHmiWidget*> CWidgetGrid::Within(const HmiRect& rect)
{
    std::vector<CHmiWidget*> widgets;
    for (std::size_t index : Candidates(rect))
        if (m_entries[index].widget->Intersects(rect))
            widgets.push_back(m_entries[index].widget);
    return widgets;
}

std::vector<CHmiWidget*> CWidgetGrid::Meeting(const HmiRect& rect)
{
    const HmiRect area = rect.Normalized();
    std::vector<CHmiWidget*> widgets;
    for (std::size_t index : Candidates(area)) {
        const HmiRect r = m_entries[index].widget->GetWidgetRect().Normalized();
        if (r.left <= area.right && area.left <= r.right && r.top <= area.bottom && area.top <= r.bottom)
            widgets.push_back(m_entries[index].widget);
    }
    return widgets;
}
