#pragma once

#include "base/hmitypes.h"

#include <cstdint>
#include <vector>

class CHmiWidget;

// What a change of a document touched; one change may combine several.
enum class DocChange : std::uint16_t {
    None = 0,
    Geometry = 1 << 0,   // a widget's rectangle
    Properties = 1 << 1, // property values, the name among them
    Bindings = 1 << 2,   // expressions bound to properties
    Events = 1 << 3,     // event scripts
    Added = 1 << 4,      // joined the window: added, or brought back by Undo
    Removed = 1 << 5,    // left the window: removed, or deleted in an undo step
    Order = 1 << 6,      // moved in the drawing order
    Modified = 1 << 7,   // the document's modified flag changed
    Reloaded = 1 << 8,   // the whole content was replaced (loaded, made new)
};

constexpr DocChange operator|(DocChange a, DocChange b)
{
    return DocChange(std::uint16_t(a) | std::uint16_t(b));
}

constexpr DocChange& operator|=(DocChange& a, DocChange b)
{
    return a = a | b;
}

// Whether the set holds any of the flags.
constexpr bool HasAny(DocChange set, DocChange flags)
{
    return (std::uint16_t(set) & std::uint16_t(flags)) != 0;
}

// One widget of a change: what happened to it, and its rectangle before, so that a canvas
// repaints where the widget stood as well as where it stands.
struct HmiWidgetChange {
    CHmiWidget* widget;
    DocChange what;
    HmiRect rectBefore;
};

// One change of a document, sent once it is complete: an edit, the undo step of a command, an
// Undo, a load. A removed widget is still alive while the change is sent and may be destroyed
// right after; a reloaded document lists no widgets, since all of them were replaced.
struct CDocumentChange {
    DocChange what = DocChange::None; // the union of the widgets' changes and the document's own
    std::vector<HmiWidgetChange> widgets;

    bool Has(DocChange flags) const { return HasAny(what, flags); }
};

// Told of every change of the document it observes. An observer brings itself up to date and
// never changes the document from inside a notification.
class CDocumentObserver {
public:
    virtual ~CDocumentObserver() = default;
    virtual void DocumentChanged(const CDocumentChange& change) = 0;
    // The document is being destroyed: the observer lets go of it and of its widgets.
    virtual void DocumentDestroyed() {}
};
