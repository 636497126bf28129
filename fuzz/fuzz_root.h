// What the fuzz targets share: a host root in a temporary folder that is the
// working directory, as hullsim makes its root, with the fleet's modules
// linked into the fuzz program itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace hullhost {
class World;
}

namespace fuzzing {

// The modules whose code a fuzz program runs.
enum class FleetModule { Korvan, Generic };

// Creates the root once per process, with the repository's Meshes/ and
// Config/ in it, and makes it the working directory. Later calls return the
// same root.
const std::string &Root();

// Writes a file under the root; `path` uses forward slashes.
void WriteRootFile(const std::string &path, std::string_view text);

// Registers `module` in `world` as the module of the host class
// "FuzzHost\Stage", and makes the vessel code of the program stand for
// Modules\Fleet\<Korvan|Generic>.dll, so that it reads its configuration from
// Config\Vessels\Fleet\ as the real module does. Vessels that a stage spawns
// at run time (class Fleet\Generic) are not made: the root has no module
// library for them, so the host refuses them as it refuses any class without
// one, and the stage goes on without them.
void UseModule(hullhost::World &world, FleetModule module);
// The host class that UseModule serves.
inline constexpr const char *kHostClass = "FuzzHost\\Stage";

inline std::string_view AsText(const uint8_t *data, size_t size) {
    return {reinterpret_cast<const char *>(data), size};
}

} // namespace fuzzing
