// What is there to see of the program after a step?
#pragma once

#include <array>
#include <set>
#include <string>

#include "randomuser/model/PaletteText.h"

/// The windows that can be in front: three palette windows, that of the contrast, the main window, another
/// program's, or none of them.
enum class Front { websafe, failsafe, javaScript, contrast, main, other, none };

/// What lies over the main window and must be answered first.
enum class BoxKind { none, message, file, options, format, about };

struct BoxLook {
    BoxKind kind = BoxKind::none;
    std::string title = {};
    std::string text = {};  ///< of a message, or the template in the editor of the custom notation
    int row = 0;            ///< this and the following: of the options
    bool asksToSave = false;
    bool isByHue = false;

    bool isOpen() const { return kind != BoxKind::none; }
    friend bool operator==(const BoxLook&, const BoxLook&) = default;
};

struct Look {
    bool isRunning = false;
    int exitCode = 0;  ///< of a program that has ended
    Front front = Front::main;
    BoxLook box = {};
    std::array<bool, 4> pickers = {};  ///< the fourth is the contrast window
    std::string contrast = {};         ///< what that window says of the cell with the frame
    std::string title = {};

    SixMarks marks = {};
    std::array<bool, 6> highlighted = {};
    /// The letters follow the colours with the clipboard: they are one of these.
    std::array<std::set<std::string>, 6> letters = {};
    int selected = 0;

    std::array<std::string, 3> values = {};
    bool isSetEnabled = false;
    bool isModeEnabled = false;
    bool isDecimal = true;

    int notation = 0;  ///< -1 while names are copied
    std::string preview = {};
    bool areNamesCopied = false;
    bool isPickMode = false;
    bool isPasteEnabled = false;
    bool isOnTop = false;
    int focus = 0;  ///< the control that must have the focus, 0 for any

    friend bool operator==(const Look&, const Look&) = default;
};
