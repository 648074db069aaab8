#include "firststartlayout.h"

#include <QLayout>
#include <QMainWindow>
#include <QScreen>

namespace {

// The window manager's frame and title bar are not known before the window is shown; this
// leaves room for common ones.
const QSize kWindowFrameReserve(16, 48);
// A window that needs less room still opens at this share of the screen.
constexpr double kScreenShare = 0.85;

} // namespace

QRect FirstStartGeometry(QSize around, QSize room, const QRect& available)
{
    const QSize roomy(int(available.width() * kScreenShare), int(available.height() * kScreenShare));
    const QSize size = (around + room).expandedTo(roomy).boundedTo(available.size() - kWindowFrameReserve);
    QRect geometry(QPoint(), size);
    geometry.moveCenter(available.center());
    return geometry;
}

QRect FirstStartGeometry(QMainWindow& window, const QWidget& area, QSize room)
{
    const QRect available = window.screen()->availableGeometry();
    window.resize(available.size());
    window.layout()->activate();
    return FirstStartGeometry(window.size() - area.contentsRect().size(), room, available);
}
