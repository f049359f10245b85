#include "toolkit/ToolBar.h"

#include <vector>

#include "toolkit/Form.h"
#include "toolkit/ToolTips.h"

namespace {

constexpr int pictureSize = 16;
constexpr int buttonSize = 24;

BYTE StyleOf(const ToolButton& button) {
    if (button.command == 0) return BTNS_SEP;
    return button.isChoice ? BTNS_CHECKGROUP : BTNS_BUTTON;
}

}  // namespace

void ToolBar::fill(std::span<const ToolButton> buttons) {
    std::vector<TBBUTTON> records;
    std::vector<int> icons;
    for (const ToolButton& button : buttons) {
        TBBUTTON record{};
        record.fsState = TBSTATE_ENABLED;
        record.fsStyle = StyleOf(button);
        record.idCommand = button.command;
        record.iBitmap = button.command == 0 ? 0 : static_cast<int>(icons.size());
        records.push_back(record);
        if (button.command == 0) continue;
        icons.push_back(button.icon);
        tips[button.command] = button.tip;
    }
    images = ImagesFromIcons(icons, form.scaled(pictureSize));
    send(TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON));
    send(TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(images.get()));
    send(TB_SETBUTTONSIZE, 0, MAKELPARAM(form.scaled(buttonSize), form.scaled(buttonSize)));
    send(TB_ADDBUTTONSA, records.size(), reinterpret_cast<LPARAM>(records.data()));
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
    if (::IsWindowEnabled(form.handle())) form.Command.raise(id);
}
