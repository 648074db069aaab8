#pragma once

#include <string>
#include <vector>

// The names the project's history.xml and datalog.xml declare, for the combo lists of the
// curves and the history list; widget libraries use them too. Both read from the project
// folder and return 0 with no names when no project is chosen, 1 otherwise (also when the file
// is missing or malformed: the list is then empty).

constexpr int kMaxDataLogNames = 100;
constexpr int kMaxHistoryDbNames = 32;

// The `name` of every `log` of datalog.xml, at most kMaxDataLogNames of them; names must
// have room for as many.
int GetHmiLognameDesp(std::string names[], int& count);

// The `name` of every `historydb` of history.xml, at most kMaxHistoryDbNames of them. A file
// of the older form (root `history`) gives one empty name.
int GetHmiHistoryDbname(std::string names[], int& count);

// The variables that one history database of history.xml records: the `dataname` of each
// `history` element of the `historydb` of that name, in file order. Empty without a project,
// for a name the file does not have, and for a file of the older form.
std::vector<std::string> GetHistoryVariableNames(const std::string& historyDbName);
