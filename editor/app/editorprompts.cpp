#include "editorprompts.h"

#include "editor/projectdialogs/modeltext.h"
#include "editor/projectdialogs/variabledialog.h"
#include "project/projectpath.h"
#include "project/variabledatabase.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include <limits>

namespace {

const char* const kWindowFileFilter = QT_TRANSLATE_NOOP("CEditorPrompts", "HMI window files (*.xml);;All files (*)");

} // namespace

CEditorPrompts::CEditorPrompts()
{
    // The expression dialogs pick their variables from the current project's databases.
    dynamicDialogs.pickVariable = [this](QWidget* parent) {
        return PickProjectVariable(parent, projectDialogs.runDialog);
    };
}

CEditorPrompts::SaveAnswer CEditorPrompts::AskSaveChanges(QWidget* parent, const QString& documentName)
{
    const auto answer =
        QMessageBox::question(parent, QStringLiteral("Kelvo HMI Editor"),
                              tr("Save changes to %1?").arg(documentName),
                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return SaveAnswer::Save;
    return answer == QMessageBox::Discard ? SaveAnswer::Discard : SaveAnswer::Cancel;
}

bool CEditorPrompts::AskOverwriteChangedFile(QWidget* parent, const QString& documentName)
{
    const auto answer = QMessageBox::question(
        parent, QStringLiteral("Kelvo HMI Editor"),
        tr("%1 was changed on disk by another program.\n\nOverwrite it?").arg(documentName),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return answer == QMessageBox::Yes;
}

QString CEditorPrompts::AskSaveFileName(QWidget* parent, const QString& suggestedPath)
{
    return QFileDialog::getSaveFileName(parent, tr("Save As"), suggestedPath, tr(kWindowFileFilter));
}

QString CEditorPrompts::AskOpenFileName(QWidget* parent, const QString& folder)
{
    return QFileDialog::getOpenFileName(parent, tr("Open"), folder, tr(kWindowFileFilter));
}

std::optional<int> CEditorPrompts::AskZoomPercent(QWidget* parent)
{
    // Any whole number is taken; one of zero or less leaves the widgets as they are. The label
    // tells this zoom from the view zoom, which leaves the widgets alone.
    bool ok = false;
    const int percent = QInputDialog::getInt(parent, tr("Metafile Holistic Zoom"),
                                             tr("Scale of the selected widgets' sizes and positions (%):"), 100,
                                             std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 1, &ok);
    return ok ? std::optional<int>(percent) : std::nullopt;
}

QString CEditorPrompts::AskVariableReference(QWidget* parent)
{
    // Any reference may be typed: one the project no longer declares is worth finding too.
    CHmiVariableDatabase database;
    database.LoadProject(GetProjectPath());
    QStringList references;
    for (const std::string& reference : database.AllReferenceTexts())
        references << FromModel(reference);
    bool ok = false;
    const QString reference = QInputDialog::getItem(parent, tr("Find References"),
                                                    tr("Variable reference:"), references, 0, true, &ok);
    return ok ? reference.trimmed() : QString();
}

void CEditorPrompts::ShowError(QWidget* parent, const QString& text)
{
    QMessageBox::warning(parent, QStringLiteral("Kelvo HMI Editor"), text);
}

void CEditorPrompts::ShowInformation(QWidget* parent, const QString& text)
{
    QMessageBox::information(parent, QStringLiteral("Kelvo HMI Editor"), text);
}

RecoveryAnswer CEditorPrompts::AskRestoreWindows(QWidget* parent, const QList<RecoveryCopy>& copies)
{
    CRecoveryDialog dialog(copies, parent);
    dialog.exec();
    return dialog.Answer();
}
