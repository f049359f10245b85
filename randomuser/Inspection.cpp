#include "randomuser/Inspection.h"

#include <algorithm>

#include "mainwindow/panels/ColorRamp.h"
#include "randomuser/model/Facts.h"
#include "randomuser/model/SessionFiles.h"
#include "resources/resource.h"
#include "tests/driver/Dropping.h"
#include "tests/driver/FindWindows.h"
#include "tests/driver/Input.h"

namespace {

std::string Numbered(const char* what, int number) {
    return std::string(what) + ' ' + std::to_string(number);
}

const char* NameOf(Front front) {
    constexpr std::array names = {"websafe", "failsafe", "JavaScript", "contrast", "main", "other", "none"};
    return names.at(static_cast<std::size_t>(front));
}

/// Wine raises a window from which a menu, a tool tip or a message has gone without asking its program where
/// to. A click on Windows asks, and so is it asked here.
bool StaysAbove(HWND window, HWND other) {
    if (IsAbove(window, other)) return true;
    ::SetWindowPos(other, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return IsAbove(window, other);
}

int ShownChannel(const Look& look, int channel) {
    return ChannelOf(look.marks.colors.at(look.selected), channel);
}

}  // namespace

std::string Inspection::difference() {
    eyes.beginLook();
    compare.same("running", expected.isRunning, eyes.isRunning());
    if (!compare.difference().empty() || !expected.isRunning) return compare.difference();
    lookAtFrame();
    lookAtColor();
    lookAtMode();
    lookAtMarks();
    lookAtNotations();
    lookAtCommands();
    // A box may lie over the window.
    if (compare.isLookingAtAll() && !expected.box.isOpen()) lookAtPixels();
    return eyes.hasAnswered() ? compare.difference() : "hang: no answer for a minute";
}

void Inspection::lookAtFrame() {
    expected.box.isOpen() ? lookAtBox() : lookAtFront();
    compare.same("enabled window", !expected.box.isOpen(), ::IsWindowEnabled(eyes.main()) != FALSE);
    for (int picker = 0; picker < 4; ++picker) lookAtPicker(picker);
    lookAtOrder();
    compare.same("contrast", expected.contrast, earlier.contrast, [&] {
        const HWND window = eyes.picker(static_cast<int>(Front::contrast));
        return window ? eyes.text(::GetDlgItem(window, IDC_grdContrast)) : "";
    });
    compare.same("title", expected.title, earlier.title, [&] { return eyes.text(eyes.main()); });
    if (expected.focus != 0) compare.same("focus", expected.focus, ::GetDlgCtrlID(eyes.focus()));
}

void Inspection::lookAtFront() {
    if (earlier.box.isOpen() || compare.isLookingAtAll()) compare.same("box", false, eyes.box() != nullptr);
    compare.same("window in front", std::string(NameOf(expected.front)),
                 std::string(NameOf(eyes.frontWindow())));
}

void Inspection::lookAtPicker(int picker) {
    const bool isOpen = expected.pickers.at(picker);
    compare.same(Numbered("palette window", picker), isOpen, earlier.pickers.at(picker),
                 [&] { return eyes.picker(picker) != nullptr; });
    if (isOpen && compare.isLookingAtAll())
        compare.same(Numbered("enabled palette window", picker), !expected.box.isOpen(),
                     ::IsWindowEnabled(eyes.picker(picker)) != FALSE);
}

/// What is the program's own stands above a main window that is kept on top.
void Inspection::lookAtOrder() {
    compare.same("kept on top", expected.isOnTop, Eyes::isTopmost(eyes.main()));
    for (int picker = 0; picker < 4; ++picker) {
        if (!expected.pickers.at(picker)) continue;
        const HWND window = eyes.picker(picker);
        compare.same(Numbered("topmost palette window", picker), expected.isOnTop, Eyes::isTopmost(window));
        if (expected.isOnTop && compare.difference().empty())
            compare.same(Numbered("palette window above", picker), true, StaysAbove(window, eyes.main()));
    }
    if (expected.isOnTop && expected.box.isOpen())
        compare.same("box above", true, StaysAbove(eyes.box(), eyes.main()));
}

void Inspection::lookAtBox() {
    const HWND box = eyes.box();
    compare.same("box", expected.box.title, box ? eyes.text(box) : "");
    if (compare.difference().empty()) lookInto(box);
}

void Inspection::lookInto(HWND box) {
    constexpr int messageText = 0xFFFF;
    const HWND field = Eyes::nameField(box);
    const auto textIn = [&](int id) { return eyes.text(::GetDlgItem(box, id)); };
    switch (expected.box.kind) {
        case BoxKind::message: return compare.same("message", expected.box.text, textIn(messageText));
        case BoxKind::file:
            return compare.same("field for a name", true, field != nullptr && eyes.focus() == field);
        case BoxKind::options: return lookAtOptions(box);
        case BoxKind::format: return compare.same("template", expected.box.text, textIn(IDC_txtFormat));
        case BoxKind::about: return compare.same("dialog in front", true, ::GetForegroundWindow() == box);
        case BoxKind::none: return;
    }
}

void Inspection::lookAtOptions(HWND box) {
    const auto inBox = [box](int id) { return ::GetDlgItem(box, id); };
    const auto isOn = [&](int id) { return eyes.ask(inBox(id), BM_GETCHECK) == BST_CHECKED; };
    compare.same("row of the options", expected.box.row,
                 static_cast<int>(eyes.ask(inBox(IDC_lstStandardFormat), LB_GETCURSEL)));
    compare.same("Yes", expected.box.asksToSave, isOn(IDC_optYes));
    compare.same("No", !expected.box.asksToSave, isOn(IDC_optNo));
    compare.same("sorted by name", !expected.box.isByHue, isOn(IDC_optAlphabetically));
    compare.same("sorted by hue", expected.box.isByHue, isOn(IDC_optDotNet));
    compare.same("folder", std::string(filesFolder), eyes.text(inBox(IDC_lblSelectedStandardFolder)));
}

void Inspection::lookAtColor() {
    for (int channel = 0; channel < 3; ++channel) {
        compare.same(Numbered("slider", channel), ShownChannel(expected, channel),
                     ShownChannel(earlier, channel),
                     [&] { return numberOf(IDC_hsbRed + channel, SBM_GETPOS); });
        compare.same(Numbered("value", channel), expected.values.at(channel), earlier.values.at(channel),
                     [&] { return textOf(IDC_txtSetRed + channel); });
    }
    if (compare.difference().empty()) compare.same("preview", expected.preview, textOf(IDC_lblClipboard));
}

void Inspection::lookAtMode() {
    compare.same("Set enabled", expected.isSetEnabled, earlier.isSetEnabled,
                 [&] { return isEnabled(IDC_cmdSetColor); });
    compare.same("Dec enabled", expected.isModeEnabled, earlier.isModeEnabled,
                 [&] { return isEnabled(IDC_optSetDec); });
    compare.same("Hex enabled", expected.isModeEnabled, earlier.isModeEnabled,
                 [&] { return isEnabled(IDC_optSetHex); });
    compare.same("Dec", expected.isDecimal, earlier.isDecimal, [&] { return isChecked(IDC_optSetDec); });
    compare.same("Hex", !expected.isDecimal, !earlier.isDecimal, [&] { return isChecked(IDC_optSetHex); });
}

void Inspection::lookAtMarks() {
    for (int mark = 0; mark < 6; ++mark) {
        const bool isSelected = mark == expected.selected;
        const bool wasSelected = mark == earlier.selected;
        compare.same(Numbered("option", mark), isSelected, wasSelected,
                     [&] { return isChecked(IDC_optColor + mark); });
        compare.same(Numbered("sample enabled", mark), isSelected, wasSelected,
                     [&] { return isEnabled(IDC_picSample + mark); });
        compare.same(Numbered("name", mark), expected.marks.names.at(mark), earlier.marks.names.at(mark),
                     [&] { return textOf(IDC_txtName + mark); });
        compare.oneOf(Numbered("letters", mark), expected.letters.at(mark),
                      [&] { return textOf(IDC_lblColorProp + mark); });
    }
}

void Inspection::lookAtNotations() {
    compare.same("notation", expected.notation, earlier.notation,
                 [&] { return numberOf(IDC_lstAutocopy, LB_GETCURSEL); });
    compare.same("list enabled", !expected.areNamesCopied, !earlier.areNamesCopied,
                 [&] { return isEnabled(IDC_lstAutocopy); });
    compare.same("names copied", expected.areNamesCopied, earlier.areNamesCopied,
                 [&] { return isChecked(IDC_chkJSNamesOnly); });
}

void Inspection::lookAtCommands() {
    const auto isButtonEnabled = [&](int command) {
        return eyes.ask(eyes.control(IDC_tbrTools), TB_ISBUTTONENABLED, command) != 0;
    };
    compare.same("pick mode", expected.isPickMode, earlier.isPickMode,
                 [&] { return isChecked(IDC_chkColorPick); });
    compare.same("samples enabled", expected.isPickMode, earlier.isPickMode,
                 [&] { return isEnabled(IDC_picSampleContainer); });
    compare.same("open enabled", !expected.isPickMode, !earlier.isPickMode,
                 [&] { return isButtonEnabled(IDM_mnuFileOpen); });
    compare.same("paste enabled", expected.isPasteEnabled, earlier.isPasteEnabled,
                 [&] { return isButtonEnabled(IDM_mnuEditPasteColor); });
    compare.same("takes files", !expected.isPickMode && !expected.box.isOpen(),
                 !earlier.isPickMode && !earlier.box.isOpen(), [&] { return TakesDrops(eyes.main()); });
    if (!compare.isLookingAtAll()) return;
    compare.same("pick preview", false, ::IsWindowVisible(eyes.control(IDC_picPick)) != FALSE);
    compare.same("sliders shown", true, ::IsWindowVisible(eyes.control(IDC_hsbBlue)) != FALSE);
}

/// From the names to the bar, read at once.
void Inspection::lookAtPixels() {
    const POINT samples = CenterOf(eyes.control(IDC_picSample));
    const int width = static_cast<int>(CenterOf(eyes.control(IDC_picSample + 5)).x - samples.x) + 1;
    RECT area{};
    ::GetClientRect(eyes.control(IDC_txtName), &area);
    const POINT names = OnScreen(eyes.control(IDC_txtName), {area.right - 3, 2});
    const POINT bar = eyes.barStep(0);
    const LONG left = std::min(bar.x, samples.x);
    const LONG right = std::max({names.x + width, samples.x + width, bar.x + BarStepLeft(255) + 1});
    const ScreenPart part({left, names.y}, right - left, bar.y - names.y + 1);
    for (int mark = 0; mark < 6; ++mark) {
        const LONG aside = mark * (width - 1) / 5;
        lookAtMarkIn(part, mark, {samples.x + aside, samples.y}, {names.x + aside, names.y});
    }
    lookAtBarIn(part, bar);
}

void Inspection::lookAtMarkIn(const ScreenPart& part, int mark, POINT sample, POINT name) {
    const Color back = expected.highlighted.at(mark) ? ColorOf(255, 250, 205) : ColorOf(255, 255, 255);
    compare.same(Numbered("sample", mark), expected.marks.colors.at(mark), part.at(sample));
    compare.same(Numbered("back of name", mark), back, part.at(name));
}

void Inspection::lookAtBarIn(const ScreenPart& part, POINT bar) {
    const Color color = expected.marks.colors.at(expected.selected);
    for (int step = 0; step < 256 && compare.difference().empty(); ++step)
        compare.same(Numbered("step", step), BarColor(color, step),
                     part.at({bar.x + BarStepLeft(step), bar.y}));
}
