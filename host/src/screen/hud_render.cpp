#include "hud_render.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "VesselAPI.h"
#include "core/xml_text.h"

namespace hullhost {

namespace {

// 0x00BBGGRR as "#rrggbb".
std::string Colour(DWORD c) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", static_cast<unsigned>(c & 0xff),
                  static_cast<unsigned>((c >> 8) & 0xff), static_cast<unsigned>((c >> 16) & 0xff));
    return text;
}

std::string Colour(const VECTOR3 &c) {
    auto channel = [](double v) { return static_cast<DWORD>(std::clamp(v, 0.0, 1.0) * 255.0 + 0.5); };
    return Colour(channel(c.x) | channel(c.y) << 8 | channel(c.z) << 16);
}

std::string Stroke(const HudShape &s) {
    if (!s.stroked)
        return " fill=\"none\" stroke=\"none\"";
    return " fill=\"none\" stroke=\"" + Colour(s.colour) + "\" stroke-width=\"" +
           std::to_string(std::max(s.width, 1)) + "\"";
}

void WriteShape(std::ostringstream &out, const HudShape &s) {
    const int left = std::min(s.x0, s.x1), top = std::min(s.y0, s.y1);
    const long w = std::labs(static_cast<long>(s.x1) - s.x0), h = std::labs(static_cast<long>(s.y1) - s.y0);
    switch (s.kind) {
    case HudShape::LINE:
        out << "  <line x1=\"" << s.x0 << "\" y1=\"" << s.y0 << "\" x2=\"" << s.x1 << "\" y2=\"" << s.y1
            << "\"" << Stroke(s) << "/>\n";
        break;
    case HudShape::RECTANGLE:
        out << "  <rect x=\"" << left << "\" y=\"" << top << "\" width=\"" << w << "\" height=\"" << h << "\""
            << Stroke(s) << "/>\n";
        break;
    case HudShape::ELLIPSE:
        out << "  <ellipse cx=\"" << left + w / 2.0 << "\" cy=\"" << top + h / 2.0 << "\" rx=\"" << w / 2.0
            << "\" ry=\"" << h / 2.0 << "\"" << Stroke(s) << "/>\n";
        break;
    case HudShape::TEXT:
        out << "  <text x=\"" << s.x0 << "\" y=\"" << s.y0 << "\" fill=\"" << Colour(s.colour)
            << "\" dominant-baseline=\"hanging\">" << EscapeXml(s.text) << "</text>\n";
        break;
    }
}

} // namespace

HudSketchpad DrawFocusHud(World &world, int width, int height) {
    HudSketchpad pad;
    Vessel *focus = world.focus;
    auto *vessel = focus ? dynamic_cast<VESSEL3 *>(focus->iface) : nullptr;
    if (!vessel)
        return pad;
    HUDPAINTSPEC spec{width, height, width / 2, height / 2, height / 2.0, std::max(height / 50, 1)};
    CallbackScope scope(world, focus);
    vessel->clbkDrawHUD(HUD_SURFACE, &spec, &pad);
    return pad;
}

std::string HudSvg(const HudSketchpad &drawing, const World &world, int width, int height) {
    std::ostringstream out;
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << width << "\" height=\"" << height
        << "\" viewBox=\"0 0 " << width << ' ' << height << "\" font-family=\"monospace\" font-size=\"14\">\n"
        << "  <rect x=\"0\" y=\"0\" width=\"" << width << "\" height=\"" << height
        << "\" fill=\"#101418\"/>\n";
    for (const HudShape &shape : drawing.Shapes())
        WriteShape(out, shape);
    for (const auto &note : world.annotations) {
        if (note->text.empty())
            continue;
        const double size = std::clamp(note->size, 0.1, 10.0) * 24.0;
        double y = note->y1 * height;
        std::istringstream lines(note->text);
        for (std::string line; std::getline(lines, line); y += size * 1.2)
            out << "  <text x=\"" << note->x1 * width << "\" y=\"" << y << "\" fill=\""
                << Colour(note->colour) << "\" font-size=\"" << size << "\" dominant-baseline=\"hanging\">"
                << EscapeXml(line) << "</text>\n";
    }
    out << "</svg>\n";
    return out.str();
}

} // namespace hullhost
