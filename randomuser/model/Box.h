// What lies over the main window and must be answered first?
#pragma once

#include <string>

#include "randomuser/model/Clipboard.h"
#include "randomuser/model/Look.h"

/// A message, a file dialog or a dialog of the program's own.
class Box {
public:
    enum class Kind {
        none,
        question,  ///< whether to save
        refusal,   ///< of a typed value
        report,
        offer,  ///< a report that offers a name
        fatal,
        message,
        save,
        open,
        notepad,
        overwrite,
        options,
        format,
        about
    };

    explicit Box(ClipboardFact& clipboard) : clipboard(clipboard) {}

    bool is(Kind wanted) const { return kind == wanted; }
    bool isOpen() const { return kind != Kind::none; }
    bool isFileDialog() const;
    bool hasButton(int number) const;
    void tell(Look& look) const;

    void show(Kind shown, const std::string& message = "");
    /// What has been closed.
    Kind close();

private:
    ClipboardFact& clipboard;
    Kind kind = Kind::none;
    std::string text;
};
