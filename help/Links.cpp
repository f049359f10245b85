#include "help/Links.h"

#include "toolkit/platform/ComInUse.h"
#include "toolkit/platform/ShellFunction.h"
#include "toolkit/platform/Text.h"

#include <shellapi.h>

void OpenInBrowser(const std::string& address) {
    const ComInUse com;  // some browsers are registered as objects of COM
    const auto execute = ShellFunction<decltype(::ShellExecuteW)>("ShellExecuteW");
    execute(nullptr, nullptr, Wide(address).c_str(), nullptr, L"C:\\", SW_SHOWNORMAL);
}

void OpenMail(const std::string& address) { OpenInBrowser("mailto:" + address); }
