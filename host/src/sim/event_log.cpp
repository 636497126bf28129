#include "event_log.h"

#include <algorithm>
#include <cmath>

#include "key_names.h"
#include "scenario/atomic_write.h"

namespace hullhost::sim {

EventLog::EventLog(World &world, std::string path) : world_(world), path_(std::move(path)) {
    world_.events = this;
}

EventLog::~EventLog() {
    if (world_.events == this)
        world_.events = nullptr;
}

void EventLog::Add(std::string_view kind, std::initializer_list<Field> fields) {
    nlohmann::ordered_json event = {{"t", world_.simt}, {"kind", kind}};
    for (const auto &[name, value] : fields)
        event[name] = value;
    text_ += event.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
    text_ += '\n';
}

void EventLog::Write() const {
    if (!path_.empty())
        WriteFileAtomically(path_, text_);
}

void EventLog::CheckEngines() {
    for (const auto &v : world_.Vessels()) {
        const ThrusterGroup *main = v->GroupOfType(THGROUP_MAIN);
        const double level = main ? v->GroupLevel(*main) : 0.0;
        auto mark = std::find_if(engines_.begin(), engines_.end(),
                                 [&v](const EngineMark &m) { return m.vessel == v.get(); });
        const double last = mark == engines_.end() ? 0.0 : mark->level;
        if ((level == 0.0) == (last == 0.0) && !(std::abs(level - last) > kEngineStep))
            continue;
        Add("engine", {{"vessel", v->Name()}, {"level", level}});
        if (mark == engines_.end())
            engines_.push_back({v.get(), level});
        else
            mark->level = level;
    }
}

void EventLog::OnMessage(const Vessel &v, const std::string &text) {
    Add("message", {{"vessel", v.Name()}, {"text", text}});
}

void EventLog::OnCreated(const Vessel &v) {
    Add("created", {{"vessel", v.Name()}, {"class", v.ClassName()}});
}

void EventLog::OnDeleted(const Vessel &v) {
    Add("deleted", {{"vessel", v.Name()}});
    std::erase_if(engines_, [&v](const EngineMark &m) { return m.vessel == &v; });
}

void EventLog::OnFocus(const Vessel *v) {
    Add("focus", {{"vessel", v ? nlohmann::ordered_json(v->Name()) : nlohmann::ordered_json(nullptr)}});
}

void EventLog::OnKey(const Vessel &focus, DWORD key, bool down, const char *kstate) {
    // A release carries the name of its press, modifiers and all.
    std::string &name = pressed_[key & 0xFF];
    if (down || name.empty())
        name = KeyNameWithModifiers(key, kstate);
    Add("key", {{"vessel", focus.Name()}, {"key", name}, {"down", down}});
    if (!down)
        name.clear();
}

void EventLog::OnTimeAccel(double value) { Add("timeaccel", {{"value", value}}); }

void EventLog::OnSaved(const std::string &file) { Add("save", {{"file", file}}); }

void EventLog::OnAttached(const Vessel &parent, const Vessel &child, const std::string &point) {
    Add("attached", {{"parent", parent.Name()}, {"child", child.Name()}, {"point", point}});
}

void EventLog::OnDetached(const Vessel &parent, const Vessel &child, const std::string &point,
                          double velocity) {
    Add("detached",
        {{"parent", parent.Name()}, {"child", child.Name()}, {"point", point}, {"velocity", velocity}});
}

void EventLog::OnNavmode(const Vessel &v, int mode, bool active) {
    Add("navmode", {{"vessel", v.Name()}, {"mode", mode}, {"active", active}});
}

void EventLog::OnSound(const SoundEvent &e) {
    using nlohmann::ordered_json;
    const bool play = std::string_view(e.op) == "play";
    Add("sound", {{"vessel", e.listener ? ordered_json(e.listener->Name()) : ordered_json(nullptr)},
                  {"wave", e.wave},
                  {"file", e.file ? ordered_json(e.file) : ordered_json(nullptr)},
                  {"op", e.op},
                  {"loop", play ? ordered_json(e.loop) : ordered_json(nullptr)},
                  {"volume", play ? ordered_json(e.volume) : ordered_json(nullptr)}});
}

void EventLog::OnCrash(const Vessel &v, bool blast, const std::vector<const Vessel *> &wrecks) {
    nlohmann::ordered_json names = nlohmann::ordered_json::array();
    for (const Vessel *w : wrecks)
        names.push_back(w->Name());
    Add("crash", {{"vessel", v.Name()}, {"blast", blast}, {"wrecks", names}});
}

void EventLog::OnReport(const std::string &vessel, int kind, const std::string &text, double lat, double lng,
                        double alt) {
    Add("report",
        {{"vessel", vessel}, {"reportKind", kind}, {"text", text}, {"lat", lat}, {"lng", lng}, {"alt", alt}});
}

} // namespace hullhost::sim
