// The host's scenario file: a description, the environment (the date), the
// focus vessel, and one block per vessel between BEGIN_SHIPS and END_SHIPS.
//
//   BEGIN_DESC            free text, kept verbatim
//   END_DESC
//   BEGIN_ENVIRONMENT
//     Date MJD 51544.5
//     TimeAccel 10        the time acceleration a run left off at; other
//                         lines are kept verbatim
//   END_ENVIRONMENT
//   BEGIN_FOCUS
//     Ship name
//   END_FOCUS
//   BEGIN_SHIPS
//   name:Folder\Class
//     the vessel's lines
//   END
//   END_SHIPS
//
// Lines starting with ';' are comments, outside the description. Other
// BEGIN_X ... END_X sections are kept verbatim and written back.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace hullhost {

// A scenario that can't be read, with a message that names the place.
class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct VesselBlock {
    std::string name;
    std::string className; // "Folder\Class"
    std::vector<std::string> lines;
    bool operator==(const VesselBlock &) const = default;
};

// A section of the file that the host doesn't read, such as BEGIN_CAMERA.
struct OtherSection {
    std::string name; // the word after BEGIN_
    std::vector<std::string> lines;
    bool operator==(const OtherSection &) const = default;
};

struct ScenarioFile {
    std::vector<std::string> description;
    std::optional<double> mjd;            // Date MJD
    std::optional<double> timeAccel;      // TimeAccel, above 0
    std::vector<std::string> environment; // the other environment lines
    std::string focus;                    // empty: the first vessel
    std::vector<OtherSection> otherSections;
    std::vector<VesselBlock> vessels;

    bool operator==(const ScenarioFile &) const = default;

    // Reads a scenario's text. `source` names it in error messages. Throws
    // ScenarioError for a malformed scenario: no vessels, a ship line without
    // ':', a vessel block without END, an unclosed section, a bad date or
    // time acceleration, a vessel name given twice, a focus that names no
    // vessel.
    static ScenarioFile Parse(std::string_view text, const std::string &source = "scenario");
    // Reads a scenario file. Throws ScenarioError when it can't be read.
    static ScenarioFile Read(const std::string &path);

    // The scenario's text in the host's format; Parse reads it back equal.
    std::string Text() const;
};

} // namespace hullhost
