// Vessel classes and the modules that implement them. A class "Folder\Name"
// is described by Config/Vessels/Folder/Name.cfg, whose key "Module" names the
// shared library Modules/<Module>.dll that exports ovcInit and ovcExit.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "VesselAPI.h"

namespace hullhost {

class Module {
  public:
    Module(std::string name, std::string path, void *library, OvcInitFunc init, OvcExitFunc exit)
        : name_(std::move(name)), path_(std::move(path)), library_(library), init_(init), exit_(exit) {}
    ~Module();
    Module(const Module &) = delete;
    Module &operator=(const Module &) = delete;

    const std::string &Name() const { return name_; }
    const std::string &Path() const { return path_; }
    VESSEL *Init(OBJHANDLE h, int flightModel) const { return init_(h, flightModel); }
    void Exit(VESSEL *v) const { exit_(v); }

  private:
    std::string name_;
    std::string path_;
    void *library_;
    OvcInitFunc init_;
    OvcExitFunc exit_;
};

class ModuleRegistry {
  public:
    explicit ModuleRegistry(std::string root) : root_(std::move(root)) {}

    // The module of a vessel class, loaded on first use. Throws
    // std::runtime_error with a message for the user when the class file, its
    // Module key or the library can't be found, or the library lacks ovcInit.
    const Module &ForClass(const std::string &className);
    // A module linked into the host program itself, for a class whose class
    // file names it: the vessel code of tests runs in-process this way.
    void RegisterBuiltin(const std::string &moduleName, OvcInitFunc init, OvcExitFunc exit);
    // The local path of a class file.
    std::string ClassFile(const std::string &className) const;

  private:
    const Module &Load(const std::string &moduleName);

    std::string root_;
    std::map<std::string, std::string> classModule_;
    std::map<std::string, std::unique_ptr<Module>> modules_;
};

} // namespace hullhost
