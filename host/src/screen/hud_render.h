// The focus vessel's head-up display of one moment: drawn by the vessel on a
// recording surface, and rendered with the annotations' texts as SVG.
#pragma once

#include <string>

#include "core/world.h"
#include "hud_sketchpad.h"

namespace hullhost {

// The display's size in pixels for the rendering.
constexpr int kHudWidth = 1024, kHudHeight = 768;

// Calls the focus vessel's clbkDrawHUD with a recording surface; empty
// without a focus vessel or module.
HudSketchpad DrawFocusHud(World &world, int width = kHudWidth, int height = kHudHeight);

// An SVG document of the recorded shapes and the world's non-empty annotations.
std::string HudSvg(const HudSketchpad &drawing, const World &world, int width = kHudWidth,
                   int height = kHudHeight);

} // namespace hullhost
