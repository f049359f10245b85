#include <algorithm>

#include "mainwindow/ColorRamp.h"
#include "randomuser/Eyes.h"
#include "randomuser/Facts.h"
#include "randomuser/Screen.h"
#include "resources/resource.h"
#include "tests/ui/Input.h"

namespace {

std::string Printed(const std::string& text) { return '"' + text + '"'; }
std::string Printed(bool isTrue) { return isTrue ? "yes" : "no"; }
std::string Printed(int number) { return std::to_string(number); }
std::string Printed(const Color& color) { return CodeOf(3, color, ""); }
std::string Printed(const std::set<std::string>& texts) {
    std::string all;
    for (const std::string& text : texts) all += (all.empty() ? "" : " or ") + Printed(text);
    return all;
}

/// Remembers the first difference.
class Comparison {
public:
    template <class Value>
    bool same(const std::string& what, const Value& expected, const Value& seen) {
        if (expected != seen) found = what + ": expected " + Printed(expected) + ", seen " + Printed(seen);
        return found.empty();
    }
    bool oneOf(const std::string& what, const std::set<std::string>& expected, const std::string& seen) {
        if (!expected.contains(seen))
            found = what + ": expected " + Printed(expected) + ", seen " + Printed(seen);
        return found.empty();
    }
    std::string found;
};

std::string Numbered(const char* what, int number) {
    return std::string(what) + ' ' + std::to_string(number);
}

const char* NameOf(Front front) {
    constexpr std::array names = {"websafe", "failsafe", "JavaScript", "main", "other", "none"};
    return names.at(static_cast<std::size_t>(front));
}

}  // namespace

std::string Eyes::difference(const Look& expected) {
    hasAnswered = true;
    std::string found = frameDifference(expected);
    if (!expected.isRunning) return found;
    if (found.empty()) found = editorDifference(expected);
    if (found.empty()) found = markDifference(expected);
    if (found.empty()) found = commandDifference(expected);
    // A box may lie over the window.
    if (found.empty() && !expected.box.isOpen()) found = pixelDifference(expected);
    return hasAnswered ? found : "hang: no answer for a second";
}

std::string Eyes::frameDifference(const Look& expected) {
    Comparison compare;
    if (!compare.same("running", expected.isRunning, isRunning()) || !expected.isRunning)
        return compare.found;
    if (std::string found = boxDifference(expected); !found.empty()) return found;
    for (int index = 0; index < 3; ++index) {
        const HWND window = picker(index);
        if (!compare.same(Numbered("palette window", index), expected.pickers.at(index), window != nullptr))
            break;
        const bool isEnabled = window && ::IsWindowEnabled(window);
        const bool mustBe = window && !expected.box.isOpen();
        if (!compare.same(Numbered("enabled palette window", index), mustBe, isEnabled)) break;
    }
    if (compare.found.empty()) compare.same("title", expected.title, text(form));
    return compare.found;
}

std::string Eyes::boxDifference(const Look& expected) {
    Comparison compare;
    const HWND window = box();
    compare.same("box", expected.box.title, window ? text(window) : "") &&
        compare.same("enabled window", !expected.box.isOpen(), ::IsWindowEnabled(form) != FALSE);
    if (!compare.found.empty()) return compare.found;
    if (window && expected.box.text.empty()) {
        compare.same("field for a name", true, nameField(window) != nullptr && focus() == nameField(window));
    } else if (window) {
        constexpr int messageText = 0xFFFF;
        compare.same("message", expected.box.text, text(::GetDlgItem(window, messageText)));
    } else {
        compare.same("window in front", std::string(NameOf(expected.front)),
                     std::string(NameOf(frontWindow())));
    }
    return compare.found;
}

std::string Eyes::editorDifference(const Look& expected) {
    Comparison compare;
    const Color color = expected.marks.colors.at(expected.selected);
    const std::array channels = {color.red, color.green, color.blue};
    for (int channel = 0; channel < 3 && compare.found.empty(); ++channel) {
        const auto position = static_cast<int>(ask(control(IDC_hsbRed + channel), SBM_GETPOS));
        compare.same(Numbered("slider", channel), channels.at(channel), position) &&
            compare.same(Numbered("value", channel), expected.values.at(channel),
                         text(control(IDC_txtSetRed + channel)));
    }
    const auto isEnabled = [&](int id) { return ::IsWindowEnabled(control(id)) != FALSE; };
    const auto isChecked = [&](int id) { return ask(control(id), BM_GETCHECK) == BST_CHECKED; };
    if (!compare.found.empty()) return compare.found;
    compare.same("preview", expected.preview, text(control(IDC_lblClipboard))) &&
        compare.same("Set enabled", expected.isSetEnabled, isEnabled(IDC_cmdSetColor)) &&
        compare.same("Dec enabled", expected.isModeEnabled, isEnabled(IDC_optSetDec)) &&
        compare.same("Hex enabled", expected.isModeEnabled, isEnabled(IDC_optSetHex)) &&
        compare.same("Dec", expected.isDecimal, isChecked(IDC_optSetDec)) &&
        compare.same("Hex", !expected.isDecimal, isChecked(IDC_optSetHex));
    return compare.found;
}

std::string Eyes::markDifference(const Look& expected) {
    Comparison compare;
    for (int mark = 0; mark < 6 && compare.found.empty(); ++mark) {
        const bool isSelected = mark == expected.selected;
        const bool isOn = ask(control(IDC_optColor + mark), BM_GETCHECK) == BST_CHECKED;
        const bool isEnabled = ::IsWindowEnabled(control(IDC_picSample + mark)) != FALSE;
        compare.same(Numbered("option", mark), isSelected, isOn) &&
            compare.same(Numbered("sample enabled", mark), isSelected, isEnabled) &&
            compare.same(Numbered("name", mark), expected.marks.names.at(mark),
                         text(control(IDC_txtName + mark))) &&
            compare.oneOf(Numbered("letters", mark), expected.letters.at(mark),
                          text(control(IDC_lblColorProp + mark)));
    }
    return compare.found;
}

std::string Eyes::commandDifference(const Look& expected) {
    Comparison compare;
    const auto isButtonEnabled = [&](int command) {
        return ask(control(IDC_tbrTools), TB_ISBUTTONENABLED, command) != 0;
    };
    const auto isChecked = [&](int id) { return ask(control(id), BM_GETCHECK) == BST_CHECKED; };
    const auto isEnabled = [&](int id) { return ::IsWindowEnabled(control(id)) != FALSE; };
    const auto isVisible = [&](int id) { return ::IsWindowVisible(control(id)) != FALSE; };
    compare.same("notation", expected.notation,
                 static_cast<int>(ask(control(IDC_lstAutocopy), LB_GETCURSEL))) &&
        compare.same("list enabled", !expected.areNamesCopied, isEnabled(IDC_lstAutocopy)) &&
        compare.same("names copied", expected.areNamesCopied, isChecked(IDC_chkJSNamesOnly)) &&
        compare.same("pick mode", expected.isPickMode, isChecked(IDC_chkColorPick)) &&
        compare.same("samples enabled", expected.isPickMode, isEnabled(IDC_picSampleContainer)) &&
        compare.same("open enabled", !expected.isPickMode, isButtonEnabled(IDM_mnuFileOpen)) &&
        compare.same("paste enabled", expected.isPasteEnabled, isButtonEnabled(IDM_mnuEditPasteColor)) &&
        compare.same("pick preview", false, isVisible(IDC_picPick)) &&
        compare.same("sliders shown", true, isVisible(IDC_hsbBlue));
    return compare.found;
}

std::string Eyes::pixelDifference(const Look& expected) const {
    Comparison compare;
    const POINT samples = CenterOf(control(IDC_picSample));
    const int width = static_cast<int>(CenterOf(control(IDC_picSample + 5)).x - samples.x) + 1;
    const ScreenRow sampleRow(samples, width);
    RECT area{};
    ::GetClientRect(control(IDC_txtName), &area);
    const POINT names = OnScreen(control(IDC_txtName), {area.right - 3, 2});
    const ScreenRow nameRow(names, width);
    for (int mark = 0; mark < 6 && compare.found.empty(); ++mark) {
        const int left = mark * (width - 1) / 5;
        const Color back = expected.highlighted.at(mark) ? ColorOf(255, 250, 205) : ColorOf(255, 255, 255);
        compare.same(Numbered("sample", mark), expected.marks.colors.at(mark), sampleRow.at(left)) &&
            compare.same(Numbered("back of name", mark), back, nameRow.at(left));
    }
    const ScreenRow bar(barStep(0), BarStepLeft(255) + 1);
    const Color color = expected.marks.colors.at(expected.selected);
    for (int step = 0; step < 256 && compare.found.empty(); ++step)
        compare.same(Numbered("step", step), BarColor(color, step), bar.at(BarStepLeft(step)));
    return compare.found;
}
