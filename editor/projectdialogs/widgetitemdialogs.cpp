#include "widgetitemdialogs.h"

#include "fieldchoicedialog.h"
#include "fontpickerdialog.h"
#include "modeltext.h"
#include "variabledialog.h"

#include "editor/extensions/editorextensions.h"

#include "project/namelists.h"
#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "catalogue/hmiwidgetalarmwnd.h"
#include "catalogue/hmiwidgetbmptext.h"
#include "catalogue/hmiwidgethislist.h"
#include "catalogue/hmiwidgetpic.h"
#include "widgets/optiontree.h"
#include "widgets/tamlodoc.h"

#include <QCoreApplication>
#include <QFile>

#include <functional>

namespace {

// Runs an edit of the widget. When it changed what the widget writes to its window file, the
// document hears of it, and with it the rows and the canvas.
bool EditWidget(CHmiWidget& widget, const std::function<void()>& edit)
{
    std::string before;
    widget.SaveWidgetProperties(before);
    edit();
    std::string after;
    widget.SaveWidgetProperties(after);
    if (after == before)
        return false;
    if (widget.m_pDocument)
        widget.m_pDocument->WidgetChanged(widget, DocChange::Properties);
    return true;
}

// Puts a new value text into a row and lets the widget take it, as a user's edit of the row would.
void CommitText(CHmiWidget& widget, COptionTreeItem& item, const std::string& text)
{
    item.SetEditText(text);
    widget.UpdateWidgetPropByTree(&item);
}

void EditDisplayFields(QWidget* parent, const QString& title, const std::vector<FieldChoice>& choices,
                       ListColumnsState& columns, const ProjectContext& context)
{
    CFieldChoiceDialog dialog(title, choices, parent);
    if (context.runDialog(dialog) == QDialog::Accepted)
        columns.SetDisplayFields(dialog.FieldsText());
}

// A variable row: the "HMI Database" picker over the current project, open on the row's
// reference; the row takes the chosen reference text.
void SelectVariable(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    CHmiVariableDatabase database;
    database.LoadProject(GetProjectPath());
    CVariableDialog dialog(database, item.GetEditText(), parent);
    if (context.runDialog(dialog) == QDialog::Accepted && !dialog.Reference().empty())
        CommitText(widget, item, dialog.Reference());
}

std::string PictureFolderOf(const CHmiWidget& widget)
{
    return widget.m_pDocument ? widget.m_pDocument->GetPictureFolder() : std::string();
}

// A file row: the row takes the chosen file.
void ChooseFile(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    const QString chosen =
        context.choosePicture(parent, QFile::decodeName(QByteArray::fromStdString(PictureFolderOf(widget))));
    if (!chosen.isEmpty())
        CommitText(widget, item, ToModel(chosen));
}

// The picture's file: one chosen elsewhere is first copied into the window's picture folder,
// replacing a file of the same name there; the row then takes the file in that folder.
void ImportPicture(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    const std::string folder = PictureFolderOf(widget);
    const QString chosen = context.choosePicture(parent, QFile::decodeName(QByteArray::fromStdString(folder)));
    if (chosen.isEmpty())
        return;
    if (folder.empty())
        return context.reportError(parent, QCoreApplication::translate(
                                               "WidgetItemDialogs",
                                               "The window has no folder for its pictures yet: save it first."));
    // Brought in here rather than by the widget, so that a failure is told to the user.
    std::string name;
    const FileResult imported = ImportPictureFile(ToModel(chosen), folder, name);
    if (!imported)
        context.reportError(parent, QString::fromStdString(imported.error));
    else
        CommitText(widget, item, folder + name);
}

// The bitmap text's font row: font and text colour.
void ChooseFont(QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context)
{
    auto& text = static_cast<CHmiWidgetBmpText&>(widget);
    CFontPickerDialog dialog(text.m_font, text.m_textColor, context.chooseColor, parent);
    if (context.runDialog(dialog) != QDialog::Accepted)
        return;
    text.m_font = dialog.Font();
    text.m_textColor = dialog.Color();
}

void EditAlarmFields(QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context)
{
    auto& alarms = static_cast<CHmiWidgetAlarmWnd&>(widget);
    EditDisplayFields(parent, QCoreApplication::translate("WidgetItemDialogs", "Setting Alarm Field"),
                      AlarmFieldChoices(alarms.m_strDispFields), alarms, context);
}

void EditHistoryFields(QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context)
{
    auto& history = static_cast<CHmiWidgetHisList&>(widget);
    // A database the project does not list has no variables to offer.
    EditDisplayFields(parent, QCoreApplication::translate("WidgetItemDialogs", "History Data Variable"),
                      HistoryFieldChoices(history.m_strDispFields, GetHistoryVariableNames(history.HistoryName())),
                      history, context);
}

// The dialog of a row that no class registered one for, by the row's item type.
RowDialog DialogOfItemType(PropItemType type)
{
    switch (type) {
    case PROP_VARIABLE: return SelectVariable;
    case PROP_FILE: return ChooseFile;
    case PROP_STATIC:
        return [](QWidget*, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext&) {
            widget.WidgetItemClick(&item);
        };
    default: return nullptr;
    }
}

} // namespace

bool SelectWidgetItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    const CHmiWidgetProp* prop = widget.GetWidgetPropByTreeItem(&item);
    if (!prop)
        return false;
    const RowDialog* registered = FindRowDialog(widget.GetRuntimeClass(), prop->m_strName);
    const RowDialog dialog = registered ? *registered : DialogOfItemType(prop->m_nItemType);
    return dialog && EditWidget(widget, [&] { dialog(parent, widget, item, context); });
}

void RegisterBuiltinRowDialogs()
{
    RegisterRowDialog(CHmiWidgetPic::classCHmiWidgetPic, "filename", ImportPicture);
    RegisterRowDialog(CHmiWidgetBmpText::classCHmiWidgetBmpText, "font", ChooseFont);
    RegisterRowDialog(CHmiWidgetAlarmWnd::classCHmiWidgetAlarmWnd, "dispfields", EditAlarmFields);
    RegisterRowDialog(CHmiWidgetHisList::classCHmiWidgetHisList, "dispfields", EditHistoryFields);
}

