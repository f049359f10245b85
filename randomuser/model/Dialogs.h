// What do the options and the editor of the custom notation change?
#pragma once

#include "randomuser/model/Box.h"
#include "randomuser/model/CodePage.h"
#include "randomuser/model/StoredSettings.h"

/// The settings in memory, those that are stored, and what is chosen in the dialog that is open.
class Dialogs {
public:
    explicit Dialogs(Box& box) : box(box) {}

    const StoredSettings& inUse() const { return settings; }
    /// What the box that is open shows of them.
    void tell(Look& look) const;

    void load(const StoredSettings& found);
    void openOptions();
    void openFormat();
    void openAbout() { box.show(Box::Kind::about); }
    void chooseRow(int row) { chosen.formatIndex = row; }
    void chooseOption(int option);
    void typeFormat(const std::string& text) { chosen.customFormat = ShownInBox(text); }
    void insertToken(int token);
    void close(bool isAccepted);

private:
    void takeOptions();
    void takeFormat();

    Box& box;
    StoredSettings settings = {};
    StoredSettings stored = {};
    StoredSettings chosen = {};
};
