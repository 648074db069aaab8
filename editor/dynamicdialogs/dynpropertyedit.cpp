#include "dynpropertyedit.h"

#include "dynamicbinding.h"
#include "dynpropertydialog.h"
#include "dynamics/dynamictype.h"
#include "widgets/hmiwidget.h"
#include "widgets/optiontree.h"
#include "widgets/tamlodoc.h"

bool EditDynamicProperty(QWidget* parent, CHmiWidget& widget, COptionTreeItem& row,
                         const DynamicDialogServices& services)
{
    CHmiWidgetProp* prop = widget.GetWidgetPropByTreeItem(&row);
    if (!prop || !prop->m_nBindable)
        return false;
    CDynPropertyDialog dialog(*prop, services, parent);
    if (dialog.exec() != QDialog::Accepted || dialog.GetOutcome() == CDynPropertyDialog::Outcome::Unchanged)
        return false;
    ApplyDynamicBinding(*prop, dialog.TakeBinding());
    row.SetAdtColumnBkColor(BindingMarkColor(prop->m_strExpression));
    if (widget.m_pDocument)
        widget.m_pDocument->WidgetChanged(widget, DocChange::Bindings);
    return true;
}
