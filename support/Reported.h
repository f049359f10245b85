// What happens to an error that a command expects?
#pragma once

#include <exception>
#include <utility>

#include "support/Messages.h"
#include "toolkit/forms/MsgBox.h"

/// Runs body. When it fails, a message box shows the sentence and the program goes on. True on success.
template <class Body>
bool Reported(const Form& form, const char* sentence, Body&& body) {
    try {
        std::forward<Body>(body)();
        return true;
    } catch (const std::exception&) {
        MsgBox(&form, sentence, MB_OK | MB_ICONEXCLAMATION, messages::title);
        return false;
    }
}
