// How do pictures from the program's icons get into an image list?
#pragma once

#include <span>

#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Platform.h"

using OwnedImages = Owned<HIMAGELIST, &::ImageList_Destroy>;

/// The pictures of the icon resources with these numbers, in this order, each centred in an image of
/// imageSize pixels. The drawing nearest to wantedSize pixels is taken. The icons have one byte a pixel and
/// opacity in the palette's fourth byte, as resources/icons/index-colours makes them. Throws
/// std::runtime_error for an icon that is missing or of another kind.
OwnedImages ImagesFromIcons(std::span<const int> icons, int wantedSize, int imageSize);
