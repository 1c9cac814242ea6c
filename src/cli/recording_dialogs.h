#pragma once
// The dialogs of a run without a screen: each question gets the answer chosen on
// the command line, and every dialog is kept, in order, with what it showed and
// the answer it got.

#include "window/dialog_port.h"

#include <nlohmann/json.hpp>

#include <string>

namespace pilarix {

class RecordingDialogs : public DialogPort {
public:
    int coverAnswer = 1;   // 1: the first button, 2: "&2 - Ignorar"
    int stirrupOption = 4; // element of Option1 chosen in "Escolha dos estribos"
    nlohmann::ordered_json messages = nlohmann::ordered_json::array();
    int beeps = 0;

    void showError(const Form2Model& form) override;
    int askCover(const Form4Model& form) override;
    void chooseStirrup(Form7Model& form) override;
    void notice(const std::string& text) override;
    void beep() override { ++beeps; }
    std::string askOpenFileName() override { return {}; }
    std::string askSaveFileName() override { return {}; }
};

} // namespace pilarix
