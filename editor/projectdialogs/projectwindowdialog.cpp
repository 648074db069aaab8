#include "projectwindowdialog.h"

#include "dialogbuttons.h"
#include "modeltext.h"

#include "project/projectpath.h"
#include "project/windowlist.h"

#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kColumnWidth = 100;
constexpr int kDialogHeight = 360;
enum Column { NameColumn, CaptionColumn, FileColumn };

} // namespace

CProjectWindowDialog::CProjectWindowDialog(ProjectContext::DirectoryChooser chooseDirectory, QWidget* parent)
    : QDialog(parent), m_chooseDirectory(std::move(chooseDirectory)), m_list(new QTreeWidget(this)),
      m_path(new QLineEdit(this))
{
    setWindowTitle(tr("Project Window Information"));
    m_list->setRootIsDecorated(false);
    m_list->setAllColumnsShowFocus(true);
    m_list->setHeaderLabels({tr("window name"), tr("window caption"), tr("file name")});
    m_list->header()->setDefaultSectionSize(kColumnWidth);
    m_list->header()->setDefaultAlignment(Qt::AlignCenter);
    m_path->setReadOnly(true);
    auto* browse = MakePictureButton(QStyle::SP_DirOpenIcon, tr("Browse..."), this);
    connect(browse, &QPushButton::clicked, this, &CProjectWindowDialog::Browse);

    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(m_path, 1);
    pathRow->addWidget(browse);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    connect(AddOkCancelButtons(*this, *buttons).ok, &QPushButton::clicked, this,
            &CProjectWindowDialog::TakeChosenRow);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(pathRow);
    layout->addLayout(buttons);
    ShowProject();
    // Wide enough for the columns as the project's windows fill them.
    int columns = 0;
    for (int column : {NameColumn, CaptionColumn, FileColumn})
        columns += ColumnWidth(column);
    const int list = columns + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2 * m_list->frameWidth();
    const int width = list + layout->contentsMargins().left() + layout->contentsMargins().right();
    resize(QSize(std::max(width, sizeHint().width()), kDialogHeight).boundedTo(screen()->availableGeometry().size()));
}

void CProjectWindowDialog::ShowProject()
{
    m_list->clear();
    const std::string& project = GetProjectPath();
    m_path->setText(QFile::decodeName(QByteArray::fromStdString(project)));
    if (project.empty())
        return;
    // Each window goes in as the first row, so the list shows the file's windows last to first.
    ReadWindowList(project + "hmiwindow.xml", [this](const HmiWindowEntry& entry) {
        auto* row = new QTreeWidgetItem({FromModel(entry.name), FromModel(entry.caption), FromModel(entry.filename)});
        for (int column : {NameColumn, CaptionColumn, FileColumn})
            row->setTextAlignment(column, Qt::AlignCenter);
        m_list->insertTopLevelItem(0, row);
    });
    for (int column : {NameColumn, CaptionColumn}) // the file column takes the rest
        m_list->setColumnWidth(column, ColumnWidth(column));
}

int CProjectWindowDialog::ColumnWidth(int column) const
{
    const QAbstractItemView& view = *m_list; // where the width of the contents is public
    return std::max({kColumnWidth, view.sizeHintForColumn(column), m_list->header()->sectionSizeHint(column)});
}

void CProjectWindowDialog::Browse()
{
    const QString folder = m_chooseDirectory(this, tr("Please select project path!"), QDir::currentPath());
    if (folder.isEmpty())
        return;
    SetProjectPath(QFile::encodeName(QDir::fromNativeSeparators(folder)).toStdString());
    ShowProject();
}

void CProjectWindowDialog::TakeChosenRow()
{
    const QList<QTreeWidgetItem*> chosen = m_list->selectedItems();
    QTreeWidgetItem* first = nullptr;
    for (QTreeWidgetItem* item : chosen)
        if (!first || m_list->indexOfTopLevelItem(item) < m_list->indexOfTopLevelItem(first))
            first = item;
    m_chosenFile = first ? QFile::encodeName(first->text(FileColumn)).toStdString() : std::string();
    accept();
}

std::optional<std::string> ChooseProjectWindow(QWidget* parent, const ProjectContext& context)
{
    CProjectWindowDialog dialog(context.chooseDirectory, parent);
    if (context.runDialog(dialog) != QDialog::Accepted || dialog.ChosenFile().empty())
        return std::nullopt;
    return GetProjectPath() + dialog.ChosenFile();
}
