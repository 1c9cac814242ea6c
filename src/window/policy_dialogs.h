#pragma once
// The dialogs of a run without a screen: each question gets the answer of a policy
// chosen beforehand (the command line's --cobrimento and --estribo, a test's fixed
// answers, the screenshot's first answers), and every dialog is kept, in order, with
// what it showed and the answer it got.

#include "window/dialog_port.h"
#include "app/dialog_record.h"

#include <string>
#include <vector>

namespace pilarix {

class PolicyDialogs : public DialogPort {
public:
    int coverAnswer = 1;   // 1: the first button, 2: "&2 - Ignorar"
    int stirrupOption = 4; // element of Option1 chosen in "Escolha dos estribos"
    std::string openFileName, saveFileName, drawingFileName, reportFileName; // empty: the dialogs are cancelled
    std::vector<DialogRecord> records;
    int saveChangesAnswer = 0; // 1 save, 2 discard, 0 cancel
    std::vector<std::string> saveChangesQuestions;
    int beeps = 0;

    void showError(const Form2Model& form) override;
    int askCover(const Form4Model& form) override;
    void chooseStirrup(Form7Model& form) override;
    void notice(const std::string& text) override;
    void beep() override { ++beeps; }
    std::string askOpenFileName() override { return openFileName; }
    std::string askSaveFileName() override { return saveFileName; }
    std::string askDrawingFileName(const std::string&) override { return drawingFileName; }
    std::string askReportFileName(const std::string&) override { return reportFileName; }
    int askSaveChanges(const std::string& question) override
    {
        saveChangesQuestions.push_back(question);
        return saveChangesAnswer;
    }

    // The text of the last dialog shown; empty when none was.
    std::string lastMessage() const { return records.empty() ? std::string() : records.back().mensagem; }
};

} // namespace pilarix
