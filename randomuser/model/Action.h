// What can a user, or another program, do to Huevox in one step?
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Each has a row in Rows.cpp, and its keys and clicks in Ways.cpp.
enum class Kind {
    start,        ///< value: the stored settings that the program finds
    sliderKeys,   ///< which: 0 to 2; value: the key plus 8 times how often
    sliderArrow,  ///< which: 0 to 2; value: -1 or 1
    sliderDrag,   ///< which: 0 to 2; value: 0 or 255
    barClick,     ///< value: the step
    selectMark,   ///< which: 0 to 5
    markKeys,     ///< value: so many marks to the right, or to the left
    typeValue,    ///< which: 0 to 2; text
    enterValue,   ///< which: 0 to 2
    pressSet,
    setMode,    ///< value: 0 decimal, 1 hexadecimal
    typeName,   ///< which: 0 to 5; text
    eraseName,  ///< which: 0 to 5
    copyColor,  ///< which, for this and all commands: 0 by key, 1 by the tool bar, 2 by the menu
    pasteColor,
    findNames,
    properties,
    notation,      ///< value: the row
    notationKeys,  ///< value: so many rows down, or up
    jsNames,
    pickMode,
    pickDrag,  ///< which: 0 to 5 a sample, 6 the colour bar; value: its step
    pickRight,
    openPicker,   ///< which: 0 websafe, 1 failsafe, 2 JavaScript
    swatch,       ///< which as above; value: the index
    rightSwatch,  ///< the same by the right button
    sortOrder,    ///< value: 0 alphabetical, 1 by hue
    closePicker,  ///< which as above, 3 the contrast window
    comeBack,
    otherInFront,
    otherCopies,  ///< text
    otherHolds,
    otherLetsGo,
    settle,
    newPalette,
    openPalette,
    openInNotepad,
    savePalette,
    savePaletteAs,
    close,       ///< which: 0 by Alt+F4, 1 by the system menu, 2 by the menu
    answer,      ///< which: 2 by the mouse, else by its key; value: the button's number
    choosePath,  ///< text: the path
    cancelDialog,
    vainClick,     ///< value: a control that cannot be reached below the box that is open
    barKeys,       ///< which: 0 from the left end of the bar, 1 from the right; value: so many steps
    swatchKeys,    ///< which: the palette window in front; value: the index, left of the one that is taken
    tabs,          ///< value: so many times Tab, from the red slider on
    openOptions,   ///< which: as of all commands
    chooseRow,     ///< value: the notation's row in the options
    chooseOption,  ///< value: 0 ask to save, 1 do not, 2 sort by name, 3 sort by hue
    openFormat,    ///< which: as of all commands
    insertToken,   ///< value: 0 to 9
    typeFormat,    ///< text
    openAbout,
    closeDialog,   ///< which: 0 by Enter or Escape, 1 by the access key; value: 1 OK, 2 Cancel
    help,          ///< which: as of all commands; the help is shown and closed
    openContrast,  ///< which: 0 by key, 1 by the menu
    pressCell,     ///< which: 0 by the left button, 1 by the right one; value: 0 to 35
    cellKeys,      ///< to the right, and the press of a key: which: 0 Space, 1 Enter
    pickByKeys,    ///< as pickDrag, without the mouse's button: F6 and Enter
    pickInVain,    ///< as pickDrag, but Escape ends it
    undo,          ///< which: 0 by key, 1 by the menu
    redo,          ///< the same
    dropFile,      ///< on the main window; text: the path; which: so many others are dropped with it
    keepOnTop,     ///< or no longer; which: 0 by the keys of the window's own menu, 1 by its command
    count,         ///< stays the last: so many kinds there are
};

inline constexpr auto kindCount = static_cast<std::size_t>(Kind::count);

/// The keys of a slider, in this order.
enum class SliderKey { left, right, up, down, pageUp, pageDown, home, end };

struct Action {
    Kind kind = Kind::start;
    int which = 0;
    int value = 0;
    std::string text = {};

    friend bool operator==(const Action&, const Action&) = default;
};

using Actions = std::vector<Action>;

/// One line without its end: the kind's name, which, value and the text.
std::string LineOf(const Action& action);
/// Reads what LineOf writes; nothing for any other line.
std::optional<Action> ParseLine(std::string_view line);
