// What does Huevox consist of, told once more in plain words?
#pragma once

#include "randomuser/model/CodeChoice.h"
#include "randomuser/model/FileCommands.h"
#include "randomuser/model/Focus.h"
#include "randomuser/model/Pick.h"
#include "randomuser/model/Steps.h"

/// The parts of the model: of one start of the program, until the next.
struct Parts {
    explicit Parts(const Facts& facts) : facts(facts) {}
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;
    ~Parts() = default;

    void start(const StoredSettings& found);
    void openPicker(int picker) { windows.openPicker(picker, dialogs.inUse().sortIndex == 1); }
    void takeSwatch(int picker, int index);
    /// The swatch, and the one that the key Right leads to from there.
    void takeSwatchBeside(int picker, int index);
    /// A cell of the contrast window is pressed: the mark of its row is selected.
    void pressCell(int cell);
    /// The frame goes to the cell to the right, and that is pressed.
    void pressCellBeside();
    void openPalette();
    void openInNotepad();
    /// A file that is dropped on the main window.
    void drop(const std::string& path);
    /// The preview has been copied, and the letters have followed.
    void settle();
    void undo();
    void redo();
    void tab(int times) { focus = StopAfter(look(), times); }
    /// A message's answer, by the number of its button.
    void answer(int button);
    void showReport();
    Look look() const;
    std::string contrast() const;
    std::string preview() const { return codeChoice.preview(marks.current(), dialogs.inUse().customFormat); }

    const Facts& facts;
    ClipboardFact clipboard = {};
    WindowSet windows{facts, clipboard};
    Box box{clipboard};
    MarkSet marks{facts};
    Values values = {};
    Editing editing{marks, values, box, clipboard};
    CodeChoice codeChoice{facts, editing};
    Pick pick{editing, marks};
    Dialogs dialogs{box};
    Steps steps = {};
    FileCommands fileCommands{editing, marks, steps, dialogs, box, windows};
    int focus = 0;  ///< the control that must have it, 0 for any
};
