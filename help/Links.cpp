#include "help/Links.h"

#include "toolkit/platform/Platform.h"

#include <shellapi.h>

void OpenInBrowser(const std::string& address) {
    ::ShellExecuteA(nullptr, nullptr, address.c_str(), nullptr, "C:\\", SW_SHOWNORMAL);
}

void OpenMail(const std::string& address) { OpenInBrowser("mailto:" + address); }
