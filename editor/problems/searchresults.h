#pragma once

#include "placelist.h"
#include "projectwork.h"

// The Search Results list: every use of a variable reference in the project's windows.
class CSearchResults : public CPlaceList {
    Q_OBJECT
public:
    explicit CSearchResults(QWidget* parent = nullptr);

    // Lists the uses of the reference in the project in the folder (ending in "/"), the open
    // windows as they are in memory. A failure says why in the summary and lists nothing.
    FileResult FindReferences(const std::string& folder, const std::string& reference,
                              const std::vector<OpenWindow>& open);
};
