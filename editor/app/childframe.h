#pragma once

#include "widgets/documentchange.h"

#include <QMdiSubWindow>

#include <QByteArray>

#include <memory>
#include <optional>

class CCanvasZoomer;
class CEditorPrompts;
class CEditorSession;
class CTamloDoc;
class CEditorPreferences;
class CTamloView;
class CUndoHistory;
class QLabel;

// The child window of one open HMI window: owns the document and shows its canvas in a
// scroll area, and its modified mark in the title. Closing it asks whether to keep unsaved
// changes. When another program changes the window file, a bar above the canvas says so, and
// a save asks before it overwrites that change.
class CChildFrame : public QMdiSubWindow, public CDocumentObserver {
    Q_OBJECT
public:
    CChildFrame(std::unique_ptr<CTamloDoc> document, CEditorPrompts& prompts, CEditorSession& session,
                CEditorPreferences& preferences, QWidget* parent = nullptr);
    ~CChildFrame() override;

    CTamloDoc& Document() const { return *m_document; }
    CTamloView& View() const { return *m_view; }
    CCanvasZoomer& Zoomer() const { return *m_zoomer; }
    CEditorPreferences& Preferences() const { return m_preferences; }
    // The document's unlimited undo history while the preferences ask for one, else null (the
    // document's own one step). Switching the preference on starts an empty history from the
    // document as it stands; switching it off drops the history and the widgets it kept.
    CUndoHistory* History() const { return m_history.get(); }
    // The window file's name, or a numbered name while it has never been saved.
    QString DisplayName() const;
    QString FilePath() const;

    // Saves to the document's file, asking for one while there is none. False when the user
    // cancelled or the file could not be written (the user has been told why).
    bool Save();
    bool SaveAs();
    // Asks whether to save a modified document. False when the user cancelled or saving failed.
    bool MaybeSave();

    void DocumentChanged(const CDocumentChange& change) override;

    // Compares the window file on disk with what this window read or wrote last, and shows or
    // hides the bar that tells of a change by another program.
    void CheckDiskCopy();

signals:
    void documentSaved(const QString& path);
    // The user closed the window, and its changes were saved or discarded.
    void closedByUser();
    // The window started or dropped its unlimited undo history.
    void historyChanged();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    bool SaveTo(const QString& path);
    // Whether the window file now holds what this window read or wrote last.
    bool DiskCopyIsOurs() const;
    // Shows the name and the modified mark in the title.
    void RefreshTitle();
    void FollowUndoPreference();

    std::unique_ptr<CTamloDoc> m_document;
    CEditorPrompts& m_prompts;
    CEditorPreferences& m_preferences;
    CTamloView* m_view;
    CCanvasZoomer* m_zoomer; // a child of the view
    std::unique_ptr<CUndoHistory> m_history;
    QString m_untitledName;
    std::optional<QByteArray> m_diskDigest; // of the file as read or written last; none without one
    QLabel* m_diskNotice;
};
