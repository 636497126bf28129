// VESSEL: the host's own scenario keys of a vessel - its state - read into a
// VESSELSTATUS2 and written back.
//
//   STATUS Orbiting <body> | STATUS Landed <body>
//   RPOS x y z         position relative to the body, global axes [m]
//   RVEL x y z         velocity relative to the body, global axes [m/s]
//   AROT x y z         orientation angles [deg]
//   VROT x y z         angular velocity, vessel frame [deg/s]
//   POS lng lat        landed place [deg]
//   HEADING hdg        landed heading [deg]
//   ELEMENTS a e i theta omegab L
//                      osculating elements in the body's equatorial frame at
//                      the scenario's date [m, deg]; turned into RPOS and RVEL
#include <cstdio>
#include <cstring>
#include <string>
#include <strings.h>

#include "VesselAPI.h"
#include "core/body.h"
#include "core/vessel.h"
#include "core/world.h"
#include "physics/flight_model.h"
#include "physics/kepler.h"

using hullhost::Body;
using hullhost::World;

namespace {

bool KeyIs(const char *line, const char *key, const char *&rest) {
    const size_t n = std::strlen(key);
    if (strncasecmp(line, key, n) != 0 || (line[n] != '\0' && line[n] != ' ' && line[n] != '\t')) {
        return false;
    }
    rest = line + n;
    return true;
}

bool ReadVector(const char *text, VECTOR3 &v, double scale) {
    VECTOR3 r;
    if (std::sscanf(text, "%lf %lf %lf", &r.x, &r.y, &r.z) != 3) {
        return false;
    }
    v = r * scale;
    return true;
}

void ReadStatus(const World &world, const char *text, VESSELSTATUS2 &st) {
    char kind[32] = {}, body[64] = {};
    if (std::sscanf(text, "%31s %63s", kind, body) < 1) {
        return;
    }
    st.status = strcasecmp(kind, "Landed") == 0 ? 1 : 0;
    if (body[0]) {
        if (Body *b = world.FindBody(body)) {
            st.rbody = b->Handle();
        }
    }
}

void ReadElements(const World &world, const char *text, VESSELSTATUS2 &st) {
    ELEMENTS el{};
    if (std::sscanf(text, "%lf %lf %lf %lf %lf %lf", &el.a, &el.e, &el.i, &el.theta, &el.omegab, &el.L) !=
        6) {
        return;
    }
    el.i *= RAD;
    el.theta *= RAD;
    el.omegab *= RAD;
    el.L *= RAD;
    const Body *body = world.BodyFromHandle(st.rbody);
    if (!body) {
        body = world.Earth();
        st.rbody = body ? const_cast<Body *>(body)->Handle() : nullptr;
    }
    if (!body) {
        return;
    }
    VECTOR3 r, v;
    hullhost::physics::StateFromElements(el, body->gm, 0.0, r, v);
    st.rpos = mul(body->equatorial, r);
    st.rvel = mul(body->equatorial, v);
    st.status = 0;
}

std::string Format(const char *format, double a, double b, double c) {
    char text[128];
    std::snprintf(text, sizeof text, format, a, b, c);
    return text;
}

} // namespace

void VESSEL::ParseScenarioLineEx(char *line, void *status) const {
    auto *st = static_cast<VESSELSTATUS2 *>(status);
    if (!line || !st) {
        return;
    }
    const World &world = World::Current();
    while (*line == ' ' || *line == '\t') {
        ++line;
    }
    const char *rest = nullptr;
    if (KeyIs(line, "STATUS", rest)) {
        ReadStatus(world, rest, *st);
    } else if (KeyIs(line, "RPOS", rest)) {
        ReadVector(rest, st->rpos, 1.0);
    } else if (KeyIs(line, "RVEL", rest)) {
        ReadVector(rest, st->rvel, 1.0);
    } else if (KeyIs(line, "AROT", rest)) {
        ReadVector(rest, st->arot, RAD);
    } else if (KeyIs(line, "VROT", rest)) {
        ReadVector(rest, st->vrot, RAD);
    } else if (KeyIs(line, "POS", rest)) {
        double lng, lat;
        if (std::sscanf(rest, "%lf %lf", &lng, &lat) == 2) {
            st->surf_lng = lng * RAD;
            st->surf_lat = lat * RAD;
        }
    } else if (KeyIs(line, "HEADING", rest)) {
        double hdg;
        if (std::sscanf(rest, "%lf", &hdg) == 1) {
            st->surf_hdg = hdg * RAD;
        }
    } else if (KeyIs(line, "ELEMENTS", rest)) {
        ReadElements(world, rest, *st);
    }
}

void VESSEL::SaveDefaultState(FILEHANDLE scn) const {
    const World &world = World::Current();
    VESSELSTATUS2 st{};
    st.version = 2;
    hullhost::physics::GetStatus2(world, *vessel, st);
    const Body *body = world.BodyFromHandle(st.rbody);
    const std::string bodyName = body ? body->Name() : "Earth";
    oapiWriteScenario_string(scn, "STATUS", ((st.status == 1 ? "Landed " : "Orbiting ") + bodyName).c_str());
    if (st.status == 1) {
        char text[96];
        std::snprintf(text, sizeof text, "%.15g %.15g", st.surf_lng * DEG, st.surf_lat * DEG);
        oapiWriteScenario_string(scn, "POS", text);
        std::snprintf(text, sizeof text, "%.15g", st.surf_hdg * DEG);
        oapiWriteScenario_string(scn, "HEADING", text);
        return;
    }
    oapiWriteScenario_string(scn, "RPOS",
                             Format("%.17g %.17g %.17g", st.rpos.x, st.rpos.y, st.rpos.z).c_str());
    oapiWriteScenario_string(scn, "RVEL",
                             Format("%.17g %.17g %.17g", st.rvel.x, st.rvel.y, st.rvel.z).c_str());
    const VECTOR3 arot = st.arot * DEG, vrot = st.vrot * DEG;
    oapiWriteScenario_string(scn, "AROT", Format("%.15g %.15g %.15g", arot.x, arot.y, arot.z).c_str());
    oapiWriteScenario_string(scn, "VROT", Format("%.15g %.15g %.15g", vrot.x, vrot.y, vrot.z).c_str());
}
