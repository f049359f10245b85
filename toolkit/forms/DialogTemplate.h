// What does a compiled DIALOGEX template say?
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

/// One control. Forms give positions and sizes in pixels at 96 DPI.
struct TemplateItem {
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::uint32_t id = 0;
    std::u16string className;
    std::u16string text;
};

struct DialogTemplate {
    std::uint32_t style = 0;
    std::uint32_t exStyle = 0;
    std::u16string menu;  ///< its resource's name, "" for none
    std::u16string caption;
    int width = 0;
    int height = 0;
    std::vector<TemplateItem> items;
};

/// Reads a DIALOGEX template as the resource compiler leaves it. Throws std::runtime_error when it is cut
/// short.
DialogTemplate ParseDialogTemplate(std::span<const std::byte> bytes);
