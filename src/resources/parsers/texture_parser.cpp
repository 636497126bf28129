// The texture record: the surface, loaded the way its type says.
#include "frame/hullkit.h"

namespace {

// A bitmap file as a device-independent bitmap, or null.
HANDLE LoadBitmapFile(const std::string &file) {
    return LoadImageA(nullptr, file.c_str(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION);
}

} // namespace

template <> void HkResources<TEXTURE_REC>::ParseRecord(std::string name, TEXTURE_REC *record) {
    record->name = name;
    record->type = GetString(name, "Type");
    record->file = GetString(name, "File");

    // The host's registration calls take a writable name: they get a copy.
    std::string file = record->file;
    const std::string &type = record->type;
    if (type == "EXHAUST")
        record->surface = oapiRegisterExhaustTexture(file.data());
    else if (type == "PARTICLE")
        record->surface = oapiRegisterParticleTexture(file.data());
    else if (type == "DYNAMIC")
        record->surface = oapiLoadTexture(file.c_str(), true);
    else if (type == "SURFHANDLE")
        record->surface = oapiCreateSurface(static_cast<HBITMAP>(LoadBitmapFile(file)), true);
    else if (type == "HBITMAP")
        record->surface = static_cast<SURFHANDLE>(LoadBitmapFile(file));
    else
        record->surface = nullptr;
}
