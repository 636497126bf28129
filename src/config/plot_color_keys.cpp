// KmlPlotColor: the colour in which the controller vessel plots this vessel's
// track. A word outside the table changes nothing.
#include <string_view>

#include "frame/hullkit.h"

namespace {

struct PlotColorWord {
    std::string_view word;
    int code;
};

constexpr PlotColorWord kPlotColors[] = {{"RED", 1},    {"WHITE", 2}, {"WHITE_THIN", 3}, {"BLUE", 4},
                                         {"YELLOW", 5}, {"GREEN", 6}, {"VIOLET", 7}};

} // namespace

void HULLKIT::ReadPlotColorKey() {
    const std::string &value = Cfg("KmlPlotColor");
    for (const PlotColorWord &color : kPlotColors)
        if (value == color.word)
            SetPlotColor(color.code);
}
