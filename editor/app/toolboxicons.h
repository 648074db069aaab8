#pragma once

#include <QIcon>

#include <string_view>

// The toolbox's icons of the built-in widget kinds and of the pointer. They are drawn at the
// size asked for, on a 16-unit grid whose strokes land on whole pixels, so that they stay crisp
// at 16 and 24 pixels and on high-density screens; a disabled icon is drawn faded.

// The icon of a built-in kind by its class key; a null icon for any other key.
QIcon BuiltinKindIcon(std::string_view classKey);
QIcon PointerIcon();
// An icon that draws nothing, at any size: it holds the place of an icon that comes later.
QIcon BlankIcon();
