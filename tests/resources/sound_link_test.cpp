// The parts of the sound link that work without the library: the wave
// directory and the names it composes, the version query and the log.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include "presentation/sound_link.h"

namespace {

namespace fs = std::filesystem;

std::string Slurp(const fs::path &path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

TEST(SoundLinkTest, WaveDirectoryComposedNamesVersionAndLog) {
    const fs::path previous = fs::current_path();
    const fs::path dir = fs::temp_directory_path() / ("sound_link_" + std::to_string(::getpid()));
    fs::create_directories(dir);
    fs::current_path(dir);

    EXPECT_STREQ(soundlink::ComposeWaveName("a.wav"), "a.wav");
    EXPECT_STREQ(soundlink::ComposeWaveName(nullptr), "");
    EXPECT_EQ(soundlink::SetMyDefaultWaveDirectory(nullptr), 0);
    EXPECT_EQ(soundlink::SetMyDefaultWaveDirectory("Sound\\Other\\"), 0);
    EXPECT_STREQ(soundlink::ComposeWaveName("a.wav"), "a.wav");
    // Compared without case; the backslash is added.
    EXPECT_EQ(soundlink::SetMyDefaultWaveDirectory("sound\\_customvesselssounds\\Fleet"), 1);
    EXPECT_STREQ(soundlink::ComposeWaveName("a.wav"), "sound\\_customvesselssounds\\Fleet\\a.wav");
    EXPECT_EQ(soundlink::SetMyDefaultWaveDirectory("Sound\\_CustomVesselsSounds\\X\\"), 1);
    EXPECT_STREQ(soundlink::ComposeWaveName("b.wav"), "Sound\\_CustomVesselsSounds\\X\\b.wav");

    // No library in this program: the link clears the directory and fails.
    int someone = 0;
    EXPECT_EQ(soundlink::ConnectToSoundLibrary(reinterpret_cast<OBJHANDLE>(&someone)), -1);
    EXPECT_STREQ(soundlink::ComposeWaveName("a.wav"), "a.wav");
    EXPECT_EQ(soundlink::GetSoundLibraryVersion(), 0.0f);
    fs::create_directories("Sound/cfg");
    std::ofstream("Sound/cfg/OrbiterSound3.cfg") << "\n";
    EXPECT_EQ(soundlink::GetSoundLibraryVersion(), 3.5f);

    EXPECT_EQ(Slurp("OrbiterSound_Log.txt"),
              "Orbiter Sound Log Started\n*****************************\n\n"
              "--------------------------------------\nSetMyDefaultWaveDirectory - No string\n"
              "--------------------------------------\n"
              "SetMyDefaultWaveDirectory - Missing 'Sound\\_CustomVesselsSounds\\' at start\n"
              "--------------------------------------\n"
              "ERR01= Vessel->ConnectToOrbiterSoundDLL: Unable to connect to OrbiterSound - not installed or "
              "activated\n");
    fs::current_path(previous);
    fs::remove_all(dir);
}

} // namespace
