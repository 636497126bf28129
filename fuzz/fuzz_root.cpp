#include "fuzz_root.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <new>
#include <system_error>

#include "core/program_module.h"
#include "core/world.h"
#include "stage/korvan.h"

namespace fs = std::filesystem;

namespace fuzzing {

namespace {

VESSEL *KorvanInit(OBJHANDLE h, int flightModel) { return new (std::nothrow) Korvan(h, flightModel); }
void KorvanExit(VESSEL *v) { delete static_cast<Korvan *>(v); }
VESSEL *GenericInit(OBJHANDLE h, int flightModel) { return new (std::nothrow) HULLKIT(h, flightModel); }
void GenericExit(VESSEL *v) { delete static_cast<HULLKIT *>(v); }

void RemoveRoot() {
    std::error_code ec;
    fs::current_path(fs::temp_directory_path(ec), ec);
    fs::remove_all(Root(), ec);
}

std::string MakeRoot() {
    std::string pattern = (fs::temp_directory_path() / "hullkit-fuzz-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        std::abort();
    const fs::path root = pattern;
    const fs::path source = HULLKIT_SOURCE_ROOT;
    fs::create_directory_symlink(source / "Meshes", root / "Meshes");
    fs::copy(source / "Config", root / "Config", fs::copy_options::recursive);
    fs::create_directories(root / "Config/Vessels/FuzzHost");
    std::ofstream(root / "Config/Vessels/FuzzHost/Stage.cfg") << "Module = FuzzHost\\Stage\n";
    // Vessels open their files relative to the host's working directory.
    fs::current_path(root);
    return root.string();
}

} // namespace

const std::string &Root() {
    // Never destroyed: RemoveRoot still needs the name at exit.
    static const std::string *const root = [] {
        auto *made = new std::string(MakeRoot());
        std::atexit(RemoveRoot);
        return made;
    }();
    return *root;
}

void WriteRootFile(const std::string &path, std::string_view text) {
    const fs::path full = fs::path(Root()) / path;
    fs::create_directories(full.parent_path());
    std::ofstream(full, std::ios::binary | std::ios::trunc).write(text.data(), std::streamsize(text.size()));
}

void UseModule(hullhost::World &world, FleetModule module) {
    if (module == FleetModule::Korvan) {
        world.modules.RegisterBuiltin("FuzzHost\\Stage", KorvanInit, KorvanExit);
        hullhost::SetProgramModulePath("Modules\\Fleet\\Korvan.dll");
    } else {
        world.modules.RegisterBuiltin("FuzzHost\\Stage", GenericInit, GenericExit);
        hullhost::SetProgramModulePath("Modules\\Fleet\\Generic.dll");
    }
}

} // namespace fuzzing
