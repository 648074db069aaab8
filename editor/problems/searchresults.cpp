#include "searchresults.h"

#include "editor/projectdialogs/modeltext.h"
#include "project/projectpath.h"

#include <QFile>

#include <set>

CSearchResults::CSearchResults(QWidget* parent)
    : CPlaceList({tr("File"), tr("Widget"), tr("Where"), tr("Uses")},
                 parent)
{
}

FileResult CSearchResults::FindReferences(const std::string& folder, const std::string& reference,
                                          const std::vector<OpenWindow>& open)
{
    std::vector<ReferenceUse> uses;
    const FileResult found = FindReferencesInProject(folder, reference, open, uses);
    if (!found) {
        ClearPlaces(tr("Cannot look for %1: %2").arg(FromModel(reference), QString::fromStdString(found.error)));
        return found;
    }
    std::set<std::string> files;
    std::size_t count = 0;
    for (const ReferenceUse& use : uses) {
        files.insert(use.file);
        count += use.count;
    }
    ClearPlaces(tr("%1 uses of %2 in %3 windows").arg(count).arg(FromModel(reference)).arg(files.size()));
    for (const ReferenceUse& use : uses) {
        const QString path = QFile::decodeName(QByteArray::fromStdString(GetProjectPath() + Gb2312ToUtf8OrKeep(use.file)));
        AddPlace({FromModel(use.file), FromModel(use.widget), QString::fromStdString(use.place.Text()),
                  QString::number(use.count)},
                 {path, use.widget, use.place});
    }
    return found;
}
