#include "recoveryoffer.h"

#include "childframe.h"
#include "editorprompts.h"
#include "mainframe.h"
#include "pathtext.h"
#include "recoverykeeper.h"

#include "editor/recovery/recoverystore.h"
#include "widgets/tamlodoc.h"

#include <QCoreApplication>

namespace {

bool RestoreWindow(const RecoveryCopy& copy, CMainFrame& frame, CEditorPrompts& prompts)
{
    auto document = std::make_unique<CTamloDoc>();
    if (const FileResult result = document->Load(ToModelPath(copy.contentPath)); !result) {
        prompts.ShowError(&frame, QCoreApplication::translate("RecoveryOffer", "Cannot restore %1:\n%2")
                                      .arg(copy.record.displayName, QString::fromStdString(result.error)));
        return false;
    }
    const QString& path = copy.record.windowPath;
    if (CChildFrame* open = path.isEmpty() ? nullptr : frame.FindChild(path); open && !open->Document().IsModified())
        open->close();
    document->SetPathName(ToModelPath(path));
    document->SetModifiedFlag();
    frame.AddChild(std::move(document));
    return true;
}

} // namespace

void OfferAbandonedWindows(const QString& root, CMainFrame& frame, CRecoveryKeeper& keeper, CEditorPrompts& prompts)
{
    CAbandonedCopies abandoned(root);
    if (abandoned.Copies().isEmpty())
        return;
    switch (prompts.AskRestoreWindows(&frame, abandoned.Copies())) {
    case RecoveryAnswer::Later:
        return;
    case RecoveryAnswer::Discard:
        for (const RecoveryCopy& copy : abandoned.Copies())
            abandoned.Remove(copy);
        return;
    case RecoveryAnswer::Restore:
        break;
    }
    QList<RecoveryCopy> restored;
    for (const RecoveryCopy& copy : abandoned.Copies())
        if (RestoreWindow(copy, frame, prompts))
            restored.append(copy);
    // The old copies go only once the restored windows have copies of this editor.
    if (keeper.UpdateCopies())
        for (const RecoveryCopy& copy : restored)
            abandoned.Remove(copy);
}
