#include "help/Links.h"

#include "toolkit/platform/ComInUse.h"
#include "toolkit/platform/Text.h"

#include <shellapi.h>

void OpenInBrowser(const std::string& address) {
    const ComInUse com;  // some browsers are registered as objects of COM
    ::ShellExecuteW(nullptr, nullptr, Wide(address).c_str(), nullptr, L"C:\\", SW_SHOWNORMAL);
}

void OpenMail(const std::string& address) { OpenInBrowser("mailto:" + address); }
