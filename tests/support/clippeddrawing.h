#pragma once

#include "widgets/hmidc.h"

#include <functional>
#include <string>

// Leaving out what lies outside a target must change no pixel inside it. Draws the same shapes
// into a small image (40 x 30), where they run past every edge, and shifted by (130, 100) into
// a large one (300 x 230) that holds them whole, and compares the small image with its part of
// the large one. Returns where the first pixel differs, or nothing.
std::string FirstPixelChangedByClipping(const std::function<void(CHmiDC& dc, HmiPoint offset)>& draw);
