#include "help/Links.h"

#include "toolkit/platform/Platform.h"
#include "toolkit/platform/Text.h"

#include <shellapi.h>

void OpenInBrowser(const std::string& address) {
    ::ShellExecuteW(nullptr, nullptr, Wide(address).c_str(), nullptr, L"C:\\", SW_SHOWNORMAL);
}

void OpenMail(const std::string& address) { OpenInBrowser("mailto:" + address); }
