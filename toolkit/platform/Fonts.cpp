#include "toolkit/platform/Fonts.h"

#include <array>
#include <map>

#include "toolkit/platform/Contexts.h"
#include "toolkit/platform/Text.h"

namespace {

bool IsFace(HDC context, std::string_view face) {
    std::array<wchar_t, LF_FACESIZE> selected{};
    ::GetTextFaceW(context, selected.size(), selected.data());
    return Wide(face) == selected.data();
}

OwnedFont SegoeUi(int dpi) {
    constexpr std::string_view face = "Segoe UI";
    OwnedFont font = FontOfHeight(face, ::MulDiv(9, dpi, 72));
    const WindowContext screen(nullptr);
    const Selected selected(screen.get(), font.get());
    return IsFace(screen.get(), face) ? std::move(font) : OwnedFont();
}

OwnedFont WindowsMessageFont(int dpi) {
    NONCLIENTMETRICSW metrics{};  // the call takes only this form
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0, dpi);
    return OwnedFont(::CreateFontIndirectW(&metrics.lfMessageFont));
}

}  // namespace

HFONT MessageFont(int dpi) {
    // All forms share them: checking for a font takes longer than creating a control.
    static std::map<int, OwnedFont> fonts;
    OwnedFont& font = fonts[dpi];
    if (!font) font = SegoeUi(dpi);
    if (!font) font = WindowsMessageFont(dpi);
    return font.get();
}

OwnedFont FontOfHeight(std::string_view face, int pixels) {
    LOGFONTW wanted{};
    wanted.lfHeight = -pixels;
    wanted.lfWeight = FW_NORMAL;
    wanted.lfCharSet = DEFAULT_CHARSET;
    wanted.lfQuality = CLEARTYPE_QUALITY;
    Wide(face).copy(wanted.lfFaceName, LF_FACESIZE - 1);
    return OwnedFont(::CreateFontIndirectW(&wanted));
}

OwnedFont Underlined(HFONT plain) {
    LOGFONTW wanted{};
    ::GetObjectW(plain, sizeof wanted, &wanted);
    wanted.lfUnderline = TRUE;
    return OwnedFont(::CreateFontIndirectW(&wanted));
}
