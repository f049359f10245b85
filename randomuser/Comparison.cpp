#include "randomuser/Comparison.h"

#include "randomuser/model/Facts.h"

std::string Printed(const std::string& text) { return '"' + text + '"'; }
std::string Printed(bool isTrue) { return isTrue ? "yes" : "no"; }
std::string Printed(int number) { return std::to_string(number); }
std::string Printed(const Color& color) { return CodeOf(3, color, ""); }

std::string Printed(const std::set<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) all += (all.empty() ? "" : " or ") + Printed(text);
    return all;
}
