// The main engine watch.
#include "frame/hullkit.h"

void HULLKIT::WatchMainEngine() {}
