#include "toolkit/IconPixels.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>
#include <vector>

namespace {

using OwnedBitmap = Owned<HBITMAP, &::DeleteObject>;

void* LockedResource(int number, LPCSTR type) {
    const HINSTANCE instance = ::GetModuleHandleA(nullptr);
    const HRSRC found = ::FindResourceA(instance, MAKEINTRESOURCEA(number), type);
    const HGLOBAL loaded = found ? ::LoadResource(instance, found) : nullptr;
    if (!loaded) throw std::runtime_error("no icon of that number");
    return ::LockResource(loaded);
}

/// The pixels of one drawing of an icon, the lowest row first.
struct IconPixels {
    int size;
    const std::uint32_t* rows;

    const std::uint32_t* row(std::ptrdiff_t index) const { return rows + index * size; }
};

IconPixels FindPixels(int icon, int wantedSize) {
    auto* directory = static_cast<BYTE*>(LockedResource(icon, RT_GROUP_ICON));
    const int drawing =
        ::LookupIconIdFromDirectoryEx(directory, TRUE, wantedSize, wantedSize, LR_DEFAULTCOLOR);
    const auto* header = static_cast<const BITMAPINFOHEADER*>(LockedResource(drawing, RT_ICON));
    if (header->biSize != sizeof *header || header->biBitCount != 32)
        throw std::runtime_error("not an icon of 32 bits");
    return {header->biWidth, reinterpret_cast<const std::uint32_t*>(header + 1)};
}

}  // namespace

// Read from the resources: to make an icon only to ask it for its colours again takes the platform
// milliseconds each.
OwnedImages ImagesFromIcons(std::span<const int> icons, int wantedSize) {
    std::vector<IconPixels> pictures;
    for (const int icon : icons) pictures.push_back(FindPixels(icon, wantedSize));
    const int size = pictures.front().size;
    const int count = static_cast<int>(pictures.size());
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = count * size;
    info.bmiHeader.biHeight = size;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const OwnedBitmap strip(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    if (!strip) throw std::runtime_error("the platform refused a bitmap");
    auto* target = static_cast<std::uint32_t*>(bits);
    for (int row = 0; row < size; ++row) {
        for (const IconPixels& picture : pictures) {
            target = std::copy_n(picture.row(row), size, target);
        }
    }
    OwnedImages images(::ImageList_Create(size, size, ILC_COLOR32, count, 0));
    ::ImageList_Add(images.get(), strip.get(), nullptr);
    return images;
}
