#pragma once

#include "project/fileio.h"

#include <string>

class CPreviewScene;
class CTamloDoc;

// Drawing needs fonts, hence an application object, but no display: this chooses the offscreen
// platform unless one is set, and a private runtime folder, so that Qt says nothing. Call it
// before the QGuiApplication is made.
void PrepareOffscreenDrawing();

// Draws the window as the canvas does into a PNG of the window's size, clipped to
// kMaxDrawnWindowExtent; a clipped drawing leaves a notice that says so.
FileResult DrawWindowToPng(const CTamloDoc& document, const std::string& path);
// The same for the document's window as the preview evaluates it, at the start of the preview.
FileResult DrawPreviewToPng(const CTamloDoc& document, const CPreviewScene& scene, const std::string& path);
