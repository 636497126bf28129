// Where the vessel's files lie and which variant it is.
#include "config/config_file.h"
#include "config/module_identity.h"
#include "frame/hullkit.h"

void HULLKIT::ResolveSubtype() {
    if (!subtype.empty())
        return;
    LookUpText("ST", subtype, true);
    if (subtype.empty())
        clbkNoSubtype();
}

void HULLKIT::LocateAndReadConfig() {
    // The module's own file, found from the address of one of its functions.
    HMODULE module = nullptr;
    char path[1024] = "";
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&IsHullkit), &module);
    GetModuleFileNameA(module, path, sizeof path);

    ModuleIdentity identity = IdentifyModule(path);
    moduleFile = identity.moduleFile;
    ClassFolder = identity.ClassFolder;
    moduleName = identity.moduleName;
    ConfigPaths files = LocateConfigFiles(identity, subtype);
    variantFile = files.variantFile;

    ReadConfigFile(files.commonFile, cfgCommon, secCommon);
    ReadConfigFile(files.classFile, cfgClass, secClass);
    if (!variantFile.empty())
        ReadConfigFile(variantFile, cfgVariant, secVariant);
}
