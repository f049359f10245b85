// What is true of a colour, told once more in plain words?
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/Color.h"

/// By name, in alphabetical order.
using ColorsByName = std::map<std::string, PackedColor>;

/// The facts that depend on the list of JavaScript colours, which somebody else keeps.
class Facts {
public:
    explicit Facts(ColorsByName javaScript);

    /// "" for a colour without a name; "cyan" and "magenta" of the two pairs of names.
    std::string nameOf(const Color& color) const;
    /// "W", "F" and "J", as far as they apply.
    std::string lettersOf(const Color& color) const;
    /// The name that a search of the six marks gives: it does not know aliceblue.
    std::string foundName(const Color& color) const;
    /// The report on a mark, and the name that it offers, "" for none.
    std::string report(const Color& color, std::string_view name) const;
    std::string offeredName(const Color& color, std::string_view name) const;
    /// The colour of a swatch of the JavaScript colours in alphabetical order.
    Color javaScriptColor(int index) const;
    /// The same in the order by hue, for some of the swatches: that order is nobody else's.
    std::optional<Color> colorByHue(int index) const;

private:
    ColorsByName javaScript;
};

inline constexpr const char* noName = "Type a colour name";
inline constexpr const char* notJavaScript = "Not JavaScript colour";

/// channel: 0 red, 1 green, 2 blue.
int ChannelOf(const Color& color, int channel);

Color WebsafeColor(int index);
Color FailsafeColor(int index);

/// The swatch that the key Right leads to in a palette window, 0 to 2; the same at the end of a row.
int SwatchRightOf(int window, int index);

/// What is said of text in one mark's colour on another's.
std::string ContrastOf(const std::string& textName, const Color& text, const std::string& groundName,
                       const Color& ground);
/// What a mark is called there: its name, or the colour where it has none.
std::string LabelOf(const std::string& name, const Color& color);

/// The colour of step 0 to 255 of the bar.
Color BarColor(const Color& color, int step);

/// The colour in the notation of row 0 to 11.
std::string CodeOf(int notation, const Color& color, std::string_view customFormat);

/// What the three boxes say about a colour.
std::string ValueText(int channel, bool isDecimal);
/// What a box's text means; nothing when it is refused.
std::optional<int> ValueOf(std::string_view text, bool isDecimal);
