#include "config/module_identity.h"

#include "config/text_ops.h"

namespace {

constexpr std::size_t kExtensionLength = 4; // ".dll"

} // namespace

ModuleIdentity IdentifyModule(std::string modulePath) {
    ModuleIdentity identity;
    const std::vector<std::string> parts = SplitBy(modulePath, '\\');
    if (parts.empty()) {
        return identity;
    }
    identity.moduleFile = parts.back();
    if (parts.size() >= 2) {
        identity.ClassFolder = parts[parts.size() - 2];
    }
    const std::size_t nameLength =
        identity.moduleFile.size() > kExtensionLength ? identity.moduleFile.size() - kExtensionLength : 0;
    identity.moduleName = identity.moduleFile.substr(0, nameLength);
    return identity;
}

ConfigPaths LocateConfigFiles(const ModuleIdentity &identity, const std::string &subtype) {
    const std::string folder = "Config\\Vessels\\" + identity.ClassFolder + "\\";
    ConfigPaths paths;
    paths.commonFile = folder + "HullKit.cfg";
    paths.classFile = folder + identity.moduleName + ".cfg";
    if (!subtype.empty()) {
        paths.variantFile = folder + identity.moduleName + "\\" + subtype + ".cfg";
    }
    return paths;
}
