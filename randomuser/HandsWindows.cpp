#include <optional>

#include "randomuser/Hands.h"
#include "resources/resource.h"
#include "tests/driver/Input.h"
#include "tests/driver/PickerWindow.h"
#include "tests/driver/UiTest.h"

namespace {

/// How a command is reached by keys and by the tool bar; a shortcut of 0 is none.
struct Command {
    WORD shortcut;
    bool isWithControl;  // cppcheck-suppress unusedStructMember
    int button;          // cppcheck-suppress unusedStructMember
    WORD menu;
    WORD item;
};

std::optional<Command> CommandOf(Kind kind) {
    switch (kind) {
        case Kind::copyColor: return Command{VK_F2, false, IDM_mnuEditCopyColor, 'E', 'C'};
        case Kind::pasteColor: return Command{VK_F3, false, IDM_mnuEditPasteColor, 'E', 'P'};
        case Kind::findNames: return Command{VK_F5, false, IDM_mnuEditFind, 'E', 'F'};
        case Kind::properties: return Command{VK_F4, false, IDM_mnuHelpColorProperties, 'H', 'C'};
        case Kind::newPalette: return Command{'N', true, IDM_mnuFileNew, 'F', 'N'};
        case Kind::openPalette: return Command{'O', true, IDM_mnuFileOpen, 'F', 'O'};
        case Kind::openInNotepad: return Command{'I', true, IDM_mnuFileOpenInNotepad, 'F', 'I'};
        case Kind::savePalette: return Command{'S', true, IDM_mnuFileSave, 'F', 'S'};
        case Kind::openOptions: return Command{VK_F9, false, IDM_mnuToolsOptions, 'T', 'O'};
        case Kind::openFormat: return Command{VK_F8, false, IDM_mnuToolsCustomFormat, 'T', 'C'};
        case Kind::help: return Command{VK_F1, false, IDM_mnuHelpHelp, 'H', 'H'};
        default: return std::nullopt;
    }
}

constexpr std::array grids = {websafeGrid, failsafeGrid, javaScriptGrid};

Swatch PlaceOf(int window, int index) {
    if (window == 0) return {index / 6 % 6 * 6 + index / 36, 5 - index % 6};
    const int columns = grids.at(window).columns;
    return {index % columns, index / columns};
}

}  // namespace

void Hands::playCommand(const Action& action) {
    if (action.kind == Kind::savePaletteAs) chooseFromMenu('F', 'A');
    if (action.kind == Kind::openAbout) chooseFromMenu('H', 'A');
    const std::optional command = CommandOf(action.kind);
    if (!command) return;
    if (action.which == 1) {
        clickAt(toolButton(command->button));
    } else if (action.which == 2) {
        chooseFromMenu(command->menu, command->item);
    } else if (command->isWithControl) {
        Press(command->shortcut, {VK_CONTROL});
    } else {
        Press(command->shortcut);
    }
    if (action.kind == Kind::help) closeHelp();
}

/// The bar does not move.
POINT Hands::toolButton(int command) {
    const auto known = toolButtons.find(command);
    if (known != toolButtons.end()) return known->second;
    return toolButtons[command] = huevox.toolButton(command);
}

void Hands::playWindows(const Action& action, const Look& before) {
    switch (action.kind) {
        case Kind::openPicker: openPicker(action.which); break;
        case Kind::swatch:
        case Kind::rightSwatch: clickSwatch(action); break;
        case Kind::sortOrder: {
            const HWND bar = ::GetDlgItem(eyes.picker(2), IDC_tbrSortTools);
            const POINT place = huevox.toolButton(bar, action.value == 0 ? IDM_Alphabetically : IDM_DotNet);
            uncover(eyes.picker(2), place);
            Click(place);
            break;
        }
        case Kind::closePicker:
            if (before.front == Front::main) waitForInput();
            closePicker(action.which);
            break;
        case Kind::comeBack: clickAt(eyes.emptyPlace()); break;
        case Kind::close: close(action.which); break;
        case Kind::answer: answer(action); break;
        case Kind::choosePath: choosePath(action.text, before.box.title == "Open Palette In Notepad"); break;
        case Kind::cancelDialog: Press(VK_ESCAPE); break;
        case Kind::vainClick: vainClick(action.value); break;
        default: break;
    }
}

/// Puts a new window where no other of the program's lies over it.
void Hands::openPicker(int index) {
    constexpr std::array<POINT, 3> places = {{{0, 620}, {0, 850}, {900, 100}}};
    const bool isNew = eyes.picker(index) == nullptr;
    clickOn(grids.at(index).button);
    if (!isNew) return;
    // A new one goes to a place of its own when it is activated.
    bringWindow([&] { return eyes.picker(index); });
    if (missing.empty()) moveTo(eyes.picker(index), places.at(index));
}

/// Another window may lie over the place; the one in front need not be the one on top.
void Hands::uncover(HWND window, POINT place) {
    const auto isOnTop = [&] { return ::GetAncestor(::WindowFromPoint(place), GA_ROOT) == window; };
    if (isOnTop()) return;
    bringWindow([window] { return window; });
    await("a place that nothing lies over", [&] {
        ::SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        return isOnTop();
    });
}

void Hands::clickSwatch(const Action& action) {
    const PickerWindow::Grid& grid = grids.at(action.which);
    const HWND swatches = ::GetDlgItem(eyes.picker(action.which), grid.swatches);
    const Swatch swatch = PlaceOf(action.which, action.value);
    RECT area{};
    ::GetClientRect(swatches, &area);
    const POINT place = OnScreen(swatches, {(2 * swatch.column + 1) * area.right / (2 * grid.columns),
                                            (2 * swatch.row + 1) * area.bottom / (2 * grid.rows)});
    uncover(eyes.picker(action.which), place);
    action.kind == Kind::rightSwatch ? RightClick(place) : Click(place);
}

void Hands::closePicker(int index) {
    ::PostMessageA(eyes.picker(index), WM_CLOSE, 0, 0);
    await("the end of a palette window", [&] { return eyes.picker(index) == nullptr; });
    bring(Front::main);
}

void Hands::close(int way) {
    waitForInput();
    if (way == 0) Press(VK_F4, {VK_MENU});
    if (way == 1) ::PostMessageA(eyes.main(), WM_SYSCOMMAND, SC_CLOSE, 0);
    if (way == 2) chooseFromMenu('F', 'E');
}

void Hands::playOutside(const Action& action, const Look& before) {
    switch (action.kind) {
        case Kind::otherInFront:
            if (before.front == Front::main) waitForInput();
            other.takeForeground();
            break;
        case Kind::otherCopies: CopyElsewhere(action.text); break;
        case Kind::otherHolds: other.holdClipboard(); break;
        case Kind::otherLetsGo: other.letGo(); break;
        default: break;
    }
}
