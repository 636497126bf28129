// The Windows calls that modules make, on POSIX systems.
#include <algorithm>
#include <cstring>
#include <dlfcn.h>
#include <map>
#include <mutex>
#include <string>

#include "Platform.h"
#include "core/program_module.h"
#include "core/world.h"

namespace {

std::string HostForm(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

// Module handles are the load addresses that dladdr reports; the file names
// are remembered when a handle is handed out.
std::map<HMODULE, std::string> &ModuleFiles() {
    static std::map<HMODULE, std::string> files;
    return files;
}

std::string &ProgramModulePath() {
    static std::string path;
    return path;
}

bool EndsWithDll(const std::string &path) {
    return path.size() >= 4 && path.compare(path.size() - 4, 4, ".dll") == 0;
}

} // namespace

namespace hullhost {
void SetProgramModulePath(const std::string &hostPath) { ProgramModulePath() = hostPath; }
} // namespace hullhost

extern "C" {

BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE *module) {
    if (!module)
        return FALSE;
    *module = nullptr;
    if (!(flags & GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS))
        return (*module = GetModuleHandleA(name)) != nullptr;
    Dl_info info{};
    if (!dladdr(name, &info) || !info.dli_fbase)
        return FALSE;
    *module = static_cast<HMODULE>(info.dli_fbase);
    std::string file = info.dli_fname ? info.dli_fname : "";
    // Code linked into the host program stands for the module it was built as.
    if (!ProgramModulePath().empty() && !EndsWithDll(file))
        file = ProgramModulePath();
    ModuleFiles()[*module] = HostForm(file);
    return TRUE;
}

DWORD GetModuleFileNameA(HMODULE module, LPSTR buffer, DWORD size) {
    if (!buffer || size == 0)
        return 0;
    auto it = ModuleFiles().find(module);
    const std::string path = it == ModuleFiles().end() ? std::string() : it->second;
    DWORD n = static_cast<DWORD>(std::min<size_t>(path.size(), size - 1));
    std::memcpy(buffer, path.data(), n);
    buffer[n] = '\0';
    return n;
}

HMODULE GetModuleHandleA(LPCSTR name) {
    if (!name)
        return nullptr;
    // Only libraries already loaded are found, as on Windows.
    void *lib = dlopen(name, RTLD_NOW | RTLD_NOLOAD);
    if (!lib)
        return nullptr;
    ModuleFiles()[static_cast<HMODULE>(lib)] = HostForm(name);
    return static_cast<HMODULE>(lib);
}

FARPROC GetProcAddress(HMODULE module, LPCSTR name) {
    if (!module || !name)
        return nullptr;
    return reinterpret_cast<FARPROC>(dlsym(module, name));
}

HANDLE LoadImageA(HINSTANCE, LPCSTR name, UINT type, int, int, UINT flags) {
    if (!name || type != IMAGE_BITMAP || !(flags & LR_LOADFROMFILE))
        return nullptr;
    auto *world = hullhost::World::CurrentOrNull();
    if (!world)
        return nullptr;
    std::string local = world->LocalPath(name);
    FILE *f = std::fopen(local.c_str(), "rb");
    if (!f)
        return nullptr;
    std::fclose(f);
    world->bitmaps.push_back(std::make_unique<hullhost::Bitmap>(hullhost::Bitmap{local}));
    return world->bitmaps.back().get();
}

void keybd_event(BYTE, BYTE scan, DWORD flags, uintptr_t) {
    if (auto *world = hullhost::World::CurrentOrNull())
        world->bufferedKeys.push_back({scan, (flags & KEYEVENTF_KEYUP) == 0});
}

} // extern "C"

FILE *OpenLocalFile(const char *path, const char *mode) {
    if (!path || !mode)
        return nullptr;
    std::string local = path;
    std::replace(local.begin(), local.end(), '\\', '/');
    return std::fopen(local.c_str(), mode);
}
