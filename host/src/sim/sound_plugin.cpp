#include "sound_plugin.h"

#include <dlfcn.h>
#include <stdexcept>

namespace hullhost::sim {

SoundPlugin::SoundPlugin(const std::string &root) {
    const std::string path = root + "/Modules/Plugin/OrbiterSound.dll";
    library_ = dlopen(path.c_str(), RTLD_NOW | RTLD_GLOBAL);
    if (!library_) {
        const char *why = dlerror();
        throw std::runtime_error("--sound: can't load " + path + (why ? std::string(": ") + why : ""));
    }
}

SoundPlugin::~SoundPlugin() { dlclose(library_); }

void SoundPlugin::WriteSoundtrack(const std::string &path, double end) const {
    using WriteFunc = int (*)(const char *, double);
    auto write = reinterpret_cast<WriteFunc>(dlsym(library_, "HullsimWriteSoundtrack"));
    if (!write || !write(path.c_str(), end))
        throw std::runtime_error("--soundtrack: can't write '" + path + "'");
}

} // namespace hullhost::sim
