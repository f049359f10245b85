// What does Huevox do, told once more in plain words?
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "randomuser/model/Action.h"
#include "randomuser/model/Facts.h"
#include "randomuser/model/Look.h"

/// Where the files of the session stand.
inline constexpr const char* filesFolder = "C:\\Huevox Soak";
inline constexpr const char* secondFolder = "C:\\Huevox Soak\\other";

/// The settings that the program finds when it starts.
struct StoredSettings {
    std::string customFormat = {};
    int formatIndex = 0;
    int sortIndex = 0;
    int promptToSave = 1;
};
StoredSettings SettingsOf(int variant);

struct File {
    std::string text;
    bool isReadOnly = false;
    std::optional<SixMarks> palette = {};  ///< nothing when it is none
    bool isLong = false;                   ///< more than 1,000 lines
};
using Files = std::map<std::string, File>;

/// The files that every start of the program begins with.
Files FilesAtStart();

/// What the text on the clipboard must be.
struct ClipboardFact {
    enum class State { known, due, unknown } state = State::unknown;
    std::string text = {};
    bool isHeld = false;
};

class Model {
public:
    explicit Model(const Facts& facts) : facts(&facts) {}

    /// Whether the step can be made now. One that cannot is left out.
    bool isPossible(const Action& action) const;
    void play(const Action& action);

    Look look() const;
    const Files& files() const { return allFiles; }
    const ClipboardFact& clipboard() const { return clip; }
    const Color& current() const { return marks.colors.at(selected); }
    Color pickTarget(const Action& action) const;
    bool isChanged() const;

private:
    enum class After { nothing, newPalette, open, close };
    enum class Box {
        none,
        question,
        refusal,
        report,
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

    void playOutside(const Action& action);
    void playEditing(const Action& action);
    void playKeys(const Action& action);
    void playFiles(const Action& action);
    void playDialogs(const Action& action);
    bool isPossibleInDialog(const Action& action) const;
    bool isPossibleInMain(const Action& action) const;
    bool isFileDialog() const;
    bool isButton(int button) const;
    BoxLook boxLook() const;
    std::vector<int> tabStops() const;

    void setColor(const Color& color);
    void applyAgain();
    void restartCountdown();
    void refreshLetters();
    void highlight();
    void moveSlider(int slider, int value);
    void pressSliderKey(int slider, SliderKey key);
    void select(int mark);
    void typeValue(int channel, const std::string& text);
    void applyValues();
    void setMode(bool wantsDecimal);
    void typeName(int mark, const std::string& name);
    void findNames();
    void choose(int row);
    std::optional<Color> swatchColor(int window, int index) const;

    void start(int variant);
    void begin(After command);
    void goOn();
    void show(Box kind, const std::string& text = "");
    void answer(int button);
    void choosePath(const std::string& path);
    void cancelDialog();
    void openOptions();
    void openFormat();
    void chooseOption(int option);
    void closeDialog(bool isAccepted);
    void newPalette();
    void save();
    void saveTo(const std::string& path);
    void openFile(const std::string& path);
    void showPalette(const SixMarks& palette, const std::string& name);

    const Facts* facts;
    bool isRunning = false;
    int exitCode = 0;
    Front front = Front::main;
    std::array<bool, 3> pickers = {};
    bool isSortedByHue = false;

    SixMarks marks;
    SixMarks saved;
    std::array<bool, 6> highlighted = {};
    std::array<std::set<std::string>, 6> letters = {};
    int selected = 0;
    std::array<std::string, 3> values = {};
    bool isSetEnabled = false;
    bool isModeLocked = false;
    bool isDecimal = true;
    StoredSettings settings = {};  ///< in memory
    StoredSettings stored = {};
    StoredSettings chosen = {};  ///< in the dialog that is open
    int notation = 0;
    bool areNamesCopied = false;
    bool isPickMode = false;
    int focus = 0;
    std::optional<Color> copied;
    Color picked;
    ClipboardFact clip;

    std::string paletteName;
    std::string folder;
    Files allFiles;
    Box box = Box::none;
    std::string boxText;
    std::string boxPath;
    After after = After::nothing;
    bool wasLastOpenAccepted = false;
};

/// The actions without those that are not possible when their turn comes.
Actions Possible(const Actions& actions, const Facts& facts);
