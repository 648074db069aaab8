#pragma once

class QFont;

// The width in whole pixels of the longest row caption, property or event, that a built-in widget
// kind shows in the property pane. Libraries' classes are left out: their code does not run
// for a measurement.
int WidestBuiltinCaption(const QFont& font);
