// How does the program reach the user's browser and mail program?
#pragma once

#include <string>

/// Asks the shell to open an address with whatever is registered for it. When nothing is, nothing happens.
void OpenInBrowser(const std::string& address);

/// The same for a new message to a mail address, which is passed on as it is.
void OpenMail(const std::string& address);
