#include "config/module_identity.h"

#include <gtest/gtest.h>

#include <tuple>

TEST(ModuleIdentity, NamesFromFullShortAndDegeneratePaths) {
    const std::pair<const char *, std::tuple<std::string, std::string, std::string>> cases[] = {
        {"C:\\Orbiter\\Modules\\Fleet\\Korvan.dll", {"Korvan.dll", "Fleet", "Korvan"}},
        {"abc", {"abc", "", ""}},
        {"", {"", "", ""}},
        {"\\x\\Fleet\\", {"", "Fleet", ""}},
    };
    for (const auto &[path, names] : cases) {
        const ModuleIdentity id = IdentifyModule(path);
        EXPECT_EQ(std::tie(id.moduleFile, id.ClassFolder, id.moduleName), names) << path;
    }
}

TEST(ModuleIdentity, ConfigPathsWithAndWithoutSubtype) {
    const ModuleIdentity id = IdentifyModule("\\x\\y\\Modules\\Fleet\\Korvan.dll");
    const ConfigPaths heavy = LocateConfigFiles(id, "Heavy");
    EXPECT_EQ(heavy.commonFile, "Config\\Vessels\\Fleet\\HullKit.cfg");
    EXPECT_EQ(heavy.classFile, "Config\\Vessels\\Fleet\\Korvan.cfg");
    EXPECT_EQ(heavy.variantFile, "Config\\Vessels\\Fleet\\Korvan\\Heavy.cfg");
    EXPECT_EQ(LocateConfigFiles(id, "").variantFile, "");
}
