#include "texture_registry.h"

namespace hullhost {

const char *KindName(SurfaceKind kind) {
    switch (kind) {
    case SurfaceKind::Texture:
        return "texture";
    case SurfaceKind::Dynamic:
        return "dynamic";
    case SurfaceKind::Exhaust:
        return "exhaust";
    case SurfaceKind::Particle:
        return "particle";
    case SurfaceKind::Reentry:
        return "reentry";
    case SurfaceKind::Bitmap:
        return "bitmap";
    }
    return "?";
}

Surface *TextureRegistry::Find(const std::string &name, SurfaceKind kind) const {
    for (auto &s : surfaces_)
        if (s->kind == kind && s->name == name)
            return s.get();
    return nullptr;
}

Surface *TextureRegistry::Add(Surface surface) {
    surfaces_.push_back(std::make_unique<Surface>(std::move(surface)));
    return surfaces_.back().get();
}

Surface *TextureRegistry::Lookup(SURFHANDLE h) const {
    if (!h)
        return nullptr;
    for (auto &s : surfaces_)
        if (s->Handle() == h)
            return s.get();
    return nullptr;
}

} // namespace hullhost
