// Texture surfaces. Nothing is drawn, so a surface stands for its texture:
// textures named by file always give one (a missing file is logged and the
// surface says so), and a bitmap from LoadImageA becomes one on request.
#include <algorithm>

#include "OrbiterAPI.h"
#include "core/world.h"
#include "visual/asset_files.h"
#include "visual/dev_mesh.h"
#include "visual/visual.h"

using hullhost::Surface;
using hullhost::SurfaceKind;
using hullhost::World;

namespace {

SURFHANDLE Named(const char *name, SurfaceKind kind) {
    if (!name)
        return nullptr;
    return hullhost::TextureByName(World::Current(), name, kind)->Handle();
}

} // namespace

SURFHANDLE oapiLoadTexture(const char *fname, bool dynamic) {
    return Named(fname, dynamic ? SurfaceKind::Dynamic : SurfaceKind::Texture);
}

SURFHANDLE oapiRegisterExhaustTexture(char *name) { return Named(name, SurfaceKind::Exhaust); }

SURFHANDLE oapiRegisterParticleTexture(char *name) { return Named(name, SurfaceKind::Particle); }

SURFHANDLE oapiRegisterReentryTexture(char *name) { return Named(name, SurfaceKind::Reentry); }

SURFHANDLE oapiCreateSurface(HBITMAP hBmp, bool release_bmp) {
    World &w = World::Current();
    auto *bmp = reinterpret_cast<hullhost::Bitmap *>(hBmp);
    auto it = std::find_if(w.bitmaps.begin(), w.bitmaps.end(), [bmp](auto &b) { return b.get() == bmp; });
    if (it == w.bitmaps.end())
        return nullptr;
    Surface *s = w.textures.Add(Surface{(*it)->path, (*it)->path, SurfaceKind::Bitmap, true});
    if (release_bmp)
        w.bitmaps.erase(it);
    return s->Handle();
}

// Texture indices count from 1, as in a group's TEX line; 0 is no texture.
bool oapiSetTexture(DEVMESHHANDLE hMesh, DWORD texidx, SURFHANDLE tex) {
    World &w = World::Current();
    hullhost::DevMesh *m = hullhost::FindDevMesh(w, hMesh);
    if (!m || texidx == 0 || texidx > m->textures.size() || (tex && !w.textures.Lookup(tex)))
        return false;
    m->textures[texidx - 1] = tex;
    return true;
}
