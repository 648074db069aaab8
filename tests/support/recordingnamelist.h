#pragma once

#include "widgets/tamlodoc.h"

#include <string>
#include <vector>

// The main frame's list of widget names, as a log of what it was told.
class RecordingNameList : public CWidgetNameList {
public:
    void AddWidgetName(const std::string& name, bool select) override
    {
        log.push_back("add " + name + (select ? " selected" : ""));
    }
    void RemoveWidgetName(const std::string& name) override { log.push_back("remove " + name); }

    std::vector<std::string> log;
};
