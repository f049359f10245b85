#include "support/Marks.h"

#include <string_view>

#include "support/Messages.h"

namespace {

bool IsPlaceholder(std::string_view name) {
    return name == messages::noName || name == messages::notJavaScript;
}

bool IsSameName(std::string_view saved, std::string_view name) {
    return saved == name || (IsPlaceholder(saved) && IsPlaceholder(name));
}

}  // namespace

void LoadDefaultMarks(Marks& marks) {
    marks.defaultMarkName.fill(messages::noName);
    marks.defaultMarkColor = {ColorOf(255, 0, 0),   ColorOf(255, 255, 0), ColorOf(0, 255, 0),
                              ColorOf(0, 255, 255), ColorOf(0, 0, 255),   ColorOf(255, 0, 255)};
}

bool IsPaletteChanged(const Marks& marks, const MarkNames& names) {
    if (marks.markColor != marks.savedMarkColor) return true;
    for (int mark = 0; mark < markCount; ++mark) {
        if (!IsSameName(marks.savedMarkName[mark], names[mark])) return true;
    }
    return false;
}
