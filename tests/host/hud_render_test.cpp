// The head-up display: what a module draws, its SVG with the annotations, and
// hullsim run --hud drawing the focus vessel's display.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/world.h"
#include "hullsim_fixture.h"
#include "screen/hud_render.h"
#include "xml_check.h"

using hosttest::ParseXml;
using hosttest::ReadText;
using hosttest::Result;
using hosttest::WriteText;
using hosttest::XmlElement;

namespace {

std::vector<XmlElement> Named(const std::vector<XmlElement> &elements, const std::string &name) {
    std::vector<XmlElement> out;
    std::copy_if(elements.begin(), elements.end(), std::back_inserter(out),
                 [&](const XmlElement &e) { return e.name == name; });
    return out;
}

} // namespace

// What a module draws, as the SVG shows it: lines that go on from where the
// last one ended, in the pen in force (none: not stroked), texts cut at their
// length and escaped, and the annotations line by line.
TEST(HudSvg, ShowsTheShapesDrawnWithThePenAndTextColourInForceAndTheAnnotations) {
    hosttest::TempDir root;
    hullhost::World world{root.Path().string()};
    auto note = std::make_unique<hullhost::Annotation>();
    note->text = "a<b & \"c\"\nsecond\x01 line";
    note->colour = {1, 0.5, 0};
    world.annotations.push_back(std::move(note));
    world.annotations.push_back(std::make_unique<hullhost::Annotation>()); // empty: not drawn

    hullhost::HudSketchpad pad;
    oapi::Pen pen(1, 3, 0x123456), red(1, 4, 0xff);
    EXPECT_EQ(pad.SetPen(&pen), nullptr);
    pad.MoveTo(1, 2);
    pad.LineTo(3, 4);
    pad.LineTo(5, 6);
    EXPECT_EQ(pad.SetPen(&red), &pen);
    pad.Rectangle(30, 40, 10, 20);
    pad.SetPen(nullptr);
    pad.Rectangle(0, 0, 1, 1);
    pad.SetTextColor(0xff);
    pad.Text(7, 8, "x<y>\0def", 8);
    const std::vector<XmlElement> svg = ParseXml(hullhost::HudSvg(pad, world, 200, 100));
    ASSERT_EQ(svg.front().name, "svg");
    EXPECT_EQ(svg.front().attributes.at("width"), "200");

    const auto lines = Named(svg, "line");
    ASSERT_EQ(lines.size(), 2u);
    const auto &second = lines[1].attributes;
    EXPECT_EQ((std::vector{second.at("x1"), second.at("y1"), second.at("x2"), second.at("y2")}),
              (std::vector<std::string>{"3", "4", "5", "6"}));
    EXPECT_EQ(second.at("stroke"), "#563412");
    EXPECT_EQ(second.at("stroke-width"), "3");

    const auto rects = Named(svg, "rect");
    ASSERT_EQ(rects.size(), 3u); // the background and the drawn ones
    EXPECT_EQ(rects[1].attributes.at("x"), "10");
    EXPECT_EQ(rects[1].attributes.at("height"), "20");
    EXPECT_EQ(rects[1].attributes.at("stroke"), "#ff0000");
    EXPECT_EQ(rects[2].attributes.at("stroke"), "none");

    const auto texts = Named(svg, "text");
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[0].text, "x<y>");
    EXPECT_EQ(texts[0].attributes.at("fill"), "#ff0000");
    EXPECT_EQ(texts[1].text, "a<b & \"c\"");
    EXPECT_EQ(texts[1].attributes.at("fill"), "#ff8000");
    EXPECT_EQ(texts[2].text, "second? line"); // a control character becomes ?
}

class HullsimHudTest : public hosttest::HullsimFixture {};

TEST_F(HullsimHudTest, RunRendersTheFocusVesselsDisplay) {
    WriteText(Root() + "/Scenarios/hud.scn", "BEGIN_ENVIRONMENT\n  Date MJD 60000\nEND_ENVIRONMENT\n"
                                             "BEGIN_FOCUS\n  Ship R&D\nEND_FOCUS\n"
                                             "BEGIN_SHIPS\n"
                                             "P:Test\\Probe\n  STATUS Orbiting Earth\nEND\n"
                                             "R&D:Test\\Probe\n  STATUS Orbiting Earth\nEND\n"
                                             "END_SHIPS\n");
    const std::string hud = dir / "hud.svg";
    Result r = Run({"run", "hud", "--root", Root(), "--for", "0.1", "--hud", hud});
    ASSERT_EQ(r.code, 0) << r.err;
    const std::vector<XmlElement> svg = ParseXml(ReadText(hud));
    const auto lines = Named(svg, "line");
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_EQ(lines[0].attributes.at("x2"), std::to_string(hullhost::kHudWidth));
    EXPECT_EQ(lines[0].attributes.at("stroke"), "#00ff00");
    const auto texts = Named(svg, "text");
    // The vessel's own text, then each probe's annotation.
    ASSERT_EQ(texts.size(), 3u);
    EXPECT_EQ(texts[0].text, "<R&D>");
    EXPECT_EQ(texts[0].attributes.at("fill"), "#ff0000");
    EXPECT_EQ(texts[2].text, "probe R&D ready");
}
