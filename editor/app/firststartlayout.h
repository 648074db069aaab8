#pragma once

#include <QRect>
#include <QSize>

class QMainWindow;
class QWidget;

// Where the main window opens when the user has no saved layout yet: large enough that its
// central area shows `room` without scrolling beside the docks at their preferred widths, and
// never larger than the available area of its screen, where it is centred. Lays the window out
// once to learn what its bars and docks take around `area`.
QRect FirstStartGeometry(QMainWindow& window, const QWidget& area, QSize room);

// The same rule without a window: `around` is what the window takes around its central area.
QRect FirstStartGeometry(QSize around, QSize room, const QRect& available);
