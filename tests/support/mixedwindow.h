#pragma once

class CTamloDoc;

// The window a generated document has: a panel-sized screen.
constexpr int kMixedWindowWidth = 1024;
constexpr int kMixedWindowHeight = 768;

// Replaces the document's contents by a window of widgetCount widgets that cycle through every
// registered kind (library kinds included), each with varied own properties set the way the
// property list sets them: every choice of every list in turn (so every gradient direction and
// line style appears within a few hundred widgets), random colours and check boxes, texts short,
// long, empty and in GB2312, small numbers in the other fields, pictures of the demo project
// and a missing one. Sizes vary from zero and one pixel through reversed corners to larger
// than the window and partly outside it; some widgets carry bindings and event scripts. The same
// count and seed give the same document, in any process. Each widget goes to the head of the
// list, as a load puts the widgets of a file: the file lists them in the order they were made,
// and a generated window draws as its file does. Pictures are found in the demo folder,
// which the document takes as its picture folder.
void FillMixedWindow(CTamloDoc& document, int widgetCount, unsigned seed);
