// Where does a new window stand that is to cover no other?
#pragma once

#include <span>

#include "toolkit/platform/Twips.h"

/// A place of that size inside the work area that touches one of the others, the first before the next, and
/// covers none of them; where there is no room, the corner at the right and bottom. All in pixels.
Area Beside(std::span<const Area> others, int width, int height, const Area& work);
