// Which forms take no input while a modal window waits for an answer?
#pragma once

#include <vector>

#include "toolkit/platform/Platform.h"

/// Windows disables only the owner of a modal window. While a form is disabled, this disables the others too,
/// except those that it owns: the modal window and whatever that opens.
class ModalHold {
public:
    /// A form has a window now. It is disabled at once while a modal window waits.
    void join(HWND form);
    /// A form's window is going: whatever it held disabled is enabled again.
    void leave(HWND form);
    /// A form has been enabled or disabled, by Windows or by this class.
    void changed(HWND form, bool isEnabled);

private:
    struct Member {
        HWND window;
        HWND holder;  ///< the form whose modal window holds this one, or nullptr
    };

    void letGo(HWND holder);

    std::vector<Member> members;
};
