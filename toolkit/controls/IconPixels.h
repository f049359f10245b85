// How do pictures from the program's icons get into an image list?
#pragma once

#include <span>

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"

using OwnedImages = Owned<HIMAGELIST, &::ImageList_Destroy>;

/// The pictures of the icon resources with these numbers, in this order, all of one size: that of the icons'
/// drawings which is nearest to wantedSize pixels, in the middle of images of imageSize. The icons have one
/// byte a pixel and opacity in the palette's fourth byte, as resources/icons/index-colours makes them. Throws
/// std::runtime_error for an icon that is missing or of another kind.
OwnedImages ImagesFromIcons(std::span<const int> icons, int wantedSize, int imageSize);
