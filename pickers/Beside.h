// Where does a new window open so that it covers no other?
#pragma once

#include <span>

#include "toolkit/platform/Twips.h"

/// A place of that size inside the work area that touches one of the others, which are tried in order, and
/// covers none of them; the bottom right corner when there is no room. All in pixels.
Area Beside(std::span<const Area> others, int width, int height, const Area& work);
