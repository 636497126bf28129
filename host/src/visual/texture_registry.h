// The world's surfaces. A texture registered twice under one name and kind
// is one surface; dynamic textures and surfaces made from bitmaps are new
// each time.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "surface.h"

namespace hullhost {

class TextureRegistry {
  public:
    // The registered surface of that name and kind, or null.
    Surface *Find(const std::string &name, SurfaceKind kind) const;
    Surface *Add(Surface surface);
    // The surface behind a handle, or null if the handle isn't one of ours.
    Surface *Lookup(SURFHANDLE h) const;
    const std::vector<std::unique_ptr<Surface>> &All() const { return surfaces_; }

  private:
    std::vector<std::unique_ptr<Surface>> surfaces_;
};

} // namespace hullhost
