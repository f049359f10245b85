#include "toolkit/forms/DropTarget.h"

#include <shellapi.h>

#include "toolkit/platform/ShellFunction.h"
#include "toolkit/platform/Text.h"

void DropTarget::attach(HWND target) {
    window = target;
    isWanted = isOpen();
}

void DropTarget::setWanted(bool wanted) {
    isWanted = wanted;
    refresh();
}

void DropTarget::refresh() const {
    if (isOpen() == (isWanted && ::IsWindowEnabled(window))) return;
    ShellFunction<decltype(::DragAcceptFiles)>("DragAcceptFiles")(window, !isOpen());
}

std::string DropTarget::take(HANDLE list) const {
    const auto files = static_cast<HDROP>(list);
    std::wstring path;
    // The drop may have been on its way when a dialog opened.
    if (isOpen()) {
        const auto query = ShellFunction<decltype(::DragQueryFileW)>("DragQueryFileW");
        path.resize(query(files, 0, nullptr, 0) + 1);
        path.resize(query(files, 0, path.data(), static_cast<UINT>(path.size())));
    }
    ShellFunction<decltype(::DragFinish)>("DragFinish")(files);
    return Utf8(path);
}

bool DropTarget::isOpen() const {
    return (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_ACCEPTFILES) != 0;
}
