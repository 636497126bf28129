// When a vessel's visual comes and goes. The host has no camera, so every
// vessel with a module gets its visual right after clbkPostCreation
// (clbkVisualCreated with refcount 1) and loses it just before its module
// ends it (clbkVisualDestroyed with refcount 0).
#pragma once

namespace hullhost {

class Vessel;
class World;

void CreateVisual(World &w, Vessel &v);
void DestroyVisual(World &w, Vessel &v);

} // namespace hullhost
