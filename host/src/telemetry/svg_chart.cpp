#include "telemetry/svg_chart.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "core/xml_text.h"

namespace hullhost::telemetry {

namespace {

constexpr double kWidth = 960, kHeight = 540;
constexpr double kLeft = 80, kRight = 80, kTop = 40, kBottom = 60;
constexpr const char *kColours[] = {"#1f77b4", "#d62728", "#2ca02c", "#9467bd", "#ff7f0e", "#8c564b"};

struct Range {
    double lo = HUGE_VAL, hi = -HUGE_VAL;
    void Take(double v) {
        if (std::isfinite(v)) {
            lo = std::min(lo, v);
            hi = std::max(hi, v);
        }
    }
    void Settle() {
        if (lo > hi) {
            lo = 0.0, hi = 1.0;
        }
        if (hi - lo < 1e-9) {
            hi = lo + 1.0;
        }
    }
};

struct Plot {
    Range time, km, mass;
    double X(double t) const {
        return kLeft + (t - time.lo) / (time.hi - time.lo) * (kWidth - kLeft - kRight);
    }
    double Y(double v, const Range &r) const {
        return kHeight - kBottom - (v - r.lo) / (r.hi - r.lo) * (kHeight - kTop - kBottom);
    }
};

std::string Number(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", v);
    return text;
}

template <typename Value>
void Polyline(std::ostream &out, const Plot &p, const TelemetrySeries &s, const Range &r, Value value,
              const char *colour, const char *dash) {
    out << "<polyline fill=\"none\" stroke=\"" << colour << "\" stroke-width=\"1.5\"";
    if (dash[0]) {
        out << " stroke-dasharray=\"" << dash << "\"";
    }
    out << " points=\"";
    for (const TelemetrySample &t : s.samples) {
        const double x = p.X(t.time), y = p.Y(value(t), r);
        if (std::isfinite(x) && std::isfinite(y)) { // "nan" would spoil the whole line
            out << Number(x) << ',' << Number(y) << ' ';
        }
    }
    out << "\"/>\n";
}

void Axes(std::ostream &out, const Plot &p) {
    const double x0 = kLeft, x1 = kWidth - kRight, y0 = kHeight - kBottom, y1 = kTop;
    out << "<g stroke=\"#444\" fill=\"none\"><rect x=\"" << x0 << "\" y=\"" << y1 << "\" width=\"" << x1 - x0
        << "\" height=\"" << y0 - y1
        << "\"/></g>\n<g font-family=\"sans-serif\" font-size=\"12\" fill=\"#222\">\n";
    for (int k = 0; k <= 5; ++k) {
        const double f = k / 5.0;
        const double t = p.time.lo + f * (p.time.hi - p.time.lo);
        const double km = p.km.lo + f * (p.km.hi - p.km.lo), kg = p.mass.lo + f * (p.mass.hi - p.mass.lo);
        out << "<text x=\"" << Number(p.X(t)) << "\" y=\"" << y0 + 18 << "\" text-anchor=\"middle\">"
            << Number(t) << "</text>\n";
        out << "<text x=\"" << x0 - 6 << "\" y=\"" << Number(p.Y(km, p.km) + 4) << "\" text-anchor=\"end\">"
            << Number(km) << "</text>\n";
        out << "<text x=\"" << x1 + 6 << "\" y=\"" << Number(p.Y(kg, p.mass) + 4) << "\">" << Number(kg)
            << "</text>\n";
    }
    out << "<text x=\"" << (x0 + x1) / 2 << "\" y=\"" << kHeight - 20
        << "\" text-anchor=\"middle\">simulation time [s]</text>\n"
        << "<text x=\"20\" y=\"" << (y0 + y1) / 2 << "\" transform=\"rotate(-90 20 " << (y0 + y1) / 2
        << ")\" text-anchor=\"middle\">altitude, apogee (dashed), perigee (dotted) [km]</text>\n"
        << "<text x=\"" << kWidth - 20 << "\" y=\"" << (y0 + y1) / 2 << "\" transform=\"rotate(90 "
        << kWidth - 20 << ' ' << (y0 + y1) / 2
        << ")\" text-anchor=\"middle\">mass (thin) [kg]</text>\n</g>\n";
}

} // namespace

void WriteSvgChart(std::ostream &out, const std::vector<TelemetrySeries> &series) {
    Plot p;
    for (const TelemetrySeries &s : series) {
        for (const TelemetrySample &t : s.samples) {
            p.time.Take(t.time);
            p.km.Take(t.altitude / 1000.0);
            p.km.Take(t.perigeeAltitude / 1000.0);
            p.km.Take(t.apogeeAltitude / 1000.0);
            p.mass.Take(t.mass);
        }
    }
    p.time.Settle();
    p.km.Settle();
    p.mass.Settle();
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << kWidth << "\" height=\"" << kHeight
        << "\" viewBox=\"0 0 " << kWidth << ' ' << kHeight
        << "\">\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
    Axes(out, p);
    int index = 0;
    for (const TelemetrySeries &s : series) {
        const char *colour = kColours[index % 6];
        Polyline(
            out, p, s, p.km, [](const TelemetrySample &t) { return t.altitude / 1000.0; }, colour, "");
        Polyline(
            out, p, s, p.km, [](const TelemetrySample &t) { return t.apogeeAltitude / 1000.0; }, colour,
            "8 4");
        Polyline(
            out, p, s, p.km, [](const TelemetrySample &t) { return t.perigeeAltitude / 1000.0; }, colour,
            "2 3");
        out << "<g opacity=\"0.6\">";
        Polyline(
            out, p, s, p.mass, [](const TelemetrySample &t) { return t.mass; }, colour, "1 1");
        out << "</g>\n<text x=\"" << kLeft + 10 << "\" y=\"" << kTop + 16 + 16 * index << "\" fill=\""
            << colour << "\" font-family=\"sans-serif\" font-size=\"13\">" << EscapeXml(s.vessel)
            << "</text>\n";
        ++index;
    }
    out << "</svg>\n";
}

} // namespace hullhost::telemetry
