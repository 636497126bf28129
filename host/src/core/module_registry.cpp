#include "module_registry.h"

#include <algorithm>
#include <cctype>
#include <dlfcn.h>
#include <fstream>
#include <stdexcept>

#include "core/printable_text.h"

namespace hullhost {

namespace {

std::string Trim(const std::string &s) {
    size_t a = s.find_first_not_of(" \t\r");
    if (a == std::string::npos)
        return {};
    size_t b = s.find_last_not_of(" \t\r");
    return s.substr(a, b - a + 1);
}

std::string Slashes(std::string s) {
    std::replace(s.begin(), s.end(), '\\', '/');
    return s;
}

bool EqualsNoCase(const std::string &a, const std::string &b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

// The value of "Module = ..." in a class file, or empty.
std::string ModuleKey(std::ifstream &in) {
    std::string line;
    while (std::getline(in, line)) {
        line = line.substr(0, line.find(';'));
        size_t eq = line.find('=');
        if (eq != std::string::npos && EqualsNoCase(Trim(line.substr(0, eq)), "Module"))
            return Trim(line.substr(eq + 1));
    }
    return {};
}

} // namespace

Module::~Module() {
    if (library_)
        dlclose(library_);
}

std::string ModuleRegistry::ClassFile(const std::string &className) const {
    return root_ + "/Config/Vessels/" + Slashes(className) + ".cfg";
}

const Module &ModuleRegistry::ForClass(const std::string &className) {
    auto known = classModule_.find(className);
    if (known != classModule_.end())
        return Load(known->second);
    std::ifstream in(ClassFile(className));
    if (!in)
        throw std::runtime_error("unknown vessel class " + Quoted(className) + ": no file " +
                                 ClassFile(className));
    std::string moduleName = ModuleKey(in);
    if (moduleName.empty())
        throw std::runtime_error("vessel class " + Quoted(className) + " names no Module in " +
                                 ClassFile(className));
    const Module &m = Load(moduleName);
    classModule_[className] = moduleName;
    return m;
}

void ModuleRegistry::RegisterBuiltin(const std::string &moduleName, OvcInitFunc init, OvcExitFunc exit) {
    modules_[moduleName] =
        std::make_unique<Module>(moduleName, "Modules\\" + moduleName + ".dll", nullptr, init, exit);
}

const Module &ModuleRegistry::Load(const std::string &moduleName) {
    auto it = modules_.find(moduleName);
    if (it != modules_.end())
        return *it->second;
    std::string path = root_ + "/Modules/" + Slashes(moduleName) + ".dll";
    void *lib = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!lib)
        throw std::runtime_error("can't load module " + path + ": " + dlerror());
    auto init = reinterpret_cast<OvcInitFunc>(dlsym(lib, "ovcInit"));
    auto exit = reinterpret_cast<OvcExitFunc>(dlsym(lib, "ovcExit"));
    if (!init || !exit) {
        dlclose(lib);
        throw std::runtime_error("module " + path + " exports no ovcInit and ovcExit");
    }
    auto &slot = modules_[moduleName];
    slot = std::make_unique<Module>(moduleName, path, lib, init, exit);
    return *slot;
}

} // namespace hullhost
