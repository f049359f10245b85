// Who shows the pixels around the pointer, enlarged?
#pragma once

#include <optional>
#include <string>

#include "mainwindow/panels/LoupePicture.h"
#include "toolkit/forms/Event.h"
#include "toolkit/platform/Handles.h"
#include "toolkit/platform/Twips.h"

class Form;

/// The window frmLoupe. It takes no input and no focus, stands beside the pointer and never under it, and
/// goes with its form.
class Loupe {
public:
    explicit Loupe(Form& form) : form(form) {}
    Loupe(const Loupe&) = delete;
    Loupe& operator=(const Loupe&) = delete;

    /// The pixels that the loupe has covered last have been painted by whomever they belong to.
    Event<> Uncovered;

    /// Shows the content beside the pointer, at once.
    void show(POINT at, const LoupeContent& shown);
    void hide() { window = {}; }
    bool isShown() const { return static_cast<bool>(window); }
    /// The wheel has been turned by so much: the picture grows or shrinks, also that of later picks.
    void magnify(int wheel);
    /// Before the pixels around a place are read: neither the loupe nor what it leaves behind must be one of
    /// them. Windows that put their pictures together somewhere else leave nothing behind.
    void stepAside(POINT at);

private:
    static LRESULT CALLBACK proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);

    void create();
    void place(bool isNewPicture);
    void leave();
    LoupeLayout layout() const;

    Form& form;
    Owned<HWND, &::DestroyWindow> window;
    bool isExcluded = false;        ///< from pictures of the screen
    std::optional<Area> uncovered;  ///< around all that others may not have painted since it left
    POINT pointer{};
    LoupeContent content;
    int dpi = USER_DEFAULT_SCREEN_DPI;
    int textWidth = 0;  ///< grows only, so that the loupe keeps its size while the colour changes
    int zoom = 1;
    int wheelRest = 0;
};
