#pragma once

#include <string>
#include <vector>

// The script functions of the panel runtime that the "Event Edit" dialog offers, read from
// hmifuncs.xml:
//   <functions>
//       <function name="setvalue" signature="setvalue(var, value)" help="Writes a variable" />
//   </functions>
// Texts are in the editor's code page, as in the window files.
struct ScriptFunction {
    std::string name;
    std::string signature; // what is inserted into the code; empty: name()
    std::string help;

    std::string InsertionText() const;
};

inline constexpr const char* kScriptFunctionsFileName = "hmifuncs.xml";

// The functions of the file in their order; an element without a name is skipped. A missing
// or malformed file, or one whose root is not `functions`, gives an empty list.
std::vector<ScriptFunction> LoadScriptFunctions(const std::string& path);

// The path of hmifuncs.xml in the first of the folders that has one (the project folder
// before the program's own, so that a project can bring its own list); empty when none has.
std::string FindScriptFunctionsFile(const std::vector<std::string>& folders);
