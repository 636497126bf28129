// Reading of one configuration file into its plain keys and its sections.
#pragma once

#include <string>
#include <string_view>

#include "config/config_table.h"

// Reads the file at `path` (host form, with backslashes) into `plain` and
// `sections`. An empty path does nothing; a file that can't be opened reads as
// an empty file.
void ReadConfigFile(std::string path, ConfigTable &plain, SectionTable &sections);

// Does the work of ReadConfigFile on the file's contents. Lines end at a line
// feed, with an optional carriage return before it; a line longer than
// kMaxLineLength is cut to that length.
void ParseConfigText(std::string_view text, ConfigTable &plain, SectionTable &sections);
