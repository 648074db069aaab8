#include "widgetitemdialogs.h"

#include "fieldchoicedialog.h"
#include "fontpickerdialog.h"
#include "modeltext.h"
#include "variabledialog.h"

#include "project/namelists.h"
#include "project/projectpath.h"
#include "project/variabledatabase.h"
#include "catalogue/hmiwidgetalarmwnd.h"
#include "catalogue/hmiwidgetbmptext.h"
#include "catalogue/hmiwidgethislist.h"
#include "catalogue/hmiwidgetpic.h"
#include "widgets/optiontree.h"
#include "widgets/tamlodoc.h"

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

} // namespace

bool SelectWidgetItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    const CHmiWidgetProp* prop = widget.GetWidgetPropByTreeItem(&item);
    if (!prop)
        return false;
    switch (prop->m_nItemType) {
    case PROP_VARIABLE: return SelectVariableItem(parent, widget, item, context);
    case PROP_FILE: return ChooseFileItem(parent, widget, item, context);
    case PROP_FONT: return ChooseFontItem(parent, widget, item, context);
    case PROP_STATIC: return ClickWidgetItem(parent, widget, item, context);
    default: return false;
    }
}

bool SelectVariableItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    return EditWidget(widget, [&] {
        CHmiVariableDatabase database;
        database.LoadProject(GetProjectPath());
        CVariableDialog dialog(database, parent);
        if (context.runDialog(dialog) == QDialog::Accepted && !dialog.Reference().empty())
            CommitText(widget, item, dialog.Reference());
    });
}

bool ChooseFileItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    const std::string folder = widget.m_pDocument ? widget.m_pDocument->GetPictureFolder() : std::string();
    const QString chosen = context.choosePicture(parent, QFile::decodeName(QByteArray::fromStdString(folder)));
    if (chosen.isEmpty())
        return false;
    std::string path = ToModel(chosen);
    if (dynamic_cast<CHmiWidgetPic*>(&widget)) {
        // Brought in here rather than by the widget, so that a failure is told to the user.
        std::string name;
        const FileResult imported =
            folder.empty() ? FileResult::Failure("The window has no folder for its pictures yet: save it first.")
                           : ImportPictureFile(path, folder, name);
        if (!imported) {
            context.reportError(parent, QString::fromStdString(imported.error));
            return false;
        }
        path = folder + name;
    }
    return EditWidget(widget, [&] { CommitText(widget, item, path); });
}

bool ChooseFontItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem&, const ProjectContext& context)
{
    auto* text = dynamic_cast<CHmiWidgetBmpText*>(&widget);
    if (!text)
        return false;
    return EditWidget(widget, [&] {
        CFontPickerDialog dialog(text->m_font, text->m_textColor, context.chooseColor, parent);
        if (context.runDialog(dialog) != QDialog::Accepted)
            return;
        text->m_font = dialog.Font();
        text->m_textColor = dialog.Color();
    });
}

bool ClickWidgetItem(QWidget* parent, CHmiWidget& widget, COptionTreeItem& item, const ProjectContext& context)
{
    const CHmiWidgetProp* prop = widget.GetWidgetPropByTreeItem(&item);
    const bool fieldsRow = prop && prop->m_strName == "dispfields";
    return EditWidget(widget, [&] {
        if (auto* alarms = dynamic_cast<CHmiWidgetAlarmWnd*>(&widget); alarms && fieldsRow) {
            EditDisplayFields(parent, "Setting Alarm Field", AlarmFieldChoices(alarms->m_strDispFields), *alarms,
                              context);
        } else if (auto* history = dynamic_cast<CHmiWidgetHisList*>(&widget); history && fieldsRow) {
            // A database the project does not list has no variables to offer.
            EditDisplayFields(parent, "History Data Variable",
                              HistoryFieldChoices(history->m_strDispFields,
                                                  GetHistoryVariableNames(history->HistoryName())),
                              *history, context);
        } else {
            widget.WidgetItemClick(&item);
        }
    });
}
