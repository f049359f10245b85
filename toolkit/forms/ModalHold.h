// Which forms take no input while a modal window waits for an answer?
#pragma once

#include <vector>

#include "toolkit/platform/Platform.h"

/// The platform disables the owner of a modal window only. While a form is disabled, this holds the others
/// disabled too, except those that it owns, which are the modal window and what that opens.
class ModalHold {
public:
    /// A form has got a window: it is held as well when a modal window is waiting.
    void join(HWND form);
    /// A form's window goes; what it held is let go.
    void leave(HWND form);
    /// A form has been enabled or disabled, by the platform or by this.
    void changed(HWND form, bool isEnabled);

private:
    struct Member {
        HWND window;
        HWND holder;  ///< the form whose modal window holds this one, or nullptr
    };

    void letGo(HWND holder);

    std::vector<Member> members;
};
