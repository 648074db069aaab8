#include "captionwidth.h"

#include "base/textcodec.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/hmiwidget.h"
#include "widgets/hmiwidgetprop.h"

#include <QFontMetricsF>
#include <QString>

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_set>

int WidestBuiltinCaption(const QFont& font)
{
    // Measured to a fraction of a pixel and rounded up, as the rows lay their text out.
    const QFontMetricsF metrics(font);
    qreal widest = 0;
    // Most captions are shared by many kinds, and laying a text out is what costs: each once.
    std::unordered_set<std::string> measured;
    const auto measure = [&](const std::string& caption) {
        if (measured.insert(caption).second)
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
    return int(std::ceil(widest));
}
