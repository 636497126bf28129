#include "hud_sketchpad.h"

#include <cstring>

namespace hullhost {

oapi::Pen *HudSketchpad::SetPen(oapi::Pen *pen) {
    oapi::Pen *old = pen_;
    pen_ = pen;
    return old;
}

DWORD HudSketchpad::SetTextColor(DWORD col) {
    DWORD old = textColour_;
    textColour_ = col;
    return old;
}

bool HudSketchpad::Text(int x, int y, const char *str, int len) {
    if (!str || len <= 0)
        return false;
    // Stops at a terminator within `len`, as a C string would.
    const std::size_t n = strnlen(str, static_cast<std::size_t>(len));
    shapes_.push_back({HudShape::TEXT, x, y, x, y, textColour_, 0, false, std::string(str, n)});
    return true;
}

void HudSketchpad::MoveTo(int x, int y) {
    penX_ = x;
    penY_ = y;
}

void HudSketchpad::LineTo(int x, int y) {
    Line(penX_, penY_, x, y);
    MoveTo(x, y);
}

void HudSketchpad::Line(int x0, int y0, int x1, int y1) { Add(HudShape::LINE, x0, y0, x1, y1); }
void HudSketchpad::Rectangle(int x0, int y0, int x1, int y1) { Add(HudShape::RECTANGLE, x0, y0, x1, y1); }
void HudSketchpad::Ellipse(int x0, int y0, int x1, int y1) { Add(HudShape::ELLIPSE, x0, y0, x1, y1); }

void HudSketchpad::Add(HudShape::Kind kind, int x0, int y0, int x1, int y1) {
    shapes_.push_back(
        {kind, x0, y0, x1, y1, pen_ ? pen_->colour : 0u, pen_ ? pen_->width : 0, pen_ != nullptr, {}});
}

} // namespace hullhost
