// The host's umbrella header: everything a vessel module compiles against.
#pragma once

#include "DrawAPI.h"
#include "OrbiterAPI.h"
#include "Platform.h"
#include "VesselAPI.h"
