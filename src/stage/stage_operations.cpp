// The stage's attitude loop.
#include "stage/korvan.h"

void Korvan::K_FLIGHT() {}
