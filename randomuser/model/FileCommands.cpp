#include "randomuser/model/FileCommands.h"

#include <algorithm>

#include "randomuser/model/CodePage.h"

namespace {

std::string NamePart(const std::string& path) { return path.substr(path.rfind('\\') + 1); }
std::string FolderPart(const std::string& path) { return path.substr(0, path.rfind('\\')); }

SixMarks NewMarks() {
    SixMarks marks;
    marks.names.fill(noName);
    marks.colors = {ColorOf(255, 0, 0),   ColorOf(255, 255, 0), ColorOf(0, 255, 0),
                    ColorOf(0, 255, 255), ColorOf(0, 0, 255),   ColorOf(255, 0, 255)};
    return marks;
}

bool AreEqualNames(const std::string& one, const std::string& other) {
    const auto plain = [](const std::string& name) { return name == notJavaScript ? noName : name; };
    return plain(one) == plain(other);
}

}  // namespace

bool FileCommands::isChanged() const {
    if (marks.all().colors != saved.colors) return true;
    return !std::ranges::equal(marks.all().names, saved.names, AreEqualNames);
}

void FileCommands::start() {
    allFiles = FilesAtStart();
    newPalette();
}

void FileCommands::begin(FileCommand command) {
    after = command;
    const bool asks = isChanged() && (command != FileCommand::close || dialogs.inUse().promptToSave == 1);
    if (asks) return box.show(Box::Kind::question, "The palette has been changed. Do you want to save it?");
    goOn();
}

void FileCommands::drop(const std::string& path) {
    droppedPath = path;
    begin(FileCommand::drop);
}

void FileCommands::goOn() {
    const FileCommand command = after;
    after = FileCommand::none;
    if (command == FileCommand::newPalette) newPalette();
    if (command == FileCommand::open) box.show(Box::Kind::open);
    if (command == FileCommand::drop) openDropped();
    if (command == FileCommand::close) windows.end(0);
}

void FileCommands::choosePath(const std::string& path) {
    const bool isSaving = box.is(Box::Kind::save);
    const bool isOpening = box.is(Box::Kind::open);
    chosenPath = path;
    if (isSaving && allFiles.contains(path))
        return box.show(Box::Kind::overwrite, "File already exists.\nDo you want to replace it?");
    box.close();
    if (isSaving) return saveTo(path);
    folder = FolderPart(path);
    if (isOpening) openChosen(path);
}

void FileCommands::cancelDialog() {
    const bool isSaving = box.close() == Box::Kind::save;
    // No dialog follows in which the user could still keep the palette.
    if (isSaving && (after == FileCommand::newPalette || after == FileCommand::drop)) giveUp();
    if (isSaving) goOn();
}

/// A palette that could not be saved stays when a file was dropped; all other commands go on.
void FileCommands::leaveMessage() {
    if (after == FileCommand::drop) giveUp();
    goOn();
}

void FileCommands::newPalette() { showPalette(NewMarks(), "New palette"); }

void FileCommands::save() {
    if (paletteName == "New palette") return box.show(Box::Kind::save);
    saveTo(folder + '\\' + paletteName);
}

void FileCommands::saveTo(const std::string& path) {
    folder = FolderPart(path);
    File& file = allFiles[path];
    if (file.isReadOnly)
        return box.show(Box::Kind::message, "Could not save. Check if file or folder is read-only.");
    saved = marks.all();
    std::ranges::replace(saved.names, notJavaScript, noName);
    file = {BytesInFile(PaletteText(saved, dialogs.inUse().customFormat)), false, saved};
    paletteName = NamePart(path);
    marks.whiten();
    steps.end();
    goOn();
}

void FileCommands::openChosen(const std::string& path) {
    const auto found = allFiles.find(path);
    if (found == allFiles.end()) return endByError();
    openFile(path, found->second);
}

/// The message has no owner that it would lie over.
void FileCommands::endByError() {
    windows.keepNoneOnTop();
    box.show(Box::Kind::fatal, "Huevox encountered an unexpected error and must close.");
}

/// Save goes to the folder of a file that has been opened, no other.
void FileCommands::openDropped() {
    const auto found = allFiles.find(droppedPath);
    if (found == allFiles.end())
        return box.show(Box::Kind::message, "Could not open. Check if file is in use or has been removed.");
    if (openFile(droppedPath, found->second)) folder = FolderPart(droppedPath);
}

bool FileCommands::openFile(const std::string& path, const File& file) {
    const bool isTooLong = file.isLong && !wasLastOpenAccepted;
    if (!isTooLong) wasLastOpenAccepted = file.palette.has_value();
    if (isTooLong || !file.palette) {
        box.show(Box::Kind::message,
                 "You tried to open the file\r\n\r\n" + path +
                     "\r\n\r\nThis file has not been made in Huevox and cannot be opened in Huevox");
        return false;
    }
    showPalette(*file.palette, NamePart(path));
    return true;
}

void FileCommands::showPalette(const SixMarks& palette, const std::string& name) {
    marks.show(palette);
    steps.begin(marks.state());
    saved = marks.all();
    paletteName = name;
    editing.applyAgain();
}
