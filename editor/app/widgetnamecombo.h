#pragma once

#include "widgets/tamlodoc.h"

#include <QComboBox>

#include <string>

// The main frame's list of the active window's widget names. Choosing a name selects the widget.
// Names are kept in the documents' 8-bit form, so that a name finds its widget whatever it shows.
class CWidgetNameCombo : public QComboBox, public CWidgetNameList {
    Q_OBJECT
public:
    explicit CWidgetNameCombo(QWidget* parent = nullptr);

    void AddWidgetName(const std::string& name, bool select) override;
    void RemoveWidgetName(const std::string& name) override;

    // Lists the widgets of a document (none: empty) that are not deleted.
    void ShowDocument(const CTamloDoc* document);
    // Shows the name as the current one without reporting a choice.
    void SelectName(const std::string& name);
    std::string NameAt(int index) const;

signals:
    void widgetNameChosen(const std::string& name);

private:
    int FindName(const std::string& name) const;
};
