#include "mainwindow/panels/ColorReport.h"

#include "core/ColorTables.h"
#include "support/Messages.h"

namespace {

constexpr const char* paragraph = "\r\n\r\n";

/// The name and, where the colour has two, the other.
std::string DisplayName(std::string_view name) {
    std::string display(name);
    if (name == "cyan") display += messages::alsoKnownAsAqua;
    if (name == "magenta") display += messages::alsoKnownAsFuchsia;
    return display;
}

std::string JavaScriptText(std::string_view name) {
    if (name.empty()) return messages::notJavaScriptColor;
    return messages::javaScriptColor + std::string(paragraph) + messages::javaScriptNameBeforeName +
           DisplayName(name) + messages::javaScriptNameAfterName;
}

std::string Question(std::string_view name) {
    return messages::renameBeforeName + std::string(name) + messages::renameAfterName;
}

}  // namespace

ColorReport ReportColor(const Color& color, std::string_view name) {
    const std::string_view javaScriptName = JavaScriptName(color);
    ColorReport report;
    report.text = IsWebsafe(color) ? messages::websafeColor : messages::notWebsafeColor;
    report.text += paragraph;
    report.text += IsFailsafe(color) ? messages::failsafeColor : messages::notFailsafeColor;
    report.text += paragraph + JavaScriptText(javaScriptName);
    if (javaScriptName.empty() || javaScriptName == name) return report;
    report.offeredName = javaScriptName;
    report.text += paragraph + Question(javaScriptName);
    return report;
}

std::string_view FindJavaScriptName(const Color& color) {
    const std::string_view name = JavaScriptName(color);
    const bool isFound = !name.empty() && Pack(color) != colorTables.jsColor.front();
    return isFound ? name : messages::notJavaScript;
}
