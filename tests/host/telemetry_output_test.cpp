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

TEST(SvgChartTest, DrawsFourLinesPerVesselInsideThePlot) {
    const std::vector<TelemetrySeries> series = {
        {"Stage", {At(0, 200e3, 1500), At(10, 210e3, 1400), At(20, 230e3, 1300)}},
        {"Payload", {At(0, 200e3, 300), At(10, 205e3, 300), At(20, 208e3, 300)}}};
    const std::vector<XmlElement> all = ParseXml(Chart(series));
    ASSERT_EQ(all.front().name, "svg");
    const auto lines = Elements(all, "polyline");
    ASSERT_EQ(lines.size(), 8u); // altitude, apogee, perigee and mass of each
    double lowest = 1e9, highest = -1e9;
    for (const XmlElement &line : lines) {
        const auto points = Points(line);
        ASSERT_EQ(points.size(), 3u) << line.attributes.at("points");
        EXPECT_DOUBLE_EQ(points.front().first, 80.0); // time 0 at the left edge
        EXPECT_DOUBLE_EQ(points.back().first, 880.0); // time 20 at the right edge
        for (const auto &[x, y] : points) {
            lowest = std::min(lowest, y);
            highest = std::max(highest, y);
        }
    }
    // The highest apogee and the largest mass reach the top, the lowest
    // perigee and the smallest mass the bottom.
    EXPECT_DOUBLE_EQ(lowest, 40.0);
    EXPECT_DOUBLE_EQ(highest, 480.0);
    // The first series' apogee (dashed) line starts higher than its altitude.
    EXPECT_LT(Points(lines[1])[0].second, Points(lines[0])[0].second);

    std::vector<std::string> legend;
    for (const XmlElement &text : Elements(all, "text"))
        legend.push_back(text.text);
    EXPECT_NE(std::find(legend.begin(), legend.end(), "Stage"), legend.end());
    EXPECT_NE(std::find(legend.begin(), legend.end(), "Payload"), legend.end());
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
