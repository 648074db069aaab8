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

// Whether a class key names a built-in kind: a registered one, or one of the kinds the panel
// knows that a window file's reader does not create ("edit", "valve"), which it keeps as custom
// widgets with their properties.
bool IsBuiltinWidgetClass(std::string_view key);
