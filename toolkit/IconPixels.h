// How do pictures from the program's icons get into an image list?
#pragma once

#include <span>

#include "toolkit/Handles.h"
#include "toolkit/Platform.h"

using OwnedImages = Owned<HIMAGELIST, &::ImageList_Destroy>;

/// The pictures of the icon resources with these numbers, in this order, all of one size: that of the icons'
/// drawings which is nearest to wantedSize pixels. Throws std::runtime_error for an icon that is missing or
/// not of 32 bits.
OwnedImages ImagesFromIcons(std::span<const int> icons, int wantedSize);
