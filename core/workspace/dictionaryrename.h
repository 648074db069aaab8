#pragma once

#include "project/fileio.h"

#include <string>
#include <string_view>
#include <vector>

// Renames a variable where the project declares it, so that a rename of its references in the
// windows can take the declaration along: "$db.data" in rtdb.xml (the data item, the aliases of
// it, and the HMI variables of hmidb.xml that mirror it), "$name" in hmidb.xml. Both files are
// otherwise only read by the editor; they are changed in place, keeping their layout.
//
// Fails, giving nothing, when the project declares no variable `from` or already declares `to`,
// when a rename would move a realtime variable to another database or make it an HMI variable,
// and when a file cannot be read. `changed` gets the new content of each file that changes,
// `names` those files relative to the project folder ("rtdb.xml").
FileResult RenameDeclaredVariable(const std::string& projectFolder, std::string_view from, std::string_view to,
                                  std::vector<FileContent>& changed, std::vector<std::string>& names);
