#pragma once

#include "widgets/documentchange.h"

#include <QMdiSubWindow>

#include <memory>

class CEditorPrompts;
class CEditorSession;
class CTamloDoc;
class CTamloView;

// The child window of one open HMI window: owns the document and shows its canvas in a
// scroll area, and its modified mark in the title. Closing it asks whether to keep unsaved
// changes.
class CChildFrame : public QMdiSubWindow, public CDocumentObserver {
    Q_OBJECT
public:
    CChildFrame(std::unique_ptr<CTamloDoc> document, CEditorPrompts& prompts, CEditorSession& session,
                QWidget* parent = nullptr);
    ~CChildFrame() override;

    CTamloDoc& Document() const { return *m_document; }
    CTamloView& View() const { return *m_view; }
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

signals:
    void documentSaved(const QString& path);
    // The user closed the window, and its changes were saved or discarded.
    void closedByUser();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    bool SaveTo(const QString& path);
    // Shows the name and the modified mark in the title.
    void RefreshTitle();

    std::unique_ptr<CTamloDoc> m_document;
    CEditorPrompts& m_prompts;
    CTamloView* m_view;
    QString m_untitledName;
};
