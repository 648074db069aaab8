#pragma once

#include "canvascontrol.h"

#include "catalogue/listcolumns.h"

#include <functional>
#include <memory>
#include <vector>

class CHmiWidgetCheckbox;
class CHmiWidgetCombobox;
class QCheckBox;
class QComboBox;
class QTreeWidget;

// The live controls of the built-in control widgets. Each reads the widget that owns it; the
// widget outlives its control.

class CCheckboxControl : public CCanvasControl {
public:
    CCheckboxControl(const CHmiWidgetCheckbox& widget, QWidget& canvas);
    // Shows the caption.
    void Refresh() override;

private:
    const CHmiWidgetCheckbox& m_widget;
    QCheckBox* m_box;
};

class CComboboxControl : public CCanvasControl {
public:
    CComboboxControl(const CHmiWidgetCombobox& widget, QWidget& canvas);
    // Shows the list's items, empty ones included, with the first one current.
    void Refresh() override;

private:
    const CHmiWidgetCombobox& m_widget;
    QComboBox* m_box;
};

// The report list of the alarm window and the history list: one heading per displayed field at
// the width the widget keeps. A width the user drags on the header goes back into the widget.
class CListControl : public CCanvasControl {
public:
    CListControl(ListColumnsState& columns, QWidget& canvas, std::function<void()> columnResized);
    // Shows the columns again when the widget's differ from the shown ones (the field dialog).
    void Refresh() override;

private:
    void ShowColumns();
    void TakeDraggedWidth(int column, int width);

    ListColumnsState& m_columns;
    std::function<void()> m_columnResized;
    QTreeWidget* m_list;
    std::vector<ListColumn> m_shown;
    bool m_showing = false; // the header reports the widths being set as resizes too
};

// The live control for a control widget of the built-in kinds, as a child of the canvas; null
// for other kinds (a widget library's), which draw themselves. columnResized is called after a
// dragged column width went into the widget.
std::unique_ptr<CCanvasControl> CreateCanvasControl(CHmiCtrlWidget& widget, QWidget& canvas,
                                                    const std::function<void()>& columnResized);
