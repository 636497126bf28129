// Drawing surfaces that the host hands to modules, such as the head-up display.
#pragma once

#include "OrbiterAPI.h"

namespace oapi {

struct IVECTOR2 {
    long x, y;
};

class Pen {
  public:
    Pen(int style_, int width_, DWORD colour_) : style(style_), width(width_), colour(colour_) {}
    virtual ~Pen() = default;
    int style;
    int width;
    DWORD colour;
};

class Brush {
  public:
    explicit Brush(DWORD colour_) : colour(colour_) {}
    virtual ~Brush() = default;
    DWORD colour;
};

class Font {
  public:
    virtual ~Font() = default;
};

// A drawing surface. The host's implementation records or renders what is
// drawn; every call returns what was selected before, as the host's does.
class Sketchpad {
  public:
    enum TAlign_horizontal { LEFT, CENTER, RIGHT };
    enum TAlign_vertical { TOP, BASELINE, BOTTOM };

    explicit Sketchpad(SURFHANDLE s = nullptr) : surf(s) {}
    virtual ~Sketchpad() = default;

    virtual Pen *SetPen(Pen *pen) { return pen; }
    virtual Brush *SetBrush(Brush *brush) { return brush; }
    virtual Font *SetFont(Font *font) { return font; }
    virtual DWORD SetTextColor(DWORD col) { return col; }
    virtual DWORD SetBackgroundColor(DWORD col) { return col; }
    virtual void SetTextAlign(TAlign_horizontal = LEFT, TAlign_vertical = TOP) {}
    virtual bool Text(int x, int y, const char *str, int len) {
        (void)x, (void)y, (void)str, (void)len;
        return false;
    }
    virtual void MoveTo(int x, int y) { (void)x, (void)y; }
    virtual void LineTo(int x, int y) { (void)x, (void)y; }
    virtual void Line(int x0, int y0, int x1, int y1) { (void)x0, (void)y0, (void)x1, (void)y1; }
    virtual void Rectangle(int x0, int y0, int x1, int y1) { (void)x0, (void)y0, (void)x1, (void)y1; }
    virtual void Ellipse(int x0, int y0, int x1, int y1) { (void)x0, (void)y0, (void)x1, (void)y1; }
    SURFHANDLE GetSurface() const { return surf; }

  protected:
    SURFHANDLE surf;
};

} // namespace oapi
