// The link to the host's sound library, found at run time among the loaded
// libraries and never linked. Its state is shared by all vessels of the
// module. Every operation gives 0 when the export is missing, the link id is
// above 59 or the wave number is outside 1 to 60: a vessel without the
// library runs silently.
#pragma once

#include "Orbitersdk.h"

namespace soundlink {

// The vessel's link id, or -1 without a usable library; the reason goes to
// the log file.
int ConnectToSoundLibrary(OBJHANDLE vessel);
// `option` 1 to 24.
int SoundOption(int id, int option, int value);
int LoadWave(int id, int wave, const char *file, int mode);
int PlayWave(int id, int wave, int loop, int volume, int frequency);
int StopWave(int id, int wave);

// The directory that wave names are taken relative to; it must start with
// "Sound\_CustomVesselsSounds\". 1 when set, 0 (with a log line) otherwise.
int SetMyDefaultWaveDirectory(const char *directory);
// A wave's file name as the library gets it: the default directory (when
// set) and the name; empty for a null name. Valid until the next call.
const char *ComposeWaveName(const char *name);
// The library's version; without the export 3.5 if its configuration file
// is there, else 0.
float GetSoundLibraryVersion();

// Appends a message of one or two lines to "OrbiterSound_Log.txt" in the
// current directory, at most 101 messages per run.
void SoundLog(const char *first, const char *second);

} // namespace soundlink
