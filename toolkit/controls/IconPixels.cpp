#include "toolkit/controls/IconPixels.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace {

using OwnedBitmap = Owned<HBITMAP, &::DeleteObject>;

void* LockedResource(int number, LPCWSTR type) {
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    const HRSRC found = ::FindResourceW(instance, MAKEINTRESOURCEW(number), type);
    const HGLOBAL loaded = found ? ::LoadResource(instance, found) : nullptr;
    if (!loaded) throw std::runtime_error("no icon of that number");
    return ::LockResource(loaded);
}

/// One drawing of an icon: rows of indexes into the palette, the lowest row first. The fourth byte of a
/// colour is its opacity.
struct Drawing {
    int size;
    const std::uint32_t* palette;
    const BYTE* rows;

    const BYTE* row(std::ptrdiff_t index) const { return rows + index * ((size + 3) & ~3); }
};

Drawing FindDrawing(int icon, int wantedSize) {
    auto* directory = static_cast<BYTE*>(LockedResource(icon, RT_GROUP_ICON));
    const int drawing =
        ::LookupIconIdFromDirectoryEx(directory, TRUE, wantedSize, wantedSize, LR_DEFAULTCOLOR);
    const auto* header = static_cast<const BITMAPINFOHEADER*>(LockedResource(drawing, RT_ICON));
    if (header->biSize != sizeof *header || header->biBitCount != 8)
        throw std::runtime_error("not an icon of a tool bar");
    const auto* palette = reinterpret_cast<const std::uint32_t*>(header + 1);
    return {header->biWidth, palette, reinterpret_cast<const BYTE*>(palette + header->biClrUsed)};
}

}  // namespace

// Read straight from the resources: making an icon only to read its colours back takes milliseconds each.
OwnedImages ImagesFromIcons(std::span<const int> icons, int wantedSize, int imageSize) {
    std::vector<Drawing> drawings;
    for (const int icon : icons) drawings.push_back(FindDrawing(icon, wantedSize));
    const int size = drawings.front().size;
    const int count = static_cast<int>(drawings.size());
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    const int image = std::max(size, imageSize);
    info.bmiHeader.biWidth = count * image;
    info.bmiHeader.biHeight = image;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const OwnedBitmap strip(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!strip) throw std::runtime_error("Windows refused a bitmap");
    const std::ptrdiff_t stride = static_cast<std::ptrdiff_t>(count) * image;
    const int room = (image - size) / 2;
    for (int row = 0; row < size; ++row) {
        auto* target = static_cast<std::uint32_t*>(bits) + (room + row) * stride + room;
        for (const Drawing& drawing : drawings) {
            std::transform(drawing.row(row), drawing.row(row) + size, target,
                           [&](BYTE index) { return drawing.palette[index]; });
            target += image;
        }
    }
    OwnedImages images(::ImageList_Create(image, image, ILC_COLOR32, count, 0));
    ::ImageList_Add(images.get(), strip.get(), nullptr);
    return images;
}
