// The fleet controller: a framework vessel of its own class that oversees
// the others in a scenario. It answers their peer messages (its handle, its
// shared block, the look-ups of its configuration), tells them where the
// user's focus is, and keeps what they report for a mission log and flight
// tracks.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <string>
#include <vector>

#include "controller/shared_block.h"
#include "frame/hullkit.h"

// What the controller heard from a vessel.
enum class FleetEventKind : uint8_t {
    Report,     // message 13: a VesselReport
    Created,    // message 10: a vessel was created
    Crash,      // message 2: a vessel ended in a crash
    Impact,     // message 15: a landing, impact or overpressure
    PlotColour, // message 16: the vessel's track colour changed
    Alert,      // message 4: a vessel in trouble
};

struct FleetEvent {
    FleetEventKind kind = FleetEventKind::Report;
    double simTime = 0.0;                   // of the report, else of the arrival [s]
    std::string vessel;                     // the sender's name; for Created the new vessel's
    std::string text;                       // the report's text; for Created the creator's name
    int32_t value = 0;                      // the report's kind, or the colour code
    uint32_t object = 0;                    // the report's object field
    double latitude = 0.0, longitude = 0.0; // of the report [deg]
    double altitude = 0.0;                  // of the report, above ground [m]
};

class FleetController : public HULLKIT {
  public:
    FleetController(OBJHANDLE hVessel, int flightModel);

    void clbkPostCreation() override;
    void clbkPreStep(double simt, double simdt, double mjd) override;
    void clbkPostStep(double simt, double simdt, double mjd) override;
    void clbkSaveState(FILEHANDLE scn) override;
    void ParseScenarioLine(char *line, void *status) override;
    void clbkConfigLoaded() override;
    intptr_t OnPeerMessage(OBJHANDLE sender, int code, intptr_t argument) override;

    // Tells the framework vessels that lost and gained the host's focus
    // since the last call.
    void WatchFocus();

    // The answers to messages 7, 8 and 9 for a sender: null or 0 when the
    // configuration has none.
    const char *TextFor(OBJHANDLE sender, const char *name) const;
    const double *DoubleFor(OBJHANDLE sender, const char *name) const;
    int IntegerFor(OBJHANDLE sender, const char *name) const;

    SharedBlock block;
    // Everything heard, in order of arrival.
    std::vector<FleetEvent> events;

  private:
    template <class T>
    const T *Find(const std::map<std::string, T, std::less<>> &table, OBJHANDLE sender,
                  const char *name) const;
    void ReadLookUps();
    void Record(FleetEventKind kind, OBJHANDLE sender, intptr_t argument);
    void OnAlert(OBJHANDLE sender);

    // The look-up answers by name, a name qualified as "vessel:name" for
    // one vessel only. The answers live in stores that only grow, so an
    // answer once handed out stays valid for the controller's life.
    std::map<std::string, const char *, std::less<>> texts;
    std::map<std::string, const double *, std::less<>> doubles;
    std::map<std::string, int, std::less<>> integers;
    std::deque<std::string> textStore;
    std::deque<double> doubleStore;

    bool keepTimeAccel = false;
    // The text of the scenario's TARGETS line; empty without one.
    std::string scenarioTargets;
    // The vessel whose alert is followed, and until when [s].
    OBJHANDLE alertVessel = nullptr;
    double alertUntil = 0.0;
    OBJHANDLE focusSeen = nullptr;
};
