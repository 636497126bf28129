// A texture surface. The host draws nothing, so a surface stands for the
// texture that a renderer would use: its name, its file and how it came.
#pragma once

#include <string>

#include "OrbiterAPI.h"

namespace hullhost {

enum class SurfaceKind { Texture, Dynamic, Exhaust, Particle, Reentry, Bitmap };

struct Surface {
    std::string name; // as the module gave it, or the bitmap's path
    std::string path; // the local file, empty if none was found
    SurfaceKind kind = SurfaceKind::Texture;
    bool found = false;

    SURFHANDLE Handle() { return reinterpret_cast<SURFHANDLE>(this); }
};

const char *KindName(SurfaceKind kind);

} // namespace hullhost
