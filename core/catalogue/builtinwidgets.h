#pragma once

#include <span>
#include <string_view>

// Registers the editor's own widget classes under their class keys. Called once at start-up,
// before any widget library registers its classes, so that a library cannot take a built-in key
// (the first class registered under a key wins).
void RegisterBuiltinWidgetClasses();

// The keys of the built-in kinds that the toolbox offers first, in its order; the others follow
// in registration order.
std::span<const std::string_view> BuiltinToolboxOrder();
