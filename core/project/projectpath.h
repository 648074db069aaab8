#pragma once

#include <optional>
#include <string>

// The editor's one project folder, shared by the whole application. Every project file is
// found by appending its name to it, so it always ends with "/" once set; it stays empty
// until a project is chosen, and then nothing reads project files.
const std::string& GetProjectPath();
// Takes the folder, adding the "/" when it lacks one; an empty folder clears the path.
void SetProjectPath(const std::string& folder);

// The file argument of the command line may name the project folder too: "*FOLDER*FILE"
// opens FOLDER/FILE with FOLDER as the project, "**FILE" opens FILE with the current folder
// "./" as the project. Any other argument is a plain document path. Returns the project folder
// the argument names, if any, and turns the argument into the document path.
std::optional<std::string> TakeProjectArgument(std::string& argument);
