#pragma once

#include <string>
#include <vector>

// A name of the project's history.xml or datalog.xml that a widget writes to its window file,
// and whether the project lists it: the panel finds no database or log under a name it lacks.
struct ProjectNameUse {
    enum class Kind { HistoryDatabase, DataLog };
    Kind kind;
    std::string property; // the key of the row that chooses it
    std::string name;
    bool listed;
};

// Implemented by widgets that write such names, a library's among them, so that a project
// check finds every one without knowing the widget's class.
class CProjectNameUser {
public:
    virtual std::vector<ProjectNameUse> ProjectNamesUsed() const = 0;

protected:
    ~CProjectNameUser() = default;
};
