// Which palette is shown, and what comes of the commands of the File menu?
#pragma once

#include <string>

#include "randomuser/model/Dialogs.h"
#include "randomuser/model/Editing.h"
#include "randomuser/model/SessionFiles.h"
#include "randomuser/model/Steps.h"
#include "randomuser/model/WindowSet.h"

/// Those that ask first, when there is something to save.
enum class FileCommand { none, newPalette, open, drop, close };

/// A command that asks first is remembered until the last box that it needs is answered.
class FileCommands {
public:
    FileCommands(Editing& editing, MarkSet& marks, Steps& steps, const Dialogs& dialogs, Box& box,
                 WindowSet& windows)
        : editing(editing), marks(marks), steps(steps), dialogs(dialogs), box(box), windows(windows) {}

    const Files& files() const { return allFiles; }
    bool isChanged() const;
    void tell(Look& look) const { look.title = "Huevox - " + paletteName; }

    /// The program has just started.
    void start();
    void begin(FileCommand command);
    void drop(const std::string& path);
    void goOn();
    void giveUp() { after = FileCommand::none; }
    void save();
    void saveChosen() { saveTo(chosenPath); }
    void choosePath(const std::string& path);
    void cancelDialog();
    /// A message has been answered; one of them tells that nothing was saved.
    void leaveMessage();

private:
    void newPalette();
    void saveTo(const std::string& path);
    void openChosen(const std::string& path);
    void endByError();
    void openDropped();
    /// Whether the file is a palette, which is shown then.
    bool openFile(const std::string& path, const File& file);
    void showPalette(const SixMarks& palette, const std::string& name);

    Editing& editing;
    MarkSet& marks;
    Steps& steps;
    const Dialogs& dialogs;
    Box& box;
    WindowSet& windows;
    SixMarks saved;
    std::string paletteName;
    std::string folder;
    std::string chosenPath;
    std::string droppedPath;
    Files allFiles;
    FileCommand after = FileCommand::none;
    bool wasLastOpenAccepted = false;
};
