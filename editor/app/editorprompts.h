#pragma once

#include "editor/dynamicdialogs/dialogservices.h"
#include "editor/extensions/projectcontext.h"
#include "editor/recovery/recoverydialog.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

class QWidget;

// Every question the editor asks the user, in one place, so that tests can answer them
// without modal dialogs. The editor uses the standard dialogs; tests install their own.
class CEditorPrompts {
    Q_DECLARE_TR_FUNCTIONS(CEditorPrompts)
public:
    enum class SaveAnswer { Save, Discard, Cancel };

    CEditorPrompts();
    virtual ~CEditorPrompts() = default;

    virtual SaveAnswer AskSaveChanges(QWidget* parent, const QString& documentName);
    // Whether a save may replace a window file that another program changed since it was read.
    virtual bool AskOverwriteChangedFile(QWidget* parent, const QString& documentName);
    // Empty when the user cancels.
    virtual QString AskSaveFileName(QWidget* parent, const QString& suggestedPath);
    virtual QString AskOpenFileName(QWidget* parent, const QString& folder);
    // The scale of the zoom command in percent; nothing when the user cancels.
    virtual std::optional<int> AskZoomPercent(QWidget* parent);
    // A variable reference to look for; empty when the user cancels.
    virtual QString AskVariableReference(QWidget* parent);
    virtual void ShowError(QWidget* parent, const QString& text);
    // Tells the user something worth knowing that needs no answer.
    virtual void ShowInformation(QWidget* parent, const QString& text);
    // What to do with the windows that editors which are gone left unsaved.
    virtual RecoveryAnswer AskRestoreWindows(QWidget* parent, const QList<RecoveryCopy>& copies);

    // How the dialogs of the property rows and the project run and choose.
    ProjectContext projectDialogs;
    DynamicDialogServices dynamicDialogs;
};
