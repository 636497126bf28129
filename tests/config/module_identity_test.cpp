#include "config/module_identity.h"

#include <gtest/gtest.h>

TEST(ModuleIdentity, NamesFromAFullPath) {
    const ModuleIdentity id = IdentifyModule("C:\\Orbiter\\Modules\\Fleet\\Korvan.dll");
    EXPECT_EQ(id.moduleFile, "Korvan.dll");
    EXPECT_EQ(id.ClassFolder, "Fleet");
    EXPECT_EQ(id.moduleName, "Korvan");
}

TEST(ModuleIdentity, ShortAndDegeneratePathsAreSafe) {
    const ModuleIdentity bare = IdentifyModule("abc");
    EXPECT_EQ(bare.moduleFile, "abc");
    EXPECT_EQ(bare.ClassFolder, "");
    EXPECT_EQ(bare.moduleName, "");

    const ModuleIdentity empty = IdentifyModule("");
    EXPECT_EQ(empty.moduleFile, "");
    EXPECT_EQ(empty.moduleName, "");

    const ModuleIdentity trailing = IdentifyModule("\\x\\Fleet\\");
    EXPECT_EQ(trailing.moduleFile, "");
    EXPECT_EQ(trailing.ClassFolder, "Fleet");
}

TEST(ModuleIdentity, ConfigPathsWithAndWithoutSubtype) {
    const ModuleIdentity id = IdentifyModule("\\x\\y\\Modules\\Fleet\\Korvan.dll");
    const ConfigPaths heavy = LocateConfigFiles(id, "Heavy");
    EXPECT_EQ(heavy.commonFile, "Config\\Vessels\\Fleet\\HullKit.cfg");
    EXPECT_EQ(heavy.classFile, "Config\\Vessels\\Fleet\\Korvan.cfg");
    EXPECT_EQ(heavy.variantFile, "Config\\Vessels\\Fleet\\Korvan\\Heavy.cfg");
    EXPECT_EQ(LocateConfigFiles(id, "").variantFile, "");
}
