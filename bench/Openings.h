// Which windows can be opened, and how long does it take until one is painted?
#pragma once

#include <array>

#include "resources/resource.h"
#include "toolkit/platform/Platform.h"

struct OpenedForm {
    const char* form;
    const char* curve;
    int id;  ///< of the button or command
};

inline constexpr std::array<OpenedForm, 3> paletteWindows = {
    {{"frmWebsafe", "websafe", IDC_cmdWebsafe},
     {"frmFailsafe", "failsafe", IDC_cmdFailsafe},
     {"frmJavaScript", "javascript", IDC_cmdJavaScript}}};
inline constexpr OpenedForm contrastWindow = {"frmContrast", "contrast", IDM_mnuToolsContrast};
inline constexpr std::array<OpenedForm, 3> dialogs = {
    {{"frmOptions", "options", IDM_mnuToolsOptions},
     {"frmCustomFormat", "custom", IDM_mnuToolsCustomFormat},
     {"frmAbout", "about", IDM_mnuHelpAboutHuevox}}};

/// Opens a window over the form and closes it; the milliseconds from the command until it was painted.
double OpenAndCloseWindow(HWND form, const OpenedForm& opened);
/// The same for a window that is modal.
double OpenAndCloseDialog(HWND form, const OpenedForm& opened);
