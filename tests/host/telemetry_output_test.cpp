// The telemetry as people read it: CSV rows and the SVG chart.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "telemetry/svg_chart.h"
#include "telemetry/telemetry_sample.h"
#include "xml_check.h"

using hosttest::ParseXml;
using hosttest::XmlElement;
using hullhost::telemetry::CsvRow;
using hullhost::telemetry::TelemetrySample;
using hullhost::telemetry::TelemetrySeries;

namespace {

TelemetrySample At(double time, double altitude, double mass) {
    TelemetrySample s;
    s.time = time;
    s.altitude = altitude;
    s.apogeeAltitude = altitude + 5000.0;
    s.perigeeAltitude = altitude - 5000.0;
    s.mass = mass;
    return s;
}

std::string Chart(const std::vector<TelemetrySeries> &series) {
    std::ostringstream out;
    hullhost::telemetry::WriteSvgChart(out, series);
    return out.str();
}

std::vector<XmlElement> Elements(const std::vector<XmlElement> &all, const std::string &name) {
    std::vector<XmlElement> found;
    for (const XmlElement &e : all)
        if (e.name == name)
            found.push_back(e);
    return found;
}

// The points of a polyline as (x, y) pairs.
std::vector<std::pair<double, double>> Points(const XmlElement &polyline) {
    std::vector<std::pair<double, double>> points;
    std::istringstream in(polyline.attributes.at("points"));
    double x, y;
    char comma;
    while (in >> x >> comma >> y)
        points.emplace_back(x, y);
    return points;
}

// An axis label: its text, its value and where it sits along its axis.
struct Label {
    std::string text;
    double value, position;
};

// The labels of the axis whose class is `axis`. Time labels are centred
// under their tick; the others sit 4 px below theirs to centre on it.
std::vector<Label> AxisLabels(const std::vector<XmlElement> &all, const std::string &axis) {
    std::vector<Label> labels;
    for (const XmlElement &e : Elements(all, "text"))
        if (e.attributes.count("class") && e.attributes.at("class") == axis)
            labels.push_back({e.text, std::stod(e.text),
                              axis == "time-axis" ? std::stod(e.attributes.at("x"))
                                                  : std::stod(e.attributes.at("y")) - 4});
    return labels;
}

// Labels a person reads the axis by: evenly stepped (so distinct) by 1, 2,
// 2.5 or 5 times a power of ten, from at or below `lo` to at or above `hi`,
// and no "-0".
void ExpectRoundLabels(const std::vector<Label> &labels, double lo, double hi) {
    ASSERT_GE(labels.size(), 3u);
    const double step = labels[1].value - labels[0].value;
    ASSERT_GT(step, 0.0) << labels[0].text << " " << labels[1].text;
    const double mantissa = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
    EXPECT_TRUE(std::ranges::any_of(std::vector{1.0, 2.0, 2.5, 5.0}, [&](double m) {
        return std::abs(mantissa - m) < 1e-6;
    })) << step;
    for (size_t k = 0; k < labels.size(); ++k) {
        EXPECT_NEAR(labels[k].value, labels[0].value + k * step, 1e-6 * step) << labels[k].text;
        EXPECT_FALSE(labels[k].value == 0.0 && labels[k].text.starts_with("-")) << labels[k].text;
    }
    EXPECT_LE(labels.front().value, lo);
    EXPECT_GE(labels.back().value, hi);
}

// A point drawn at `position` for `value` is where the axis labels put it.
void ExpectOnScale(const std::vector<Label> &labels, double value, double position) {
    const Label &a = labels.front(), &b = labels.back();
    EXPECT_NEAR(position, a.position + (value - a.value) / (b.value - a.value) * (b.position - a.position),
                0.1)
        << value;
}

TEST(SvgChartTest, DrawsFourLinesPerVesselInsideThePlot) {
    const std::vector<TelemetrySeries> series = {
        {"Stage", {At(0, 200e3, 1500), At(10, 210e3, 1400), At(20, 230e3, 1300)}},
        {"Payload", {At(0, 200e3, 300), At(10, 205e3, 300), At(20, 208e3, 300)}}};
    const std::vector<XmlElement> all = ParseXml(Chart(series));
    ASSERT_EQ(all.front().name, "svg");
    const auto lines = Elements(all, "polyline");
    ASSERT_EQ(lines.size(), 8u); // altitude, apogee, perigee and mass of each
    for (const XmlElement &line : lines) {
        const auto points = Points(line);
        ASSERT_EQ(points.size(), 3u) << line.attributes.at("points");
        for (const auto &[x, y] : points) {
            EXPECT_TRUE(x >= 80 && x <= 880 && y >= 40 && y <= 480) << x << "," << y;
        }
    }
    // The first series' apogee (dashed) line starts higher than its altitude.
    EXPECT_LT(Points(lines[1])[0].second, Points(lines[0])[0].second);

    std::vector<std::string> legend;
    for (const XmlElement &text : Elements(all, "text"))
        legend.push_back(text.text);
    EXPECT_NE(std::find(legend.begin(), legend.end(), "Stage"), legend.end());
    EXPECT_NE(std::find(legend.begin(), legend.end(), "Payload"), legend.end());
}

// Each axis carries round, distinct labels that match where the lines are
// drawn, whether the values span a sliver of their size, cross zero, stay
// flat or need powers of ten.
TEST(SvgChartTest, LabelsEachAxisWithRoundDistinctValues) {
    struct Case {
        double t0, t1, km0, km1, kg0, kg1;
    } cases[] = {
        {0, 5400, 199.9, 200, 1450, 1450}, // an orbit seen closely; a coasting stage
        {0, 20, -6300, 210, 300, 1500},    // a perigee below the ground
        {100, 100, 0, 0, 0, 0},            // one sample, all zero
        {0, 3.2e7, 1e-6, 3e-6, 2e7, 2.5e7},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.t1);
        TelemetrySample first = At(c.t0, c.km0 * 1000, c.kg0), last = At(c.t1, c.km1 * 1000, c.kg1);
        first.apogeeAltitude = first.perigeeAltitude = first.altitude;
        last.apogeeAltitude = last.perigeeAltitude = last.altitude;
        const std::vector<XmlElement> all = ParseXml(Chart({{"V", {first, last}}}));
        const auto time = AxisLabels(all, "time-axis"), km = AxisLabels(all, "km-axis"),
                   mass = AxisLabels(all, "mass-axis");
        ExpectRoundLabels(time, c.t0, c.t1);
        ExpectRoundLabels(km, c.km0, c.km1);
        ExpectRoundLabels(mass, c.kg0, c.kg1);
        if (HasFatalFailure())
            return;
        const auto lines = Elements(all, "polyline");
        const auto altitude = Points(lines[0]), kg = Points(lines[3]);
        ExpectOnScale(time, c.t0, altitude.front().first);
        ExpectOnScale(time, c.t1, altitude.back().first);
        ExpectOnScale(km, c.km0, altitude.front().second);
        ExpectOnScale(km, c.km1, altitude.back().second);
        ExpectOnScale(mass, c.kg1, kg.back().second);
    }
}

TEST(SvgChartTest, EscapesVesselNames) {
    const std::string name = "A&B <\"x\"> 'y'\x01";
    const std::string svg = Chart({{name, {At(0, 1e5, 10), At(1, 2e5, 9)}}});
    EXPECT_EQ(svg.find("<\"x\">"), std::string::npos) << svg;
    const auto texts = Elements(ParseXml(svg), "text");
    EXPECT_TRUE(std::any_of(texts.begin(), texts.end(), [](const XmlElement &t) {
        return t.text == "A&B <\"x\"> 'y'?";
    })) << svg;
}

TEST(SvgChartTest, LeavesOutValuesThatAreNoNumbersAndDrawsNoData) {
    TelemetrySample broken = At(5, 1e5, 10);
    broken.altitude = std::nan("");
    const std::string svg = Chart({{"V", {At(0, 1e5, 10), broken, At(10, 1e5, 10)}}});
    EXPECT_EQ(svg.find("nan"), std::string::npos) << svg;
    const auto lines = Elements(ParseXml(svg), "polyline");
    ASSERT_EQ(lines.size(), 4u);
    EXPECT_EQ(Points(lines[0]).size(), 2u); // the altitude without the broken sample
    EXPECT_EQ(Points(lines[1]).size(), 3u);

    // No vessel or no sample: still a chart, with axes and no lines.
    EXPECT_TRUE(Elements(ParseXml(Chart({})), "polyline").empty());
    EXPECT_EQ(Elements(ParseXml(Chart({{"V", {}}})), "polyline").size(), 4u);
}

TEST(CsvRowTest, OneFieldPerColumnWhateverTheNameOrNumbers) {
    TelemetrySample s = At(12.5, 1e300, 1450.25);
    s.speed = 7788.4801;
    s.inclination = 23.44;
    s.mainLevel = 1.0;
    EXPECT_EQ(CsvRow("P", At(1, 2, 3)), "1.000,P,2.0,0.000,5002.0,-4998.0,0.0000,3.000,0.000");
    // A name with a comma and quotes is one quoted field; a huge number is
    // written whole, not cut.
    const std::string row = CsvRow("Stage, \"two\"", s);
    EXPECT_EQ(row.rfind("12.500,\"Stage, \"\"two\"\"\",1", 0), 0u) << row;
    EXPECT_NE(row.find(",7788.480,"), std::string::npos) << row;
    EXPECT_TRUE(row.ends_with(",23.4400,1450.250,1.000")) << row;
    EXPECT_GT(row.size(), 300u);
}

} // namespace
