// Where a vessel module's configuration files lie, derived from the module's path.
#pragma once

#include <string>

// The names taken from the module's own path.
struct ModuleIdentity {
    std::string moduleFile;  // file name with extension, "Korvan.dll"
    std::string ClassFolder; // name of the folder holding the module, "Fleet"
    std::string moduleName;  // moduleFile less its last four characters, "Korvan"
};

// The three configuration files, relative to the host's working directory.
struct ConfigPaths {
    std::string commonFile; // "Config\Vessels\<ClassFolder>\HullKit.cfg"
    std::string classFile;  // "Config\Vessels\<ClassFolder>\<moduleName>.cfg"
    std::string
        variantFile; // "Config\Vessels\<ClassFolder>\<moduleName>\<subtype>.cfg", empty without subtype
};

// Splits a module path in the host's form (backslashes) into its names. The path
// goes through SplitBy, so it is normalised and macro-expanded like any value.
ModuleIdentity IdentifyModule(std::string modulePath);

ConfigPaths LocateConfigFiles(const ModuleIdentity &identity, const std::string &subtype);
