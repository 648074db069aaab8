#include "dialogsizes.h"

#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <QSettings>

#include <utility>

ProjectContext::DialogRunner RememberingDialogSizes(QSettings& settings, ProjectContext::DialogRunner run)
{
    return [settings = QPointer<QSettings>(&settings), run = std::move(run)](QDialog& dialog) {
        if (!settings)
            return run(dialog);
        const QString key = QStringLiteral("Dialogs/%1/size").arg(QLatin1String(dialog.metaObject()->className()));
        const QSize saved = settings->value(key).toSize();
        if (saved.isValid())
            dialog.resize(saved.boundedTo(dialog.screen()->availableGeometry().size()));
        const QSize shown = dialog.size();
        const int result = run(dialog);
        if (settings && dialog.size() != shown)
            settings->setValue(key, dialog.size());
        return result;
    };
}
