#pragma once

#include "base/hmitypes.h"

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

class CHmiWidget;
class CTamloDoc;

// Where the widgets of a document stand, sorted into square cells, so that the widgets at a
// point or in a band are found without asking every widget. It holds the widgets that can be hit:
// neither deleted nor the window widget. The document tells it what changed as it happens; the
// grid brings itself up to date at the next question, so that a change it hears of before the
// widget's rectangle is set (as in an Undo) is still seen right.
//
// A widget is looked for within a few pixels around its rectangle, which covers the grab area of
// thin lines; a widget whose Intersects answers yes farther out than that is not found there.
class CWidgetGrid {
public:
    explicit CWidgetGrid(const CTamloDoc& document) : m_document(document) {}

    // Widgets joined or left the list, changed their order, or were deleted or brought back.
    void Invalidate() { m_stale = true; }
    // The widget's rectangle changed.
    void Moved(const CHmiWidget& widget);

    // The topmost widget whose Intersects holds for the point, or null.
    CHmiWidget* TopmostAt(HmiPoint point);
    // The widgets whose Intersects holds for the rectangle, in drawing order.
    std::vector<CHmiWidget*> Within(const HmiRect& rect);
    // The widgets whose rectangle meets the rectangle, edges included, in drawing order.
    std::vector<CHmiWidget*> Meeting(const HmiRect& rect);

private:
    // A range of cells, both ends included.
    struct CellRange {
        std::int64_t left = 0;
        std::int64_t top = 0;
        std::int64_t right = -1;
        std::int64_t bottom = -1;

        std::int64_t Count() const { return (right - left + 1) * (bottom - top + 1); }
    };
    struct Entry {
        CHmiWidget* widget;
        CellRange cells;
        bool everywhere; // too large for cells: asked on every question
    };

    void Refresh();
    void Rebuild();
    void Place(std::size_t index);
    void Unplace(std::size_t index);
    static CellRange CellsOf(const HmiRect& rect);
    static std::uint64_t CellKey(std::int64_t column, std::int64_t row);
    // The entries that may meet the rectangle, each once, in drawing order.
    std::vector<std::size_t> Candidates(const HmiRect& rect);

    const CTamloDoc& m_document;
    bool m_stale = true;
    std::vector<Entry> m_entries; // in drawing order
    std::unordered_map<const CHmiWidget*, std::size_t> m_indexOf;
    std::unordered_map<std::uint64_t, std::vector<std::size_t>> m_cells;
    std::vector<std::size_t> m_everywhere;
    std::vector<const CHmiWidget*> m_moved; // to be placed anew at the next question
    // Per entry, the last question that found it, so that an entry in many cells is taken once.
    std::vector<std::uint32_t> m_foundAt;
    std::uint32_t m_question = 0;
};
