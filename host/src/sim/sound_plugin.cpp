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

} // namespace hullhost::sim
