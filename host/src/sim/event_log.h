// The run's events as JSON Lines (--events): one object per line in the order
// they happened, each with "t" (the simulation time, from 0 at the start of
// the run) and "kind", then the fields of its kind:
//
//   message   vessel, text   the text of a vessel's message line changed
//   created   vessel, class  a vessel made during the run
//   deleted   vessel         a vessel deleted during the run
//   focus     vessel         the focus moved (null: no vessel left)
//   key       vessel, key, down
//                            a press or release reached the focus vessel;
//                            the key as a key script names it, with the
//                            modifiers held at its press
//   timeaccel value          the time acceleration changed
//   engine    vessel, level  the level of a vessel's main thruster group left
//                            or reached 0, or moved by more than
//                            kEngineStep since the last one written
//   navmode   vessel, mode, active
//                            a navigation mode (its number) went on or off
//   sound     vessel, wave, file, op, loop, volume
//                            the sound library loaded, played or stopped a
//                            wave on the link of `vessel` (the listener);
//                            file null when none is loaded, loop and volume
//                            null but for a play
//   crash     vessel, blast, wrecks
//                            a vessel crashed and left the wrecks named (a
//                            list); blast: they show an explosion
//   report    vessel, reportKind, text, lat, lng, alt
//                            a vessel's report (message 13) as the controller
//                            vessel received it: its kind, text, latitude and
//                            longitude [deg] and altitude above ground [m]
//   save      file           the scenario was written to `file` (--save-at)
//
// The log is kept in memory and written whole at the end, also when the run
// fails midway.
#pragma once

#include <array>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/world.h"

namespace hullhost::sim {

// The change of a main thruster group's level that makes an engine event.
constexpr double kEngineStep = 0.01;

class EventLog final : public WorldEvents {
  public:
    // Listens to `world` until destroyed.
    EventLog(World &world, std::string path);
    ~EventLog() override;
    EventLog(const EventLog &) = delete;
    EventLog &operator=(const EventLog &) = delete;

    // Looks at the levels of the main thruster groups; after each frame.
    void CheckEngines();
    // Writes the file (atomically); nothing without a path.
    void Write() const;
    // The run wrote its scenario to `file` as the user named it.
    void OnSaved(const std::string &file);
    // The events so far, as the file will hold them.
    const std::string &Text() const { return text_; }

    void OnMessage(const Vessel &v, const std::string &text) override;
    void OnCreated(const Vessel &v) override;
    void OnDeleted(const Vessel &v) override;
    void OnFocus(const Vessel *v) override;
    void OnKey(const Vessel &focus, DWORD key, bool down, const char *kstate) override;
    void OnTimeAccel(double value) override;
    void OnAttached(const Vessel &parent, const Vessel &child, const std::string &point) override;
    void OnDetached(const Vessel &parent, const Vessel &child, const std::string &point,
                    double velocity) override;
    void OnNavmode(const Vessel &v, int mode, bool active) override;
    void OnSound(const SoundEvent &e) override;
    void OnCrash(const Vessel &v, bool blast, const std::vector<const Vessel *> &wrecks) override;
    void OnReport(const std::string &vessel, int kind, const std::string &text, double lat, double lng,
                  double alt) override;

  private:
    using Field = std::pair<const char *, nlohmann::ordered_json>;
    void Add(std::string_view kind, std::initializer_list<Field> fields);

    struct EngineMark {
        const Vessel *vessel;
        double level; // last written
    };

    World &world_;
    std::string path_;
    std::string text_;
    std::vector<EngineMark> engines_;
    std::array<std::string, 256> pressed_; // each key's name at its press
};

} // namespace hullhost::sim
