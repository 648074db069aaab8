#pragma once

#include "widgets/documentchange.h"
#include "widgets/hmiwidget.h"
#include "widgets/optiontree.h"

#include <QColor>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

class CPropertyPaneItem;
class CSharedRows;
class CTamloDoc;
class QLabel;
class QTimer;
class QTreeWidget;
class QTreeWidgetItem;

// The editor's property pane: the selected widget's properties as a three-column tree (caption,
// value editor, and a narrow column that shows whether the property is bound to an expression),
// with the current row's help text underneath. The user can resize the caption column. With
// several widgets selected it shows the rows they share, each with the value they agree on or
// none, and an edit goes to all of them. It observes the shown widgets' document: the rows follow
// the widgets' changes, whoever made them, and the pane empties when a shown widget goes.
class CPropertyPane : public QWidget, public COptionTree, public CDocumentObserver {
    Q_OBJECT
public:
    enum Column { CaptionColumn, ValueColumn, ExtraColumn };
    // Asks the user for a colour; an invalid colour means the choice was cancelled.
    using ColorChooser = std::function<QColor(const QColor& initial, QWidget* parent)>;

    explicit CPropertyPane(QWidget* parent = nullptr);
    ~CPropertyPane() override;

    COptionTreeItem* CreateNewRootItem(const std::string& caption, const std::string& info) override;
    COptionTreeItem* CreateNewItem(OptionItemKind kind, COptionTreeItem* parent, const std::string& caption,
                                   const std::string& info) override;

    // Removes every row and forgets the shown widgets.
    void Clear();
    // Rebuilds the pane for widgets of one document (none: leaves it empty); the user's edits
    // then go to them. One widget fills the pane itself; several show the rows they share once
    // all of them have been read, which happens a part at a time whenever control returns to
    // the event loop.
    void ShowWidgets(std::vector<CHmiWidget*> widgets);
    // Whether widgets are still to be read before their rows show.
    bool IsReading() const;
    void ShowWidget(CHmiWidget* widget) { ShowWidgets({widget}); }
    const std::vector<CHmiWidget*>& Widgets() const { return m_widgets; }
    // The widget the pane shows alone; null while it shows several or none.
    CHmiWidget* CurrentWidget() const { return m_widgets.size() == 1 ? m_widgets.front() : nullptr; }
    // Every edit committed in the pane comes here: each widget takes the row's value through
    // its own write-back (for a shared row, through its own row), and their document tells of
    // all of them as one change. No undo step is recorded.
    void ApplyToWidgets(const std::vector<CHmiWidget*>& widgets, COptionTreeItem* item);
    // Replaces the colour dialog that colour rows open.
    void SetColorChooser(ColorChooser chooser) { m_chooseColor = std::move(chooser); }
    QColor ChooseColor(const QColor& initial) { return m_chooseColor(initial, this); }

    QTreeWidget* Tree() const { return m_tree; }
    // The first row with this caption, under a root of rootCaption when one is given.
    CPropertyPaneItem* FindItem(const std::string& caption, const std::string& rootCaption = {}) const;
    QString DescriptionText() const;
    // Makes the row of the shown widget's property (by key) or event (by name) the current one
    // and scrolls to it; false when the pane has no such row.
    bool ShowPropertyRow(std::string_view key);
    bool ShowEventRow(std::string_view name);
    // Says in the description area why an edit was refused.
    void ShowRefusal(const QString& reason);

    void DocumentChanged(const CDocumentChange& change) override;
    void DocumentDestroyed() override;

    // Wide enough for the caption column and a value beside it.
    QSize sizeHint() const override;

public slots:
    // Applies a row that a dialog opened from its button has changed, as if the user had edited
    // it in place (a chosen file or variable). Rows of other panes or of cleared ones are ignored.
    void CommitItem(COptionTreeItem* item);

signals:
    // The user committed a new value in the row (never sent for values the program sets).
    void itemChanged(COptionTreeItem* item);
    // The "..." button of a row was pressed: of a bindable row (the dynamic-property dialogs),
    // a variable row (the variable chooser) or a static row of the widget's own, a file row, a
    // font row or an event row.
    void dynPropEditRequested(COptionTreeItem* item);
    void selectItemRequested(COptionTreeItem* item);
    void fileRequested(COptionTreeItem* item);
    void fontRequested(COptionTreeItem* item);
    void eventEditRequested(COptionTreeItem* item);

private:
    int DefaultCaptionWidth() const;
    CPropertyPaneItem* AddItem(OptionItemKind kind, CPropertyPaneItem* parent, const std::string& caption,
                               const std::string& info);
    void ShowDescription(QTreeWidgetItem* row);
    bool MakeCurrent(const COptionTreeItem* item);
    // Reads the next part of the shown widgets; after the last part, shows their shared rows.
    void ShowSharedRows();
    void AddSharedRows();
    void ShowSharedValues();
    // Shows the shown widgets' values again; several widgets are read again from the event loop.
    void Refresh();

    QTreeWidget* m_tree;
    QLabel* m_description;
    std::vector<std::unique_ptr<CPropertyPaneItem>> m_items; // in creation order
    std::vector<CHmiWidget*> m_widgets;
    std::unordered_set<const CHmiWidget*> m_shown; // m_widgets, looked up in the document's changes
    std::unique_ptr<CSharedRows> m_shared;          // with several widgets shown
    std::vector<CPropertyPaneItem*> m_sharedItems;  // the row of each shared row
    QTimer* m_sharedRowsDue;                        // runs ShowSharedRows once, however often started
    CTamloDoc* m_document = nullptr; // the shown widgets', observed while they are shown
    ColorChooser m_chooseColor;
};
