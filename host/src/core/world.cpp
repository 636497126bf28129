#include "world.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <stdexcept>

#include "host_controls.h"
#include "line_file.h"
#include "physics/flight_model.h"
#include "physics/navmode_pilot.h"
#include "visual/visual_lifecycle.h"

namespace hullhost {

namespace {
World *current = nullptr;
// The real time [s] from which on the warp offers its raises: a frame that
// begins then or later.
constexpr double kFirstWarpPress = 1.0;
} // namespace

World::World(std::string root) : modules(root), root_(std::move(root)) {
    if (current)
        throw std::logic_error("a world is already current");
    current = this;
    physics::InitSolarSystem(*this);
}

World::~World() {
    events = nullptr; // the end of the world is no event of its run
    // Modules end their vessels before the libraries go.
    while (!vessels_.empty())
        DeleteNow(*vessels_.back());
    current = nullptr;
}

World &World::Current() {
    if (!current)
        throw std::logic_error("no world is current");
    return *current;
}

World *World::CurrentOrNull() { return current; }

std::string World::LocalPath(const std::string &hostPath) const {
    std::string local = hostPath;
    std::replace(local.begin(), local.end(), '\\', '/');
    if (!local.empty() && local.front() == '/')
        return local;
    return root_ + "/" + local;
}

Body *World::FindBody(const std::string &name) const {
    for (auto &b : bodies)
        if (b->Name() == name)
            return b.get();
    return nullptr;
}

Vessel *World::FindVessel(const std::string &name) const {
    for (auto &v : vessels_)
        if (v->Name() == name)
            return v.get();
    return nullptr;
}

Object *World::FindObject(const std::string &name) const {
    if (Vessel *v = FindVessel(name))
        return v;
    return FindBody(name);
}

Body *World::BodyFromHandle(OBJHANDLE h) const {
    for (auto &b : bodies)
        if (b->Handle() == h)
            return b.get();
    return nullptr;
}

bool World::IsVessel(OBJHANDLE h) const {
    if (!h)
        return false;
    auto *o = reinterpret_cast<Object *>(h);
    return std::any_of(vessels_.begin(), vessels_.end(), [o](auto &v) { return v.get() == o; });
}

bool World::IsObject(OBJHANDLE h) const {
    if (!h)
        return false;
    auto *o = reinterpret_cast<Object *>(h);
    return IsVessel(h) || std::any_of(bodies.begin(), bodies.end(), [o](auto &b) { return b.get() == o; });
}

Vessel &World::ConstructVessel(const std::string &name, const std::string &className) {
    const Module &module = modules.ForClass(className);
    vessels_.push_back(std::make_unique<Vessel>(name, className, &module));
    Vessel &v = *vessels_.back();
    v.ref = Earth();
    {
        CallbackScope scope(*this, &v);
        v.iface = module.Init(v.Handle(), 1);
    }
    if (!v.iface || v.iface->Version() < 1) {
        v.iface = nullptr;
        DeleteNow(v);
        throw std::runtime_error("the module of class " + className + " made no vessel");
    }
    if (seed)
        std::srand(*seed);
    LineFile classFile = LineFile::ReadLocal(modules.ClassFile(className));
    CallbackScope scope(*this, &v);
    static_cast<VESSEL2 *>(v.iface)->clbkSetClassCaps(classFile.Handle());
    return v;
}

namespace {
VESSELSTATUS2 DefaultStatus(Body *earth) {
    VESSELSTATUS2 st{};
    st.version = 2;
    st.rbody = earth ? earth->Handle() : nullptr;
    return st;
}
} // namespace

void World::LoadVesselState(Vessel &v, const std::vector<std::string> &lines) {
    LineFile reader(lines);
    VESSELSTATUS2 status = DefaultStatus(Earth());
    {
        CallbackScope scope(*this, &v);
        static_cast<VESSEL2 *>(v.iface)->clbkLoadStateEx(reader.Handle(), &status);
    }
    physics::SetStatus2(*this, v, status);
}

Vessel &World::CreateVessel(const std::string &name, const std::string &className,
                            const VESSELSTATUS2 &state) {
    Vessel &v = ConstructVessel(name, className);
    v.creator = running_;
    v.creatorCall = call_;
    if (events)
        events->OnCreated(v);
    physics::SetStatus2(*this, v, state);
    PostCreate(v);
    return v;
}

Vessel &World::CreateVessel(const std::string &name, const std::string &className,
                            const VESSELSTATUS &state) {
    Vessel &v = ConstructVessel(name, className);
    v.creator = running_;
    v.creatorCall = call_;
    if (events)
        events->OnCreated(v);
    physics::SetStatus(*this, v, state);
    PostCreate(v);
    return v;
}

Vessel &World::AddBareVessel(const std::string &name) {
    vessels_.push_back(std::make_unique<Vessel>(name, "", nullptr));
    Vessel &v = *vessels_.back();
    v.ref = Earth();
    return v;
}

void World::PostCreate(Vessel &v) {
    {
        CallbackScope scope(*this, &v);
        static_cast<VESSEL2 *>(v.iface)->clbkPostCreation();
    }
    CreateVisual(*this, v);
    if (callbackDepth_ == 0)
        FlushDeletions();
}

void World::NoteSelfDeletion(Vessel &v) {
    std::vector<const Vessel *> wrecks;
    bool blast = false;
    for (const auto &other : vessels_) {
        if (other->creator != &v || other->creatorCall != call_)
            continue;
        wrecks.push_back(other.get());
        for (const auto &stream : other->streams)
            blast = blast || (stream->level && *stream->level > 0.0);
    }
    if (!wrecks.empty())
        events->OnCrash(v, blast, wrecks);
}

void World::RequestDelete(Vessel &v) {
    if (events && &v == running_ && call_ != 0 &&
        std::find(pendingDelete_.begin(), pendingDelete_.end(), &v) == pendingDelete_.end())
        NoteSelfDeletion(v);
    if (std::find(pendingDelete_.begin(), pendingDelete_.end(), &v) == pendingDelete_.end())
        pendingDelete_.push_back(&v);
    if (callbackDepth_ == 0)
        FlushDeletions();
}

void World::SetFocus(Vessel *v) {
    if (v == focus || (v && !v->focusEnabled))
        return;
    Vessel *old = focus;
    focus = v;
    if (events)
        events->OnFocus(v);
    CallbackScope scope(*this);
    if (old && old->iface) {
        CallbackScope running(*this, old);
        static_cast<VESSEL2 *>(old->iface)->clbkFocusChanged(false, v ? v->Handle() : nullptr, old->Handle());
    }
    if (v && v->iface) {
        CallbackScope running(*this, v);
        static_cast<VESSEL2 *>(v->iface)->clbkFocusChanged(true, v->Handle(), old ? old->Handle() : nullptr);
        // The cockpit view is generic: the new focus vessel builds it.
        if (camera.cockpitMode == COCKPIT_GENERIC)
            static_cast<VESSEL2 *>(v->iface)->clbkLoadGenericCockpit();
    }
}

void World::SetTimeAcceleration(double value) {
    offer_ = 0.0;
    if (value == accel)
        return;
    accel = value;
    if (events)
        events->OnTimeAccel(value);
}

void World::SetAnnotationText(Annotation &note, const char *text) {
    const std::string_view now = text ? text : "";
    if (note.text == now)
        return;
    note.text = now;
    if (events && note.messageLine && note.owner)
        events->OnMessage(*note.owner, note.text);
}

void World::DeliverKeys() {
    std::memcpy(hostKeysBefore_, hostKeys_, sizeof hostKeys_);
    std::memset(hostKeys_, 0, sizeof hostKeys_);
    std::memcpy(vesselKeys_, keyState, sizeof vesselKeys_);
    // Without a focus vessel nobody hears the keys. A key may move the focus:
    // the next one goes to the new focus vessel.
    while (!bufferedKeys.empty()) {
        const KeyEvent e = bufferedKeys.front();
        bufferedKeys.pop_front();
        Vessel *v = focus;
        if (!v || !v->iface)
            continue;
        if (events)
            events->OnKey(*v, e.key, e.down, vesselKeys_);
        int answer = 0;
        {
            CallbackScope running(*this, v);
            answer = static_cast<VESSEL2 *>(v->iface)->clbkConsumeBufferedKey(e.key, e.down, vesselKeys_);
        }
        consumedPresses_.set(e.key & 0xFF, e.down && answer != 0);
    }
    Vessel *v = focus;
    if (!v || !v->iface)
        return;
    int answer = 0;
    {
        CallbackScope running(*this, v);
        answer = static_cast<VESSEL2 *>(v->iface)->clbkConsumeDirectKey(vesselKeys_);
    }
    if (answer != 0 || focus != v)
        return;
    for (size_t k = 0; k < sizeof hostKeys_; ++k)
        if (!consumedPresses_.test(k))
            hostKeys_[k] = vesselKeys_[k];
    manualFiring_ = ActOnHostKeys(*this, *v, hostKeys_, hostKeysBefore_, sysdt);
}

void World::Frame(double realDt) {
    sysdt = realDt;
    syst += realDt;
    simdt = realDt * accel;
    simt += simdt;
    {
        CallbackScope scope(*this);
        DeliverKeys();
        const bool pressable = syst - realDt > kFirstWarpPress - 1e-9;
        offer_ = warp > accel && pressable ? std::min(warp, accel * 10.0) : 0.0;
        // Vessels created during the walk take their first step next frame.
        const size_t count = vessels_.size();
        for (size_t i = 0; i < count && i < vessels_.size(); ++i) {
            Vessel *v = vessels_[i].get();
            if (v->iface) {
                CallbackScope running(*this, v);
                static_cast<VESSEL2 *>(v->iface)->clbkPreStep(simt, simdt, Mjd());
            }
        }
        // No vessel set the acceleration: the raise holds from the next frame.
        if (offer_ > 0.0)
            SetTimeAcceleration(offer_);
    }
    FlushDeletions();
    // The host flies the navigation modes that are on, with the attitude
    // thrusters, for this frame only.
    for (const auto &v : vessels_)
        manualFiring_ = physics::FlyNavmodes(*this, *v, simdt) || manualFiring_;
    physics::Advance(*this, simdt);
    if (manualFiring_) {
        EndManualFiring(*this);
        manualFiring_ = false;
    }
    {
        CallbackScope scope(*this);
        const size_t count = vessels_.size();
        for (size_t i = 0; i < count && i < vessels_.size(); ++i) {
            Vessel *v = vessels_[i].get();
            if (v->iface) {
                CallbackScope running(*this, v);
                static_cast<VESSEL2 *>(v->iface)->clbkPostStep(simt, simdt, Mjd());
            }
        }
    }
    FlushDeletions();
}

void World::WriteLog(const std::string &line) {
    log.push_back(line);
    if (logFile.is_open())
        logFile << line << std::endl; // kept whole if the run fails later
}

void World::FlushDeletions() {
    while (!pendingDelete_.empty()) {
        Vessel *v = pendingDelete_.front();
        pendingDelete_.erase(pendingDelete_.begin());
        DeleteNow(*v);
    }
}

void World::DeleteNow(Vessel &v) {
    if (events && v.iface)
        events->OnDeleted(v);
    // Loose every attachment that joins the vessel to another.
    for (auto &other : vessels_) {
        for (auto &a : other->attachments) {
            if (a->attached == &v) {
                a->attached = nullptr;
                a->counterpart = nullptr;
            }
        }
        if (other->parent == &v)
            other->parent = nullptr;
    }
    if (focus == &v) {
        focus = nullptr;
        for (auto &other : vessels_)
            if (other.get() != &v && other->focusEnabled) {
                focus = other.get();
                break;
            }
        if (events)
            events->OnFocus(focus);
    }
    DestroyVisual(*this, v);
    if (v.iface) {
        CallbackScope scope(*this, &v);
        v.GetModule()->Exit(v.iface);
        v.iface = nullptr;
    }
    for (auto &note : annotations)
        if (note->owner == &v)
            note->owner = nullptr;
    auto it = std::find_if(vessels_.begin(), vessels_.end(), [&v](auto &p) { return p.get() == &v; });
    if (it != vessels_.end())
        vessels_.erase(it);
}

CallbackScope::~CallbackScope() {
    --world_.callbackDepth_;
    world_.running_ = outer_;
    world_.call_ = outerCall_;
}

} // namespace hullhost
