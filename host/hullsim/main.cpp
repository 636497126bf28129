// hullsim: the headless host. See sim/hullsim_main.h.
#include <iostream>

#include "sim/hullsim_main.h"

int main(int argc, char **argv) {
    std::vector<std::string> args(argv + 1, argv + argc);
    return hullhost::sim::HullsimMain(args, HULLSIM_DEFAULT_ROOT, std::cout, std::cerr);
}
