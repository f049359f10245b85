#include "mainwindow/panels/ScreenPick.h"

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

}  // namespace

ScreenPick::ScreenPick(Form& form, CommandBar& commands, ChannelEditors& channels, ColorMarks& marks)
    : form(form),
      commands(commands),
      channels(channels),
      marks(marks),
      chkColorPick(form, IDC_chkColorPick),
      picPick(form, IDC_picPick) {
    form.DisplayChange.bind(this, &ScreenPick::Form_DisplayChange);
    chkColorPick.Click.bind(this, &ScreenPick::chkColorPick_Click);
    chkColorPick.setToolTip(messages::colorPickTip);
    marks.Samples().bind(&PictureBox::MouseDown, this, &ScreenPick::picSample_MouseDown);
    marks.Samples().bind(&PictureBox::MouseMove, this, &ScreenPick::picSample_MouseMove);
    marks.Samples().bind(&PictureBox::MouseUp, this, &ScreenPick::picSample_MouseUp);
    marks.Samples().bind(&PictureBox::MouseCaptureLost, this, &ScreenPick::picSample_MouseCaptureLost);
}

void ScreenPick::chkColorPick_Click() {
    const bool isPickMode = chkColorPick.value();
    marks.LetSamplesBePressed(isPickMode);
    EnableOpening(!isPickMode);
}

void ScreenPick::EnableOpening(bool isEnabled) {
    form.setDropsWanted(isEnabled);
    commands.SetEnabled(IDM_mnuFileOpen, isEnabled);
    commands.SetEnabled(IDM_mnuFileOpenInNotepad, isEnabled);
    commands.SetTip(IDM_mnuFileOpen, isEnabled ? messages::openTip : messages::openDisabledTip);
    commands.SetTip(IDM_mnuFileOpenInNotepad, isEnabled ? messages::notepadTip : messages::openDisabledTip);
}

void ScreenPick::picSample_MouseDown(int mark, int button) {
    if (button != leftButton) return;
    isPicking = true;
    pressPlace = PointerPlace();
    ShowPreview(marks.Samples()(mark));
}

void ScreenPick::picSample_MouseMove(int /*mark*/, int buttons) {
    if (buttons != leftButton) return;
    const POINT place = PointerPlace();
    // Windows also reports a move when a window appears or goes under a pointer that rests.
    if (pressPlace && IsSame(*pressPlace, place)) return;
    pressPlace.reset();
    pickedColor = screen.at(place);
    picPick.setBackColor(Pack(pickedColor));
    picPick.paintNow();  // a hand that never rests would keep the preview from being painted
}

void ScreenPick::picSample_MouseUp(int /*mark*/, int /*button*/) {
    isPicking = false;
    channels.SetSliders(pickedColor);
    HidePreview();
    ::ReleaseCapture();
}

/// Another window has taken the mouse and keeps it: there will be no release.
void ScreenPick::picSample_MouseCaptureLost(int /*mark*/) {
    if (!isPicking) return;
    isPicking = false;
    HidePreview();
}

void ScreenPick::Form_DisplayChange() { screen.renew(); }

void ScreenPick::ShowPreview(PictureBox& pressed) {
    form.setPointer(::LoadCursorW(nullptr, IDC_CROSS));
    pressed.captureMouse();
    channels.HideSliders();
    picPick.setVisible(true);
}

void ScreenPick::HidePreview() {
    pressPlace.reset();
    picPick.setVisible(false);
    channels.ShowSliders();
    form.setPointer(nullptr);
}
