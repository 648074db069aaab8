#include "dynpropertyedit.h"

#include "dynamicbinding.h"
#include "dynpropertydialog.h"
#include "dynamics/dynamictype.h"
#include "widgets/core/hmiwidget.h"
#include "widgets/core/optiontree.h"
#include "widgets/core/tamlodoc.h"

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
    row.SetAdtColumnBkColor(prop->m_strExpression.empty() ? kHmiColor3DFace : kHmiColorBound);
    if (widget.m_pDocument)
        widget.m_pDocument->WidgetChanged(widget, DocChange::Bindings);
    return true;
}
