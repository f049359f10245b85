// How does a window of the program live, from its load to its unload?
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/forms/DropTarget.h"
#include "toolkit/forms/FormEvents.h"
#include "toolkit/forms/FormLayout.h"
#include "toolkit/forms/FormParts.h"
#include "toolkit/forms/ModalHold.h"
#include "toolkit/forms/TopOrder.h"
#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Twips.h"

class Timer;
class ToolTips;

/// A window made from a DIALOGEX template whose units are pixels at 96 DPI, or twips. Forms are unloaded, not
/// deleted, while handlers may be on the stack.
class Form : public FormEvents {
public:
    /// name is the window class, the name of the template and the name of the accelerators.
    explicit Form(const char* name, int twipsPerUnit = twipsPerPixel);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form();

    /// Creates the window, still hidden, and raises Load. Throws what Load throws, and std::runtime_error
    /// when Windows refuses a window.
    void load();
    void show(int showCommand);
    /// Loads the form, shows it over another and returns when it has been unloaded. Meanwhile no other form
    /// takes input. The first control has the focus unless Load has given it to one.
    void showModal(const Form& over);
    /// Raises Activate now, instead of an activation that is still pending.
    void activate();
    /// Raises QueryUnload and, unless cancelled, Unload; then the window goes. The last ends the program.
    void unload();
    static void unloadAll(const Form* except = nullptr);
    static void stopAllTimers();
    static void keepNoneOnTop() { topOrder.end(); }

    bool isLoaded() const { return state == State::loaded; }
    HWND handle() const { return window; }
    /// Whether this form gets the keyboard's input.
    bool isFront() const { return isActive; }
    /// The owner for a message box: this window or, while it is not visible, the one it will stand over.
    HWND messageOwner() const { return ::IsWindowVisible(window) ? window : owner; }

    std::string text() const;
    void setText(std::string_view caption);
    /// The pointer's shape over the form and while it captures the mouse; nullptr for the controls' own.
    void setPointer(HCURSOR shape);
    void setMenuItemEnabled(int command, bool isEnabled);
    void setDropsWanted(bool areWanted) { drops.setWanted(areWanted); }
    /// Keeps this form above the windows of other programs, and the program's other forms above this one.
    void setOnTop(bool isOnTop) { topOrder.keep(window, isOnTop); }
    /// Keeps tool tips away, for instance while the mouse is captured.
    void setToolTipsShown(bool isShown) const;
    /// A system colour, COLOR_WINDOW for instance, instead of that of dialogs.
    void setBackground(int systemColor) { background = systemColor; }

    /// Pixels at 96 DPI in pixels of this window.
    int scaled(int pixels) const { return ::MulDiv(pixels, layout.dpi(), USER_DEFAULT_SCREEN_DPI); }
    /// Twips in pixels of this window.
    Area scaled(const Area& twips) const { return PixelsFromTwips(twips, layout.dpi()); }

    /// For controls: while they live, they are parts of the form.
    void join(FormPart& part) { parts.add(part); }
    void leave(const FormPart& part) { parts.remove(part); }
    /// The part's tool tips have changed.
    void tipChanged(const FormPart& part);
    /// The window of a part is about to be disabled or hidden: if it has the focus, the next control gets it.
    void focusLeaves(HWND leaving);

    /// Handles shortcuts and keyboard navigation. True when the message is done with.
    static bool preTranslate(MSG& message);

protected:
    /// Where the window first appears, if not in the middle of its owner or work area; frame is its size.
    virtual Area firstPlace(const SIZE& frame);

private:
    friend class Timer;
    enum class State { unloaded, loading, loaded, unloading };

    void add(Timer& timer) { timers.push_back(&timer); }
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    class Receiver;

    void createFrame(const DialogTemplate& dialog);
    void createControl(const TemplateItem& item);
    bool mayUnload();
    void close();

    static constexpr UINT focusLeftMessage = WM_APP + 2;
    static inline std::vector<Form*> loadedForms;
    static inline Form* formBeingCreated = nullptr;
    static inline ModalHold modalHold;
    static inline TopOrder topOrder;

    const char* name;
    HWND window = nullptr;
    HWND owner = nullptr;  ///< of a modal form
    HACCEL accelerators = nullptr;
    HCURSOR pointer = nullptr;
    int background = COLOR_BTNFACE;
    std::unique_ptr<ToolTips> toolTips;
    FormParts parts;
    std::vector<Timer*> timers;
    FormLayout layout;
    DropTarget drops;
    State state = State::unloaded;
    bool isActive = false;
    bool isActivatePending = false;
    bool isAsking = false;
};
