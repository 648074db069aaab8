#pragma once

#include <span>

// The commands of kelvo-hmi that have a source of their own; each takes the arguments after
// its name and returns the exit status.
using Arguments = std::span<char* const>;

// check PROJECT [--format text|json|sarif] [--strict]
int CheckCommand(Arguments args);
// rename-var PROJECT OLD NEW [--dry-run] [--declarations]
int RenameVarCommand(Arguments args);
// render-all PROJECT OUTDIR
int RenderAllCommand(Arguments args);
