#pragma once

// Registers the editor's own widget classes under their class keys. Called once at start-up,
// before any widget library registers its classes, so that a library cannot take a built-in key
// (the first class registered under a key wins).
void RegisterBuiltinWidgetClasses();
