#include "pickers/ContrastText.h"

#include "core/ChannelText.h"
#include "core/Characters.h"
#include "core/Contrast.h"
#include "support/Messages.h"

namespace {

bool IsNamed(const std::string& name) {
    return !TrimBlanks(name).empty() && name != messages::noName && name != messages::notJavaScript;
}

}  // namespace

LabelledMarkSet LabelledMarks(const Palette& palette) {
    LabelledMarkSet marks;
    for (int mark = 0; mark < markCount; ++mark) {
        const Color& color = palette.colors[mark];
        const std::string& name = palette.names[mark];
        marks[mark] = {IsNamed(name) ? name : HexText(color), color};
    }
    return marks;
}

std::string PairText(const LabelledMark& text, const LabelledMark& ground) {
    const double ratio = ContrastRatio(text.color, ground.color);
    return text.label + " on " + ground.label + ": " + RatioText(ratio) + ":1, " +
           std::string(ContrastGrade(ratio));
}

std::string MarkText(const LabelledMark& mark) {
    const std::string hex = HexText(mark.color);
    return mark.label == hex ? hex : mark.label + " " + hex;
}
