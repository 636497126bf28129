// A head-up display surface that records what a vessel draws on it, with the
// pen or text colour in force, so that it can be checked or rendered.
#pragma once

#include <string>
#include <vector>

#include "DrawAPI.h"

namespace hullhost {

struct HudShape {
    enum Kind { LINE, RECTANGLE, ELLIPSE, TEXT };
    Kind kind;
    int x0, y0, x1, y1; // corners, or the text's anchor in (x0, y0)
    DWORD colour;       // 0x00BBGGRR: the pen's, or the text colour for TEXT
    int width;          // pen width; 0 for TEXT
    bool stroked;       // a pen was selected (a shape drawn without one has no outline)
    std::string text;
};

class HudSketchpad : public oapi::Sketchpad {
  public:
    oapi::Pen *SetPen(oapi::Pen *pen) override;
    DWORD SetTextColor(DWORD col) override;
    bool Text(int x, int y, const char *str, int len) override;
    void MoveTo(int x, int y) override;
    void LineTo(int x, int y) override;
    void Line(int x0, int y0, int x1, int y1) override;
    void Rectangle(int x0, int y0, int x1, int y1) override;
    void Ellipse(int x0, int y0, int x1, int y1) override;

    const std::vector<HudShape> &Shapes() const { return shapes_; }

  private:
    void Add(HudShape::Kind kind, int x0, int y0, int x1, int y1);

    std::vector<HudShape> shapes_;
    oapi::Pen *pen_ = nullptr;
    DWORD textColour_ = 0x00ff00; // the host's HUD green
    int penX_ = 0, penY_ = 0;
};

} // namespace hullhost
