#include "telemetry/orbit_view.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "core/body.h"
#include "core/xml_text.h"
#include "physics/ephemeris.h"
#include "physics/kepler.h"

namespace hullhost::telemetry {

namespace {

constexpr double kSize = 800, kMargin = 40, kLegend = 24;
constexpr const char *kColours[] = {"#1f77b4", "#d62728", "#2ca02c", "#9467bd", "#ff7f0e", "#8c564b"};
constexpr int kMoonOrbitPoints = 360;

// The Moon's orbit plane, in right-handed coordinates (see Mirror): seen from
// the side its angular momentum points to, the Moon runs counter-clockwise
// from +u toward +w.
struct Plane {
    VECTOR3 u, w;
    double U(const VECTOR3 &p) const { return dotp(physics::Mirror(p), u); }
    double W(const VECTOR3 &p) const { return dotp(physics::Mirror(p), w); }
};

VECTOR3 Unit(const VECTOR3 &v) { return v / length(v); }

VECTOR3 MoonFromEarth(const Body &earth, const Body &moon, double t, VECTOR3 *vel = nullptr) {
    VECTOR3 ep, ev, mp, mv;
    physics::BodyStateAt(earth, t, ep, ev);
    physics::BodyStateAt(moon, t, mp, mv);
    if (vel)
        *vel = mv - ev;
    return mp - ep;
}

Plane MoonPlane(const Body &earth, const Body &moon, double t) {
    VECTOR3 v;
    const VECTOR3 r = physics::Mirror(MoonFromEarth(earth, moon, t, &v));
    const VECTOR3 h = Unit(crossp(r, physics::Mirror(v)));
    const VECTOR3 u = Unit(r);
    return {u, crossp(h, u)};
}

std::string Number(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", v);
    return text;
}

} // namespace

void WriteOrbitView(std::ostream &out, const std::vector<TelemetrySeries> &series, const Body &earth,
                    const Body &moon) {
    double t0 = HUGE_VAL, t1 = -HUGE_VAL;
    for (const TelemetrySeries &s : series)
        for (const TelemetrySample &p : s.samples) {
            t0 = std::min(t0, p.ephemerisTime);
            t1 = std::max(t1, p.ephemerisTime);
        }
    if (t0 > t1)
        t0 = t1 = 0.0;
    const Plane plane = MoonPlane(earth, moon, t0);

    // One scale for both axes, wide enough for the Moon's orbit and every path.
    double reach = 0.0;
    const double period = 2.0 * PI * std::sqrt(std::pow(moon.orbit.a, 3) / physics::OrbitalMu(moon));
    std::vector<VECTOR3> moonPath;
    for (int k = 0; k <= kMoonOrbitPoints; ++k)
        moonPath.push_back(MoonFromEarth(earth, moon, t0 + period * k / kMoonOrbitPoints));
    for (const VECTOR3 &p : moonPath)
        reach = std::max(reach, length(p));
    for (const TelemetrySeries &s : series)
        for (const TelemetrySample &p : s.samples)
            reach = std::max(reach, std::hypot(plane.U(p.earthPos), plane.W(p.earthPos)));
    const double scale = (kSize / 2 - kMargin) / reach; // pixels per metre
    const auto x = [&](const VECTOR3 &p) { return Number(kSize / 2 + plane.U(p) * scale); };
    const auto y = [&](const VECTOR3 &p) { return Number(kSize / 2 - plane.W(p) * scale); };
    const auto polyline = [&](const std::vector<VECTOR3> &points, const char *colour, const char *extra) {
        out << "<polyline fill=\"none\" stroke=\"" << colour << "\" " << extra << " points=\"";
        for (const VECTOR3 &p : points)
            out << x(p) << ',' << y(p) << ' ';
        out << "\"/>\n";
    };
    // `below` puts the label under the disc, so that two near marks stay legible.
    const auto disc = [&](const VECTOR3 &p, double radius, const char *colour, const std::string &label,
                          bool below) {
        out << "<circle cx=\"" << x(p) << "\" cy=\"" << y(p) << "\" r=\""
            << Number(std::max(radius * scale, 3.0)) << "\" fill=\"" << colour << "\"/>\n";
        // Labels stand on the side toward the middle, so that they stay inside.
        const bool right = plane.U(p) <= 0.0;
        if (!label.empty())
            out << "<text x=\"" << Number(kSize / 2 + plane.U(p) * scale + (right ? 8 : -8)) << "\" y=\""
                << Number(kSize / 2 - plane.W(p) * scale + (below ? 18 : -8)) << "\" text-anchor=\""
                << (right ? "start" : "end") << "\" font-size=\"12\">" << EscapeXml(label) << "</text>\n";
    };

    const double height = kSize + kLegend * static_cast<double>(series.size() + 1);
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << kSize << "\" height=\"" << Number(height)
        << "\" viewBox=\"0 0 " << kSize << ' ' << Number(height) << "\" font-family=\"sans-serif\">\n"
        << "<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n"
        << "<text x=\"" << kMargin << "\" y=\"24\" font-size=\"14\">Seen from above the Moon's orbit plane; "
        << "the frame is " << std::lround(2 * reach / 1e3) << " km across</text>\n";
    polyline(moonPath, "#999999", "stroke-dasharray=\"4 4\"");
    disc({0, 0, 0}, earth.radius, "#3a6fb0", "Earth", false);
    disc(MoonFromEarth(earth, moon, t0), moon.radius, "#bbbbbb", "Moon at start", true);
    disc(MoonFromEarth(earth, moon, t1), moon.radius, "#666666", "Moon at end", false);
    // The Moon where the first vessel passed nearest to it, among the samples.
    if (!series.empty() && !series.front().samples.empty()) {
        const TelemetrySample *nearest = nullptr;
        double best = HUGE_VAL;
        for (const TelemetrySample &p : series.front().samples) {
            const double d = length(p.earthPos - MoonFromEarth(earth, moon, p.ephemerisTime));
            if (d < best) {
                best = d;
                nearest = &p;
            }
        }
        disc(MoonFromEarth(earth, moon, nearest->ephemerisTime), moon.radius, "#444444",
             "Moon nearest to " + series.front().vessel, true);
    }
    for (std::size_t i = 0; i < series.size(); ++i) {
        std::vector<VECTOR3> path;
        for (const TelemetrySample &p : series[i].samples)
            path.push_back(p.earthPos);
        const char *colour = kColours[i % std::size(kColours)];
        polyline(path, colour, "stroke-width=\"1.5\"");
        const double row = kSize + kLegend * static_cast<double>(i + 1);
        out << "<line x1=\"" << kMargin << "\" y1=\"" << Number(row - 4) << "\" x2=\"" << kMargin + 30
            << "\" y2=\"" << Number(row - 4) << "\" stroke=\"" << colour << "\" stroke-width=\"3\"/>\n"
            << "<text x=\"" << kMargin + 40 << "\" y=\"" << Number(row) << "\" font-size=\"13\">"
            << EscapeXml(series[i].vessel) << "</text>\n";
    }
    out << "</svg>\n";
}

} // namespace hullhost::telemetry
