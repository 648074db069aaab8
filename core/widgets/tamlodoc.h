#pragma once

#include "base/hmitypes.h"
#include "documentchange.h"
#include "hmiwidget.h"
#include "project/fileio.h"
#include "undostep.h"
#include "widgetgrid.h"
#include "windowfilecheck.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

class CHmiView;
class CTamloDoc;

// The undo history of a document, when the editor keeps more than one step. It hears of each
// change before the observers do, so that it sees the editor as the command left it (a deleted
// widget still selected, say), and it takes over every widget that leaves the document, which
// it may bring back later.
class CDocumentHistory : public CDocumentObserver {
public:
    virtual void KeepRemovedWidget(HmiWidgetPtr widget) = 0;
};

// The names a document's widgets have at one moment, so that naming many new widgets at once,
// as a paste does, asks a set instead of every widget.
class CWidgetNames {
public:
    explicit CWidgetNames(const CTamloDoc& document);
    bool Contains(const std::string& name) const { return m_names.contains(name); }
    void Add(const std::string& name) { m_names.insert(name); }

private:
    std::unordered_set<std::string> m_names;
};

// The document of one HMI window: it owns the window's widgets in drawing order (head first,
// tail on top), names new widgets, and loads and saves the window file. A load puts each widget
// read at the head, so a file lists the widgets from the top down; a save writes them the same
// way, and the window reads back stacked as it was. It tells its observers of every change
// (documentchange.h), so that each view refreshes only what changed.
class CTamloDoc {
public:
    // Collects the changes of one operation, such as a load or an Undo, and tells them as one.
    class CChangeBatch {
    public:
        explicit CChangeBatch(CTamloDoc& document);
        ~CChangeBatch();
        CChangeBatch(const CChangeBatch&) = delete;
        CChangeBatch& operator=(const CChangeBatch&) = delete;

    private:
        CTamloDoc& m_document;
    };

    CTamloDoc() : m_grid(*this) {}
    CTamloDoc(const CTamloDoc&) = delete;
    CTamloDoc& operator=(const CTamloDoc&) = delete;
    // Tells the observers that are left that the document goes.
    virtual ~CTamloDoc();

    // Makes the document a new window: just a window widget named "window".
    void OnNewDocument();

    // Initialises the widget and adds it at the tail (else the head). A widget without a name
    // gets its class key and the next free value of the process-wide name counter. Returns
    // false, destroying the widget, when it fails to initialise. Given the names of the
    // document's widgets, it looks names up there and adds the widget's own.
    bool AddWidget(HmiWidgetPtr widget, bool atTail, CWidgetNames* names = nullptr);
    // Takes the widget out of the list and destroys it once the observers have heard of it.
    void RemoveWidget(CHmiWidget* widget);
    // Takes the widget out of the list and puts it back at an index of the shortened list (the
    // end at most). False when the widget is not in the list.
    bool MoveWidget(CHmiWidget* widget, std::size_t index);
    // Puts a widget that left the document back at an index of the list (the end at most), as
    // it was: it is neither initialised nor named again.
    void PutBackWidget(HmiWidgetPtr widget, std::size_t index);
    // Puts an initialised replacement where the widget stands; the widget leaves the document.
    // False when the widget is not in the list.
    bool ReplaceWidget(CHmiWidget* widget, HmiWidgetPtr replacement);
    // Puts the widgets in this drawing order. False, changing nothing, unless the order holds
    // exactly the document's widgets.
    bool RestoreOrder(const std::vector<CHmiWidget*>& order);
    bool HasWidgetName(std::string_view name) const;
    const std::deque<HmiWidgetPtr>& Widgets() const { return m_widgets; }
    // The first widget whose class key is "window", or null.
    CHmiWidget* GetWindowWidget() const;

    // Replaces the content with the window file at path. A file that cannot be read, is not
    // XML or has another root leaves the document with just a window widget, and says why.
    FileResult Load(const std::string& path);
    // Writes the window file once its text has been found to read back as it stands
    // (SerializeChecked); on failure the previous file is left whole and the document stays
    // modified.
    FileResult Save(const std::string& path);
    // The window file the document was last loaded from or saved to; empty for a new window.
    // Pictures are found in its folder.
    const std::string& GetPathName() const { return m_strPathName; }
    // Makes path the document's window file without reading it, as for a window whose content
    // came from elsewhere (a recovery copy) and that saves to its own file.
    void SetPathName(std::string path) { m_strPathName = std::move(path); }
    // Where the window's pictures are: the folder of its window file (ending in "/"), unless
    // another folder was set.
    std::string GetPictureFolder() const;
    void SetPictureFolder(std::string folder) { m_strPictureFolder = std::move(folder); }
    // The window file's bytes.
    std::string Serialize() const;
    // The window file's bytes, checked to read back to the same widgets, properties, bindings
    // and events (CheckWindowFileReadsBack); fails with what cannot be written.
    FileResult SerializeChecked(std::string& text) const;

    // Views that show this document; not owned. Widgets convert and repaint through the first
    // view: a widget added without one gets it, and a view that comes or goes hands it to
    // those that had none or had the one going.
    void AddView(CHmiView* view);
    void RemoveView(CHmiView* view);
    const std::vector<CHmiView*>& Views() const { return m_views; }

    // Observers are told of each change once it is complete; not owned.
    void AddObserver(CDocumentObserver* observer);
    void RemoveObserver(CDocumentObserver* observer);
    // Tells the observers that an edit changed the widget, and marks the document modified. A
    // widget whose rectangle is no longer rectBefore has changed its geometry too. Within an
    // undo step the changes are collected and told once, when the step ends.
    void WidgetChanged(CHmiWidget& widget, DocChange what);
    void WidgetChanged(CHmiWidget& widget, DocChange what, const HmiRect& rectBefore);
    // The same for one edit that changed several widgets, told as one change.
    void WidgetsChanged(const std::vector<HmiWidgetChange>& changes);

    bool IsModified() const { return m_bModified; }
    // The observers hear of the flag when it changes.
    void SetModifiedFlag(bool modified = true);
    // Grows each time the document is marked modified, so that an observer can tell whether it
    // changed since the observer last looked. Saving leaves it as it is.
    std::uint64_t Revision() const { return m_nRevision; }

    // Gives the document an undo history (null: none). With one, the document keeps no undo step
    // of its own: a widget recorded as deleted leaves the list at once, and every widget that
    // leaves the list goes to the history once the observers have heard of it. Setting it ends
    // the document's own step, destroying the widgets that step deleted.
    void SetHistory(CDocumentHistory* history);

    // The one-step undo record. Beginning a step discards the previous one, destroying for good
    // the widgets it deleted. A deleted widget stays in the list until then, so that Undo can
    // bring it back, but it is neither drawn, hit nor saved.
    void BeginUndoStep();
    void RecordUndo(UndoOperation operation, CHmiWidget* widget);
    // Closes the step; a step that changed anything marks the document modified. The step's
    // changes are told as one.
    void EndUndoStep();
    // Puts back the rectangles the step changed, brings back the widgets it deleted and removes
    // the widgets it added; then the step is empty, so a second Undo does nothing.
    void Undo();
    bool CanUndo() const { return !m_undoStep.empty(); }
    bool IsWidgetDeleted(const CHmiWidget* widget) const;
    const std::vector<HmiUndoEntry>& UndoStep() const { return m_undoStep; }
    // True while an undo step or a batch is open: a command is under way, and its changes are
    // told together when it closes.
    bool IsCollecting() const { return m_bUndoStepOpen || m_nBatchDepth > 0; }

    // The topmost widget under a point, skipping deleted ones and the window widget, which is
    // the background of the canvas.
    CHmiWidget* DocumentHitTest(HmiPoint point) const { return m_grid.TopmostAt(point); }
    // The widgets whose Intersects holds for the rectangle (for a band: that lie in it), in
    // drawing order, skipping deleted ones and the window widget.
    std::vector<CHmiWidget*> WidgetsWithin(const HmiRect& rect) const { return m_grid.Within(rect); }
    // The widgets whose rectangle meets the rectangle, edges included, with the same skips.
    std::vector<CHmiWidget*> WidgetsMeeting(const HmiRect& rect) const { return m_grid.Meeting(rect); }
    // The window widget unless it is deleted.
    CHmiWidget* FindWindowWidget() const;

    // The counter that numbers new widget names, shared by all documents; starts at 1.
    static int& WidgetNameCounter();

private:
    // The widgets that are not deleted, written from the top of the drawing order down.
    CWindowFileWriter WriteWidgets() const;
    void DeleteContents();
    void DestroyDeletedWidgets();
    // Gives the widgets that convert through this view (none: through no view) the first view.
    void HandViewOver(const CHmiView* from);
    void AddWindowWidget(bool atTail);
    // Takes the widget out of the list; it lives on until its removal has been told.
    void TakeOut(std::deque<HmiWidgetPtr>::iterator widget);
    // Adds to the change being collected, and tells it unless more is to come.
    void Record(CHmiWidget& widget, DocChange what, const HmiRect& rectBefore);
    void Record(CHmiWidget& widget, DocChange what);
    // Tells the observers the change collected so far, unless an undo step or a batch is open.
    void SendChange();
    // Starts collecting the next change.
    void ResetChange(DocChange what);
    // Empties the undo step, forgetting which widgets it deleted.
    void ClearUndoStep();
    // The list changed its members or their order: the window widget is looked for anew, and
    // the grid sorts the widgets anew.
    void ListChanged()
    {
        m_windowKnown = false;
        m_grid.Invalidate();
    }

    std::deque<HmiWidgetPtr> m_widgets;
    std::vector<CHmiView*> m_views;
    std::vector<CDocumentObserver*> m_observers;
    std::string m_strPathName;
    std::string m_strPictureFolder;
    bool m_bModified = false;
    bool m_bModifiedTold = false; // the flag as the observers last heard of it
    std::uint64_t m_nRevision = 0;
    std::vector<HmiUndoEntry> m_undoStep;
    bool m_bUndoStepOpen = false;
    int m_nBatchDepth = 0;
    CDocumentChange m_change;                  // collected, not told yet
    std::unordered_map<const CHmiWidget*, std::size_t> m_changeIndex; // each widget's entry in m_change
    std::unordered_set<const CHmiWidget*> m_deletedWidgets;           // deleted in the undo step
    mutable CHmiWidget* m_windowWidget = nullptr; // GetWindowWidget's answer while m_windowKnown
    mutable bool m_windowKnown = false;
    mutable CWidgetGrid m_grid; // where the widgets that can be hit stand
    std::vector<HmiWidgetPtr> m_removedWidgets; // out of the list, destroyed or kept once told
    CDocumentHistory* m_history = nullptr;
    mutable std::size_t m_nLastTextSize = 0;    // of the window file last read or written
};
