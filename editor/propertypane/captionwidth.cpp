#include "captionwidth.h"

#include "base/textcodec.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetprop.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>

int WidestBuiltinCaption(const QFontMetrics& metrics)
{
    int widest = 0;
    const auto measure = [&](const std::string& caption) {
        widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdString(Gb2312ToUtf8OrKeep(caption))));
    };
    for (const CWidgetRunTimeClass& entry : CHmiWidget::WidgetClassList) {
        if (!IsBuiltinWidgetClass(entry.m_strClassKey))
            continue;
        const HmiWidgetPtr widget = entry.m_pRuntimeClass->CreateObject();
        if (!widget)
            continue;
        widget->CreateEventItems();
        for (const auto& property : widget->GetProperties())
            measure(property->m_strLabel);
        for (const CHmiWidgetEvent& event : widget->GetEvents())
            measure(event.label);
    }
    return widest;
}
