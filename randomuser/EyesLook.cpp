#include <algorithm>

#include "mainwindow/panels/ColorRamp.h"
#include "randomuser/Eyes.h"
#include "randomuser/Screen.h"
#include "randomuser/model/Facts.h"
#include "randomuser/model/SessionFiles.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"

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

std::string Numbered(const char* what, int number) {
    return std::string(what) + ' ' + std::to_string(number);
}

const char* NameOf(Front front) {
    constexpr std::array names = {"websafe", "failsafe", "JavaScript", "main", "other", "none"};
    return names.at(static_cast<std::size_t>(front));
}

}  // namespace

/// Remembers the first difference.
class Comparison {
public:
    explicit Comparison(Extent extent) : isEverything(extent == Extent::everything) {}

    bool isLookingAtAll() const { return found.empty() && isEverything; }

    template <class Value>
    void same(const std::string& what, const Value& expected, const Value& seen) {
        if (found.empty() && expected != seen)
            found = what + ": expected " + Printed(expected) + ", seen " + Printed(seen);
    }
    /// Reads only what must have changed, if that is all that is looked at.
    template <class Value, class Read>
    void same(const std::string& what, const Value& expected, const Value& earlier, Read read) {
        if (!found.empty() || (!isEverything && expected == earlier)) return;
        same(what, expected, static_cast<Value>(read()));
    }
    template <class Read>
    void oneOf(const std::string& what, const std::set<std::string>& expected, Read read) {
        if (!isLookingAtAll()) return;
        const std::string seen = read();
        if (!expected.contains(seen))
            found = what + ": expected " + Printed(expected) + ", seen " + Printed(seen);
    }

    std::string found;

private:
    bool isEverything;
};

std::string Eyes::difference(const Look& expected, const Look& earlier, Extent extent) {
    hasAnswered = true;
    Comparison compare(extent);
    compare.same("running", expected.isRunning, isRunning());
    if (!compare.found.empty() || !expected.isRunning) return compare.found;
    lookAtFrame(compare, expected, earlier);
    lookAtEditors(compare, expected, earlier);
    lookAtMarks(compare, expected, earlier);
    lookAtCommands(compare, expected, earlier);
    // A box may lie over the window.
    if (compare.isLookingAtAll() && !expected.box.isOpen()) lookAtPixels(compare, expected);
    return hasAnswered ? compare.found : "hang: no answer for a minute";
}

void Eyes::lookAtFrame(Comparison& compare, const Look& expected, const Look& earlier) {
    if (expected.box.isOpen()) {
        lookAtBox(compare, expected.box);
    } else {
        if (earlier.box.isOpen() || compare.isLookingAtAll()) compare.same("box", false, box() != nullptr);
        compare.same("window in front", std::string(NameOf(expected.front)),
                     std::string(NameOf(frontWindow())));
    }
    compare.same("enabled window", !expected.box.isOpen(), ::IsWindowEnabled(form) != FALSE);
    for (int index = 0; index < 3; ++index) {
        const bool isOpen = expected.pickers.at(index);
        compare.same(Numbered("palette window", index), isOpen, earlier.pickers.at(index),
                     [&] { return picker(index) != nullptr; });
        if (isOpen && compare.isLookingAtAll())
            compare.same(Numbered("enabled palette window", index), !expected.box.isOpen(),
                         ::IsWindowEnabled(picker(index)) != FALSE);
    }
    compare.same("title", expected.title, earlier.title, [&] { return text(form); });
    if (expected.focus != 0) compare.same("focus", expected.focus, ::GetDlgCtrlID(focus()));
}

void Eyes::lookAtBox(Comparison& compare, const BoxLook& expected) {
    constexpr int messageText = 0xFFFF;
    const HWND window = box();
    compare.same("box", expected.title, window ? text(window) : "");
    if (!compare.found.empty()) return;
    switch (expected.kind) {
        case BoxKind::message:
            return compare.same("message", expected.text, text(::GetDlgItem(window, messageText)));
        case BoxKind::file:
            return compare.same("field for a name", true,
                                nameField(window) != nullptr && focus() == nameField(window));
        case BoxKind::options: return lookAtOptions(compare, expected);
        case BoxKind::format:
            return compare.same("template", expected.text, text(::GetDlgItem(window, IDC_txtFormat)));
        default: return compare.same("dialog in front", true, ::GetForegroundWindow() == window);
    }
}

void Eyes::lookAtOptions(Comparison& compare, const BoxLook& expected) {
    const auto inBox = [window = box()](int id) { return ::GetDlgItem(window, id); };
    const auto isOn = [&](int id) { return ask(inBox(id), BM_GETCHECK) == BST_CHECKED; };
    compare.same("row of the options", expected.row,
                 static_cast<int>(ask(inBox(IDC_lstStandardFormat), LB_GETCURSEL)));
    compare.same("Yes", expected.asksToSave, isOn(IDC_optYes));
    compare.same("No", !expected.asksToSave, isOn(IDC_optNo));
    compare.same("sorted by name", !expected.isByHue, isOn(IDC_optAlphabetically));
    compare.same("sorted by hue", expected.isByHue, isOn(IDC_optDotNet));
    compare.same("folder", std::string(filesFolder), text(inBox(IDC_lblSelectedStandardFolder)));
}

void Eyes::lookAtEditors(Comparison& compare, const Look& expected, const Look& earlier) {
    const auto channels = [](const Look& look) {
        const Color color = look.marks.colors.at(look.selected);
        return std::array{color.red, color.green, color.blue};
    };
    for (int channel = 0; channel < 3; ++channel) {
        compare.same(Numbered("slider", channel), channels(expected).at(channel),
                     channels(earlier).at(channel),
                     [&] { return static_cast<int>(ask(control(IDC_hsbRed + channel), SBM_GETPOS)); });
        compare.same(Numbered("value", channel), expected.values.at(channel), earlier.values.at(channel),
                     [&] { return text(control(IDC_txtSetRed + channel)); });
    }
    if (!compare.found.empty()) return;
    compare.same("preview", expected.preview, text(control(IDC_lblClipboard)));
    compare.same("Set enabled", expected.isSetEnabled, earlier.isSetEnabled,
                 [&] { return isEnabled(IDC_cmdSetColor); });
    compare.same("Dec enabled", expected.isModeEnabled, earlier.isModeEnabled,
                 [&] { return isEnabled(IDC_optSetDec); });
    compare.same("Hex enabled", expected.isModeEnabled, earlier.isModeEnabled,
                 [&] { return isEnabled(IDC_optSetHex); });
    compare.same("Dec", expected.isDecimal, earlier.isDecimal, [&] { return isChecked(IDC_optSetDec); });
    compare.same("Hex", !expected.isDecimal, !earlier.isDecimal, [&] { return isChecked(IDC_optSetHex); });
}

void Eyes::lookAtMarks(Comparison& compare, const Look& expected, const Look& earlier) {
    for (int mark = 0; mark < 6; ++mark) {
        const bool isSelected = mark == expected.selected;
        const bool wasSelected = mark == earlier.selected;
        compare.same(Numbered("option", mark), isSelected, wasSelected,
                     [&] { return isChecked(IDC_optColor + mark); });
        compare.same(Numbered("sample enabled", mark), isSelected, wasSelected,
                     [&] { return isEnabled(IDC_picSample + mark); });
        compare.same(Numbered("name", mark), expected.marks.names.at(mark), earlier.marks.names.at(mark),
                     [&] { return text(control(IDC_txtName + mark)); });
        compare.oneOf(Numbered("letters", mark), expected.letters.at(mark),
                      [&] { return text(control(IDC_lblColorProp + mark)); });
    }
}

void Eyes::lookAtCommands(Comparison& compare, const Look& expected, const Look& earlier) {
    const auto isButtonEnabled = [&](int command) {
        return ask(control(IDC_tbrTools), TB_ISBUTTONENABLED, command) != 0;
    };
    compare.same("notation", expected.notation, earlier.notation,
                 [&] { return static_cast<int>(ask(control(IDC_lstAutocopy), LB_GETCURSEL)); });
    compare.same("list enabled", !expected.areNamesCopied, !earlier.areNamesCopied,
                 [&] { return isEnabled(IDC_lstAutocopy); });
    compare.same("names copied", expected.areNamesCopied, earlier.areNamesCopied,
                 [&] { return isChecked(IDC_chkJSNamesOnly); });
    compare.same("pick mode", expected.isPickMode, earlier.isPickMode,
                 [&] { return isChecked(IDC_chkColorPick); });
    compare.same("samples enabled", expected.isPickMode, earlier.isPickMode,
                 [&] { return isEnabled(IDC_picSampleContainer); });
    compare.same("open enabled", !expected.isPickMode, !earlier.isPickMode,
                 [&] { return isButtonEnabled(IDM_mnuFileOpen); });
    compare.same("paste enabled", expected.isPasteEnabled, earlier.isPasteEnabled,
                 [&] { return isButtonEnabled(IDM_mnuEditPasteColor); });
    if (!compare.isLookingAtAll()) return;
    compare.same("pick preview", false, ::IsWindowVisible(control(IDC_picPick)) != FALSE);
    compare.same("sliders shown", true, ::IsWindowVisible(control(IDC_hsbBlue)) != FALSE);
}

void Eyes::lookAtPixels(Comparison& compare, const Look& expected) const {
    const POINT samples = CenterOf(control(IDC_picSample));
    const int width = static_cast<int>(CenterOf(control(IDC_picSample + 5)).x - samples.x) + 1;
    RECT area{};
    ::GetClientRect(control(IDC_txtName), &area);
    const POINT names = OnScreen(control(IDC_txtName), {area.right - 3, 2});
    const POINT bar = barStep(0);
    // From the names to the bar, read at once.
    const LONG left = std::min(bar.x, samples.x);
    const LONG right = std::max({names.x + width, samples.x + width, bar.x + BarStepLeft(255) + 1});
    const ScreenPart part({left, names.y}, right - left, bar.y - names.y + 1);
    for (int mark = 0; mark < 6; ++mark) {
        const LONG aside = mark * (width - 1) / 5;
        const Color back = expected.highlighted.at(mark) ? ColorOf(255, 250, 205) : ColorOf(255, 255, 255);
        compare.same(Numbered("sample", mark), expected.marks.colors.at(mark),
                     part.at({samples.x + aside, samples.y}));
        compare.same(Numbered("back of name", mark), back, part.at({names.x + aside, names.y}));
    }
    const Color color = expected.marks.colors.at(expected.selected);
    for (int step = 0; step < 256 && compare.found.empty(); ++step)
        compare.same(Numbered("step", step), BarColor(color, step),
                     part.at({bar.x + BarStepLeft(step), bar.y}));
}
