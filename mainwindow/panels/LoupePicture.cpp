#include "mainwindow/panels/LoupePicture.h"

#include <algorithm>

#include "mainwindow/panels/PixelBitmap.h"
#include "toolkit/platform/Contexts.h"
#include "toolkit/platform/Fonts.h"
#include "toolkit/platform/Painting.h"
#include "toolkit/platform/Text.h"

namespace {

// Pixels at 96 DPI.
constexpr int edgeWidth = 1;
constexpr int besideText = 8;
constexpr int aboveText = 5;
constexpr int lineHeight = 17;
constexpr int widestText = 260;

int Scaled(int pixels, int dpi) { return ::MulDiv(pixels, dpi, USER_DEFAULT_SCREEN_DPI); }

int WidthOf(HDC context, const std::string& text) {
    const std::wstring wide = Wide(text);
    SIZE extent{};
    ::GetTextExtentPoint32W(context, wide.c_str(), static_cast<int>(wide.size()), &extent);
    return extent.cx;
}

/// A place that is on no monitor looks like the ground of a dialog.
PixelBlock OnGround(const PixelBlock& block) {
    const auto ground = static_cast<PackedColor>(::GetSysColor(COLOR_BTNFACE));
    const Color color = Unpack(ground);
    PixelBlock shown = block;
    std::ranges::replace(shown.pixels, nothingThere,
                         static_cast<BitmapPixel>(color.red << 16 | color.green << 8 | color.blue));
    return shown;
}

void PaintPixels(HDC context, const RECT& area, const PixelBlock& block) {
    constexpr int side = PixelBlock::side;
    const BITMAPINFO info = PixelBitmap();
    ::SetStretchBltMode(context, COLORONCOLOR);
    ::StretchDIBits(context, area.left, area.top, area.right - area.left, area.bottom - area.top, 0, 0, side,
                    side, OnGround(block).pixels.data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

void PaintFrame(HDC context, RECT& around, int width, HBRUSH brush) {
    for (int line = 0; line < width; ++line) {
        ::InflateRect(&around, 1, 1);
        ::FrameRect(context, &around, brush);
    }
}

/// White around black: one of them stands out from every colour.
void PaintOutline(HDC context, RECT middle, int width) {
    PaintFrame(context, middle, width, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    PaintFrame(context, middle, width, static_cast<HBRUSH>(::GetStockObject(WHITE_BRUSH)));
}

void PaintLine(HDC context, RECT line, const std::string& text) {
    ::DrawTextW(context, Wide(text).c_str(), -1, &line,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void PaintText(HDC context, const LoupeLayout& layout, const LoupeContent& content) {
    const Selected font(context, MessageFont(layout.dpi));
    ::SetBkMode(context, TRANSPARENT);
    ::SetTextColor(context, ::GetSysColor(COLOR_WINDOWTEXT));
    if (content.name.empty()) return PaintLine(context, layout.text, content.code);
    RECT upper = layout.text;
    upper.bottom = upper.top + Scaled(lineHeight, layout.dpi);
    RECT lower = layout.text;
    lower.top = upper.bottom;
    PaintLine(context, upper, content.code);
    PaintLine(context, lower, content.name);
}

}  // namespace

std::string LoupeContent::spoken() const { return name.empty() ? code : code + " " + name; }

LoupeLayout::LoupeLayout(int magnification, int dpi, int textWidth) : dpi(dpi) {
    const int edge = Scaled(edgeWidth, dpi);
    const int pixel = Scaled(magnification, dpi);
    const int side = pixel * PixelBlock::side;
    const int inside = std::max(side, textWidth);
    const int left = edge + (inside - side) / 2;
    picture = {left, edge, left + side, edge + side};
    const int before = pixel * PixelBlock::reach;
    middle = {left + before, edge + before, left + before + pixel, edge + before + pixel};
    const int beside = Scaled(besideText, dpi);
    const int above = Scaled(aboveText, dpi);
    const int top = picture.bottom + edge + above;
    text = {edge + beside, top, edge + inside - beside, top + 2 * Scaled(lineHeight, dpi)};
    size = {inside + 2 * edge, static_cast<int>(text.bottom) + above + edge};
}

int TextWidth(HWND window, const LoupeContent& content, int dpi) {
    const WindowContext context(window);
    const Selected font(context.get(), MessageFont(dpi));
    const int widest = std::max(WidthOf(context.get(), content.code), WidthOf(context.get(), content.name));
    return std::min(widest, Scaled(widestText, dpi)) + 2 * Scaled(besideText, dpi);
}

void PaintLoupe(HWND window, const LoupeLayout& layout, const LoupeContent& content) {
    const Painting painting(window);
    const HDC context = painting.context();
    const int edge = Scaled(edgeWidth, layout.dpi);
    PaintPixels(context, layout.picture, content.block);
    PaintOutline(context, layout.middle, edge);
    // The rest is not painted over the picture, which would flicker.
    ::ExcludeClipRect(context, layout.picture.left, layout.picture.top, layout.picture.right,
                      layout.picture.bottom);
    RECT all{};
    ::GetClientRect(window, &all);
    FillWithColor(context, all, ::GetSysColor(COLOR_WINDOW));
    RECT around = layout.picture;
    PaintFrame(context, around, edge, ::GetSysColorBrush(COLOR_3DSHADOW));
    ::InflateRect(&all, -edge, -edge);
    PaintFrame(context, all, edge, ::GetSysColorBrush(COLOR_3DSHADOW));
    PaintText(context, layout, content);
}
