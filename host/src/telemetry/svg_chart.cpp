#include "telemetry/svg_chart.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>

#include "core/xml_text.h"

namespace hullhost::telemetry {

namespace {

constexpr double kWidth = 960, kHeight = 540;
constexpr double kLeft = 80, kRight = 80, kTop = 40, kBottom = 60;
constexpr const char *kColours[] = {"#1f77b4", "#d62728", "#2ca02c", "#9467bd", "#ff7f0e", "#8c564b"};

// The smallest and largest finite value seen.
struct Range {
    double lo = HUGE_VAL, hi = -HUGE_VAL;
    void Take(double v) {
        if (std::abs(v) < 1e300) { // a finite value whose span with another is finite too
            lo = std::min(lo, v);
            hi = std::max(hi, v);
        }
    }
};

// An axis labelled with round values: ticks every `step`, a step of 1, 2, 2.5
// or 5 times a power of ten, from the tick at or below the smallest value to
// the one at or above the largest, so that both ends carry a label.
struct Axis {
    double lo = 0.0, hi = 1.0;
    double step = 0.2;
    long long first = 0; // tick k is at (first + k) * step
    int ticks = 6;
    int decimals = 1;        // enough that neighbouring labels differ
    bool scientific = false; // for values too large or too small to write out

    // Zero is the integer 0 times the step: never "-0".
    double Tick(int k) const { return static_cast<double>(first + k) * step; }

    std::string Label(int k) const {
        const double v = Tick(k);
        char text[48];
        if (scientific && v == 0.0)
            return "0";
        std::snprintf(text, sizeof text, scientific ? "%.*e" : "%.*f", decimals, v);
        return text;
    }
};

constexpr int kMaxIntervals = 8;

// The axis of `step` = mantissa * 10^exponent that spans the values, or none
// if that takes more than kMaxIntervals.
std::optional<Axis> AxisOfStep(const Range &r, double mantissa, int exponent) {
    const double step = mantissa * std::pow(10.0, exponent);
    // A value a rounding error past a tick belongs to that tick.
    const double first = std::floor(r.lo / step + 1e-9), last = std::ceil(r.hi / step - 1e-9);
    if (last - first > kMaxIntervals)
        return std::nullopt;
    Axis a;
    a.step = step;
    a.first = static_cast<long long>(first);
    a.ticks = static_cast<int>(last - first) + 1;
    a.lo = first * step, a.hi = last * step;
    const int half = mantissa == 2.5 ? 1 : 0; // 2.5 steps need one digit more
    const double magnitude = std::max(std::abs(a.lo), std::abs(a.hi));
    a.scientific = magnitude >= 1e7 || magnitude < 1e-4;
    // In scientific notation, the digits from the largest tick's down to the step's.
    a.decimals = std::max(0, -exponent + half +
                                 (a.scientific ? static_cast<int>(std::floor(std::log10(magnitude))) : 0));
    return a;
}

Axis NiceAxis(Range r) {
    if (r.lo > r.hi) { // no data
        r.lo = 0.0, r.hi = 1.0;
    }
    const double magnitude = std::max(std::abs(r.lo), std::abs(r.hi));
    if (r.hi - r.lo <= magnitude * 1e-9) {
        // A flat series (the mass of a coasting stage): 5 % of its value on
        // either side, or one unit about zero.
        const double half = magnitude > 0.0 ? magnitude * 0.05 : 1.0;
        r.lo -= half, r.hi += half;
    }
    // The smallest round step that spans the values in at most kMaxIntervals.
    for (int exponent = static_cast<int>(std::floor(std::log10((r.hi - r.lo) / kMaxIntervals)));; ++exponent)
        for (double mantissa : {1.0, 2.0, 2.5, 5.0})
            if (std::optional<Axis> a = AxisOfStep(r, mantissa, exponent))
                return *a;
}

struct Plot {
    Axis time, km, mass;
    double X(double t) const {
        return kLeft + (t - time.lo) / (time.hi - time.lo) * (kWidth - kLeft - kRight);
    }
    double Y(double v, const Axis &a) const {
        return kHeight - kBottom - (v - a.lo) / (a.hi - a.lo) * (kHeight - kTop - kBottom);
    }
};

std::string Number(double v) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4g", v);
    return text;
}

template <typename Value>
void Polyline(std::ostream &out, const Plot &p, const TelemetrySeries &s, const Axis &a, Value value,
              const char *colour, const char *dash) {
    out << "<polyline fill=\"none\" stroke=\"" << colour << "\" stroke-width=\"1.5\"";
    if (dash[0]) {
        out << " stroke-dasharray=\"" << dash << "\"";
    }
    out << " points=\"";
    for (const TelemetrySample &t : s.samples) {
        const double x = p.X(t.time), y = p.Y(value(t), a);
        if (std::isfinite(x) && std::isfinite(y)) { // "nan" would spoil the whole line
            out << Number(x) << ',' << Number(y) << ' ';
        }
    }
    out << "\"/>\n";
}

void Axes(std::ostream &out, const Plot &p) {
    const double x0 = kLeft, x1 = kWidth - kRight, y0 = kHeight - kBottom, y1 = kTop;
    out << "<g stroke=\"#444\" fill=\"none\"><rect x=\"" << x0 << "\" y=\"" << y1 << "\" width=\"" << x1 - x0
        << "\" height=\"" << y0 - y1 << "\"/>\n";
    // Tick marks inside the frame, on the axis that labels them.
    for (int k = 0; k < p.time.ticks; ++k) {
        const std::string x = Number(p.X(p.time.Tick(k)));
        out << "<line x1=\"" << x << "\" y1=\"" << y0 << "\" x2=\"" << x << "\" y2=\"" << y0 - 5 << "\"/>\n";
    }
    for (int k = 0; k < p.km.ticks; ++k) {
        const std::string y = Number(p.Y(p.km.Tick(k), p.km));
        out << "<line x1=\"" << x0 << "\" y1=\"" << y << "\" x2=\"" << x0 + 5 << "\" y2=\"" << y << "\"/>\n";
    }
    for (int k = 0; k < p.mass.ticks; ++k) {
        const std::string y = Number(p.Y(p.mass.Tick(k), p.mass));
        out << "<line x1=\"" << x1 - 5 << "\" y1=\"" << y << "\" x2=\"" << x1 << "\" y2=\"" << y << "\"/>\n";
    }
    out << "</g>\n<g font-family=\"sans-serif\" font-size=\"12\" fill=\"#222\">\n";
    // Each label's class names its axis.
    for (int k = 0; k < p.time.ticks; ++k)
        out << "<text class=\"time-axis\" x=\"" << Number(p.X(p.time.Tick(k))) << "\" y=\"" << y0 + 18
            << "\" text-anchor=\"middle\">" << p.time.Label(k) << "</text>\n";
    for (int k = 0; k < p.km.ticks; ++k)
        out << "<text class=\"km-axis\" x=\"" << x0 - 6 << "\" y=\"" << Number(p.Y(p.km.Tick(k), p.km) + 4)
            << "\" text-anchor=\"end\">" << p.km.Label(k) << "</text>\n";
    for (int k = 0; k < p.mass.ticks; ++k)
        out << "<text class=\"mass-axis\" x=\"" << x1 + 6 << "\" y=\""
            << Number(p.Y(p.mass.Tick(k), p.mass) + 4) << "\">" << p.mass.Label(k) << "</text>\n";
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
    Range time, km, mass;
    for (const TelemetrySeries &s : series) {
        for (const TelemetrySample &t : s.samples) {
            time.Take(t.time);
            km.Take(t.altitude / 1000.0);
            km.Take(t.perigeeAltitude / 1000.0);
            km.Take(t.apogeeAltitude / 1000.0);
            mass.Take(t.mass);
        }
    }
    Plot p;
    p.time = NiceAxis(time);
    p.km = NiceAxis(km);
    p.mass = NiceAxis(mass);
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
