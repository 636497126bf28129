// Scenario blocks and other text files, read and written line by line.
#include <algorithm>
#include <cstdio>
#include <fstream>

#include "OrbiterAPI.h"
#include "core/line_file.h"
#include "core/world.h"
#include "visual/asset_files.h"

using hullhost::LineFile;
using hullhost::World;

namespace {

const char *RootFolder(PathRoot root) {
    switch (root) {
    case CONFIG:
        return "Config\\";
    case SCENARIOS:
        return "Scenarios\\";
    case TEXTURES:
        return "Textures\\";
    case TEXTURES2:
        return "Textures2\\";
    case MESHES:
        return "Meshes\\";
    case MODULES:
        return "Modules\\";
    case ROOT:
        break;
    }
    return "";
}

bool Readable(const std::string &path) {
    FILE *probe = std::fopen(path.c_str(), "rb");
    if (!probe)
        return false;
    std::fclose(probe);
    return true;
}

std::string FormatDouble(double d) {
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.12g", d);
    return buf;
}

} // namespace

bool oapiReadScenario_nextline(FILEHANDLE scn, char *&line) {
    if (!scn)
        return false;
    return LineFile::From(scn)->NextLine(line);
}

void oapiWriteLine(FILEHANDLE file, char *line) {
    if (file && line)
        LineFile::From(file)->Write(line);
}

// A line "key value": it reads back as key, one blank, value.
void oapiWriteScenario_string(FILEHANDLE scn, const char *item, const char *string) {
    if (!scn || !item)
        return;
    LineFile::From(scn)->Write(std::string(item) + " " + (string ? string : ""));
}

void oapiWriteScenario_int(FILEHANDLE scn, const char *item, int i) {
    oapiWriteScenario_string(scn, item, std::to_string(i).c_str());
}

void oapiWriteScenario_float(FILEHANDLE scn, const char *item, double d) {
    oapiWriteScenario_string(scn, item, FormatDouble(d).c_str());
}

void oapiWriteScenario_vec(FILEHANDLE scn, const char *item, const VECTOR3 &vec) {
    std::string text = FormatDouble(vec.x) + " " + FormatDouble(vec.y) + " " + FormatDouble(vec.z);
    oapiWriteScenario_string(scn, item, text.c_str());
}

FILEHANDLE oapiOpenFile(const char *fname, FileAccessMode mode, PathRoot root) {
    if (!fname)
        return nullptr;
    World &w = World::Current();
    std::string path = w.LocalPath(std::string(RootFolder(root)) + fname);
    if (mode == FILE_IN || mode == FILE_IN_ZEROONFAIL) {
        // A mesh is named as for oapiLoadMesh, without its extension.
        if (root == MESHES && !Readable(path))
            path = hullhost::MeshFilePath(w, fname);
        if (!Readable(path))
            return nullptr;
        w.openFiles.push_back({std::make_unique<LineFile>(LineFile::ReadLocal(path)), path, mode});
    } else {
        w.openFiles.push_back({std::make_unique<LineFile>(), path, mode});
    }
    return w.openFiles.back().file->Handle();
}

void oapiCloseFile(FILEHANDLE f, FileAccessMode) {
    World &w = World::Current();
    auto it =
        std::find_if(w.openFiles.begin(), w.openFiles.end(), [f](auto &o) { return o.file->Handle() == f; });
    if (it == w.openFiles.end())
        return;
    if (it->mode == FILE_OUT || it->mode == FILE_APP) {
        std::ofstream out(it->path, it->mode == FILE_APP ? std::ios::app : std::ios::trunc);
        for (auto &line : it->file->Written())
            out << line << '\n';
    }
    w.openFiles.erase(it);
}
