#pragma once

#include "widgets/documentchange.h"

#include <QComboBox>

#include <vector>

class CTamloDoc;

// The main frame's list of the active window's widget names, in drawing order, without the
// deleted widgets. Choosing a name selects the widget. As the document's observer it adds,
// removes, renames and reorders exactly the names of the widgets that changed, Undo included.
class CWidgetNameCombo : public QComboBox, public CDocumentObserver {
    Q_OBJECT
public:
    explicit CWidgetNameCombo(QWidget* parent = nullptr);
    ~CWidgetNameCombo() override;

    // Lists the widgets of a document (none: empty) and follows its changes.
    void ShowDocument(CTamloDoc* document);
    // Shows the widget's name as the current one without reporting a choice; a widget the
    // document has not told of yet (one just placed) is shown once it is listed. Null shows none.
    void SelectWidget(const CHmiWidget* widget);
    CHmiWidget* WidgetAt(int index) const;

    void DocumentChanged(const CDocumentChange& change) override;
    void DocumentDestroyed() override;

signals:
    void widgetChosen(CHmiWidget* widget);

private:
    int FindWidget(const CHmiWidget* widget) const;
    void ListWidgets();
    // Adds, removes, renames and moves the names of the changed widgets.
    void Follow(const std::vector<HmiWidgetChange>& changed);
    // Lists those of the widgets that are part of the window at their places in the drawing
    // order, the list holding every other widget of the window already.
    void PutBack(const std::vector<const CHmiWidget*>& widgets);

    CTamloDoc* m_document = nullptr;
    // The widget whose name is to be current; only compared, never followed.
    const CHmiWidget* m_shown = nullptr;
};
