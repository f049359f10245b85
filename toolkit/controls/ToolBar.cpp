#include "toolkit/controls/ToolBar.h"

#include <algorithm>

#include "toolkit/controls/Keys.h"
#include "toolkit/forms/Form.h"
#include "toolkit/forms/ToolTips.h"

namespace {

constexpr int pictureSize = 16;
constexpr int buttonSize = 24;
constexpr int topRoom = 3;  // what Windows leaves above a picture, at every scaling
constexpr int gapSize = 8;  // of a separator

BYTE StyleOf(const ToolButton& button) {
    if (button.command == 0) return BTNS_SEP;
    return button.isChoice ? BTNS_CHECKGROUP : BTNS_BUTTON;
}

}  // namespace

void ToolBar::fill(std::span<const ToolButton> buttons, int pressed) {
    std::vector<TBBUTTON> records;
    std::vector<int> wanted;
    for (const ToolButton& button : buttons) {
        TBBUTTON record{};
        const bool isChosen = button.isChoice && button.command == pressed;
        record.fsState = isChosen ? TBSTATE_ENABLED | TBSTATE_CHECKED : TBSTATE_ENABLED;
        record.fsStyle = StyleOf(button);
        record.idCommand = button.command;
        record.iBitmap = button.command == 0 ? 0 : static_cast<int>(wanted.size());
        records.push_back(record);
        if (button.command == 0) continue;
        wanted.push_back(button.icon);
        tips[button.command] = button.tip;
    }
    if (wanted != icons) drawnSize = 0;
    icons = std::move(wanted);
    send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    send(TB_ADDBUTTONSW, records.size(), reinterpret_cast<LPARAM>(records.data()));
    setSizes();
}

LRESULT ToolBar::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    constexpr WPARAM none = -1;
    switch (message) {
        case WM_GETDLGCODE: return DLGC_WANTARROWS | (IsEnter(lParam) ? DLGC_WANTMESSAGE : 0);
        case WM_SETFOCUS: send(TB_SETHOTITEM, 0); return 0;
        case WM_KILLFOCUS: send(TB_SETHOTITEM, none); return 0;
        case WM_KEYDOWN:
            if (onKey(wParam)) return 0;
            break;
        default: break;
    }
    return Control::onMessage(message, wParam, lParam);
}

bool ToolBar::onKey(WPARAM key) {
    const auto hot = static_cast<int>(send(TB_GETHOTITEM));
    const auto last = static_cast<int>(send(TB_BUTTONCOUNT)) - 1;
    switch (key) {
        case VK_LEFT: send(TB_SETHOTITEM, std::max(hot - 1, 0)); return true;
        case VK_RIGHT: send(TB_SETHOTITEM, std::min(hot + 1, last)); return true;
        case VK_SPACE:
        case VK_RETURN: pressHot(); return true;
        default: return false;
    }
}

void ToolBar::pressHot() {
    TBBUTTON button{};
    if (!send(TB_GETBUTTON, send(TB_GETHOTITEM), reinterpret_cast<LPARAM>(&button))) return;
    if (!(button.fsState & TBSTATE_ENABLED) || button.idCommand == 0) return;
    if (button.fsStyle & BTNS_CHECK) send(TB_CHECKBUTTON, button.idCommand, TRUE);
    onCommand(button.idCommand, 0);
}

void ToolBar::rescaled() {
    if (!icons.empty()) setSizes();
}

void ToolBar::setSizes() {
    const int button = form.scaled(buttonSize);
    const int size = form.scaled(pictureSize);
    OwnedImages drawn =
        size == drawnSize ? std::move(images) : ImagesFromIcons(icons, size, button - 2 * topRoom);
    drawnSize = size;
    send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(drawn.get()));
    images = std::move(drawn);
    send(TB_SETBUTTONSIZE, 0, MAKELPARAM(button, button));
    setGaps();
}

void ToolBar::setGaps() const {
    const auto count = static_cast<int>(send(TB_BUTTONCOUNT));
    for (int index = 0; index < count; ++index) {
        TBBUTTON button{};
        send(TB_GETBUTTON, index, reinterpret_cast<LPARAM>(&button));
        if (!(button.fsStyle & BTNS_SEP)) continue;
        TBBUTTONINFOW gap{};
        gap.cbSize = sizeof gap;
        gap.dwMask = TBIF_BYINDEX | TBIF_SIZE;
        gap.cx = static_cast<WORD>(form.scaled(gapSize));
        send(TB_SETBUTTONINFOW, index, reinterpret_cast<LPARAM>(&gap));
    }
}

void ToolBar::setButtonTip(int command, std::string_view tip) {
    tips[command] = tip;
    form.tipChanged(*this);
}

void ToolBar::showTips(ToolTips& toolTips) const {
    for (const auto& [command, tip] : tips) {
        RECT area{};
        send(TB_GETRECT, command, reinterpret_cast<LPARAM>(&area));
        toolTips.set(handle(), command, area, tip);
    }
}

void ToolBar::onCommand(int id, int /*code*/) {
    if (::IsWindowEnabled(form.handle())) ButtonClick.raise(id);
}
