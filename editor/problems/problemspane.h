#pragma once

#include "placelist.h"

#include "workspace/projectcheck.h"

#include <optional>
#include <string>
#include <vector>

class CTamloDoc;

// The Problems list: the findings of the last check of the project. The findings of an open
// window come from the window as it is in memory, checked again shortly after each change, so
// that a fault the user mends leaves the list without a check of the whole project.
class CProblemsPane : public CPlaceList {
    Q_OBJECT
public:
    explicit CProblemsPane(QWidget* parent = nullptr);

    // Checks the project in the folder (ending in "/"), the open windows as they are in memory.
    void CheckProject(const std::string& folder);
    bool HasChecked() const { return m_index.has_value(); }
    // Follows an open window's changes from now on, until it goes.
    void WatchWindow(CTamloDoc& document);

private:
    friend class CWindowRecheck;
    // Replaces the window's findings with those of its document, if it is a window of the
    // checked project.
    void ReplaceWindowFindings(const CTamloDoc& document);
    void ShowFindings();

    std::string m_folder;
    std::optional<CProjectIndex> m_index;
    std::vector<Finding> m_findings;
    std::vector<const CTamloDoc*> m_watched;
};
