#include "asset_files.h"

#include <algorithm>
#include <filesystem>

#include "core/world.h"
#include "mesh_loader.h"

namespace hullhost {

namespace {

std::string HostForm(std::string name) {
    std::replace(name.begin(), name.end(), '/', '\\');
    return name;
}

bool EndsWith(const std::string &s, const std::string &tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

bool HasExtension(const std::string &name) {
    const size_t slash = name.find_last_of("\\/");
    return name.find('.', slash == std::string::npos ? 0 : slash + 1) != std::string::npos;
}

bool IsFile(const std::string &path) {
    std::error_code ec;
    return std::filesystem::is_regular_file(path, ec);
}

void LogNotes(World &w, const std::string &name, const MeshLoadNotes &notes) {
    if (notes.skipped == 0)
        return;
    std::string line = "mesh " + name + ": " + std::to_string(notes.skipped) + " malformed entries ignored";
    for (auto &n : notes.first)
        line += "; " + n;
    w.WriteLog(line);
}

} // namespace

std::string MeshFilePath(const World &w, const std::string &name) {
    std::string file = "Meshes\\" + HostForm(name);
    if (!EndsWith(file, ".msh"))
        file += ".msh";
    return w.LocalPath(file);
}

Mesh *LoadWorldMesh(World &w, const std::string &name, bool shared) {
    const std::string key = HostForm(name);
    Mesh *mesh = nullptr;
    if (shared && w.meshCache.FindShared(key, mesh))
        return mesh;
    MeshLoadNotes notes;
    std::unique_ptr<Mesh> loaded = LoadMeshFile(MeshFilePath(w, key), notes);
    if (!loaded) {
        w.WriteLog("mesh not found: " + MeshFilePath(w, key));
        return shared ? w.meshCache.StoreShared(key, nullptr) : nullptr;
    }
    LogNotes(w, key, notes);
    loaded->name = key;
    for (auto &tex : loaded->textureNames)
        loaded->textures.push_back(TextureByName(w, tex, SurfaceKind::Texture)->Handle());
    return shared ? w.meshCache.StoreShared(key, std::move(loaded)) : w.meshCache.StoreOwn(std::move(loaded));
}

Surface *TextureByName(World &w, const std::string &name, SurfaceKind kind) {
    const std::string key = HostForm(name);
    if (kind != SurfaceKind::Dynamic)
        if (Surface *known = w.textures.Find(key, kind))
            return known;
    std::string path = w.LocalPath("Textures\\" + key);
    if (!IsFile(path) && !HasExtension(key))
        path += ".dds";
    const bool found = IsFile(path);
    if (!found)
        w.WriteLog("texture not found: " + w.LocalPath("Textures\\" + key));
    return w.textures.Add(Surface{key, found ? path : std::string(), kind, found});
}

} // namespace hullhost
