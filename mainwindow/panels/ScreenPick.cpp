#include "mainwindow/panels/ScreenPick.h"

#include "core/ColorTables.h"
#include "resources/resource.h"
#include "support/Messages.h"
#include "toolkit/platform/Mouse.h"

namespace {

POINT PointerPlace() {
    POINT place{};
    ::GetCursorPos(&place);
    return place;
}

bool IsSame(const POINT& one, const POINT& other) { return one.x == other.x && one.y == other.y; }

/// Without a focus, Windows sends plain keys in the way of those that are pressed together with Alt.
bool IsPlainKeyPress(const MSG& input) {
    constexpr LPARAM withAlt = 1 << 29;
    return input.message == WM_KEYDOWN || (input.message == WM_SYSKEYDOWN && !(input.lParam & withAlt));
}

bool IsKeyPress(const MSG& input) { return input.message == WM_KEYDOWN || input.message == WM_SYSKEYDOWN; }

}  // namespace

ScreenPick::ScreenPick(Form& form, CommandBar& commands, ChannelEditors& channels, ColorMarks& marks,
                       const Autocopy& autocopy)
    : form(form),
      commands(commands),
      channels(channels),
      marks(marks),
      autocopy(autocopy),
      chkColorPick(form, IDC_chkColorPick),
      picPick(form, IDC_picPick),
      loupe(form) {
    form.DisplayChange.bind(this, &ScreenPick::Form_DisplayChange);
    form.InputPreview.bind(this, &ScreenPick::Form_InputPreview);
    loupe.Uncovered.bind(this, &ScreenPick::loupe_Uncovered);
    commands.bind(IDM_mnuToolsPick, this, &ScreenPick::mnuToolsPick_Click);
    chkColorPick.Click.bind(this, &ScreenPick::chkColorPick_Click);
    chkColorPick.setToolTip(messages::colorPickTip);
    marks.Samples().bind(&PictureBox::MouseDown, this, &ScreenPick::picSample_MouseDown);
    marks.Samples().bind(&PictureBox::MouseMove, this, &ScreenPick::picSample_MouseMove);
    marks.Samples().bind(&PictureBox::MouseUp, this, &ScreenPick::picSample_MouseUp);
    marks.Samples().bind(&PictureBox::MouseCaptureLost, this, &ScreenPick::picSample_MouseCaptureLost);
}

void ScreenPick::Prepare() { commands.SetEnabled(IDM_mnuToolsPick, chkColorPick.value()); }

void ScreenPick::LeaveFront() {
    if (state == State::byKeyboard) Cancel();
}

void ScreenPick::chkColorPick_Click() {
    // By another program: the samples would no longer hear of the mouse.
    if (isPicking()) Cancel();
    const bool isPickMode = chkColorPick.value();
    marks.LetSamplesBePressed(isPickMode);
    commands.SetEnabled(IDM_mnuToolsPick, isPickMode);
    EnableOpening(!isPickMode);
}

void ScreenPick::EnableOpening(bool isEnabled) {
    form.setDropsWanted(isEnabled);
    commands.SetEnabled(IDM_mnuFileOpen, isEnabled);
    commands.SetEnabled(IDM_mnuFileOpenInNotepad, isEnabled);
    commands.SetTip(IDM_mnuFileOpen, isEnabled ? messages::openTip : messages::openDisabledTip);
    commands.SetTip(IDM_mnuFileOpenInNotepad, isEnabled ? messages::notepadTip : messages::openDisabledTip);
}

void ScreenPick::mnuToolsPick_Click() {
    // Whoever has the mouse keeps it, and keys come to the window in front only.
    if (::GetCapture() || !form.isFront()) return;
    shield.raise(form.handle());
    Begin(State::byKeyboard, marks.SelectedSample());
    Follow(PointerPlace());
}

void ScreenPick::Begin(State how, PictureBox& sample) {
    state = how;
    colorBefore = pickedColor;
    ShowPreview(sample);
}

void ScreenPick::picSample_MouseDown(int mark, int button) {
    if (button != leftButton) return;
    isButtonHeld = true;
    if (state == State::byKeyboard) return;  // the release takes the colour
    knownPlace = PointerPlace();
    Begin(State::dragging, marks.Samples()(mark));
}

void ScreenPick::picSample_MouseMove(int /*mark*/, int buttons) {
    const bool isLeftHeld = (buttons & leftButton) != 0;
    if (state == State::over && !isLeftHeld) state = State::idle;  // released where nobody told
    if (state == State::over || (state != State::byKeyboard && buttons != leftButton)) return;
    const POINT place = PointerPlace();
    // Windows also reports a move when a window appears or goes under a pointer that rests.
    if (knownPlace && IsSame(*knownPlace, place)) return;
    Follow(place);
}

void ScreenPick::Follow(POINT place) {
    knownPlace.reset();
    loupe.stepAside(place);
    const PixelBlock block = screen.around(place);
    pickedColor = block.middle();
    picPick.setBackColor(Pack(pickedColor));
    picPick.paintNow();  // a hand that never rests would keep the preview from being painted
    if (!isPicking()) return;
    loupe.show(place, {block, autocopy.CodeOf(pickedColor), std::string(JavaScriptName(pickedColor))});
}

void ScreenPick::picSample_MouseUp(int /*mark*/, int button) {
    const bool isLeft = button == leftButton;
    if (isLeft) isButtonHeld = false;
    if (state == State::over) {
        if (isLeft) LetGo();
    } else if (isLeft || state != State::byKeyboard) {
        isButtonHeld = false;  // another button has ended the drag, and the capture with it
        Take();
    }
}

/// Another window has taken the mouse and keeps it: there will be no release. If the mouse comes back all the
/// same after a key has ended the pick, the release still does nothing.
void ScreenPick::picSample_MouseCaptureLost(int /*mark*/) {
    isButtonHeld = false;
    if (state == State::over) return;
    if (state == State::byKeyboard) pickedColor = colorBefore;
    const bool wasPicking = isPicking();
    state = State::idle;
    if (wasPicking) HidePreview();
}

void ScreenPick::Form_DisplayChange() {
    screen.renew();
    // The pointer may have been on a monitor that is no longer there.
    if (loupe.isShown()) Follow(PointerPlace());
}

void ScreenPick::loupe_Uncovered() {
    if (isPicking()) Follow(PointerPlace());
}

void ScreenPick::Form_InputPreview(const MSG& input, bool& isTaken) {
    isTaken = isPicking() || IsEndingKeyStillHeld(input);
    if (!isPicking()) return;
    if (input.message == WM_MOUSEWHEEL) loupe.magnify(GET_WHEEL_DELTA_WPARAM(input.wParam));
    if (IsPlainKeyPress(input)) PressKey(static_cast<int>(input.wParam));
}

/// A key that is held would go on to press the default button.
bool ScreenPick::IsEndingKeyStillHeld(const MSG& input) {
    constexpr LPARAM wasDown = 1 << 30;
    if (IsKeyPress(input) && !(input.lParam & wasDown)) endingKey = 0;
    return IsKeyPress(input) && static_cast<int>(input.wParam) == endingKey;
}

void ScreenPick::PressKey(int key) {
    const int step = ::GetKeyState(VK_SHIFT) < 0 ? 10 : 1;
    switch (key) {
        case VK_LEFT: return MovePointer(-step, 0);
        case VK_RIGHT: return MovePointer(step, 0);
        case VK_UP: return MovePointer(0, -step);
        case VK_DOWN: return MovePointer(0, step);
        case VK_RETURN:
        case VK_SPACE: endingKey = key; return Take();
        case VK_ESCAPE: endingKey = key; return Cancel();
        default: return;
    }
}

void ScreenPick::MovePointer(int right, int down) {
    const POINT before = PointerPlace();
    ::SetCursorPos(before.x + right, before.y + down);
    const POINT place = PointerPlace();  // not beyond the edge of the desktop
    if (IsSame(before, place)) return;
    Follow(place);
    knownPlace = place;  // Windows reports the movement too
}

void ScreenPick::Take() {
    state = isButtonHeld ? State::over : State::idle;
    channels.SetSliders(pickedColor);
    HidePreview();
    LetGo();
}

void ScreenPick::Cancel() {
    state = isButtonHeld ? State::over : State::idle;
    pickedColor = colorBefore;
    HidePreview();
    LetGo();
}

/// Gives the mouse back, but not while the button is held: its release would be another's.
void ScreenPick::LetGo() {
    if (isButtonHeld) return;
    state = State::idle;
    ::ReleaseCapture();
}

void ScreenPick::ShowPreview(PictureBox& pressed) {
    form.setPointer(::LoadCursorW(nullptr, IDC_CROSS));
    form.setToolTipsShown(false);
    pressed.captureMouse();
    channels.HideSliders();
    picPick.setVisible(true);
}

void ScreenPick::HidePreview() {
    knownPlace.reset();
    loupe.hide();
    shield.lower();
    picPick.setVisible(false);
    channels.ShowSliders();
    form.setToolTipsShown(true);
    form.setPointer(nullptr);
}
