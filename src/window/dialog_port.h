#pragma once
// The one seam through which the core asks the user something or tells him
// something. The window answers with real modal dialogs; the command line and the
// tests answer by policy and keep a record. The core fills the form model of the
// dialog before the call and runs the dialog's own button handlers after it.

#include "window/forms.h"

#include <string>

namespace pilarix {

class DialogPort {
public:
    virtual ~DialogPort() = default;

    // "Mensagem de erro": Label1 holds the message, Label2 the clause; "Continuar" closes it.
    virtual void showError(const Form2Model& form) = 0;

    // "Cobrimento": returns 1 for the first button (Command2), 2 for "&2 - Ignorar".
    virtual int askCover(const Form4Model& form) = 0;

    // "Escolha dos estribos": the port selects one element of Option1 in the form
    // (the OK button's handler then reads the selection).
    virtual void chooseStirrup(Form7Model& form) = 0;

    // A plain notice (the search that found nothing).
    virtual void notice(const std::string& text) = 0;

    // The system beep (a key the bar list does not accept).
    virtual void beep() = 0;

    // File dialogs with the filter "Text files (*.TXT)|*.TXT"; empty when cancelled.
    virtual std::string askOpenFileName() = 0;
    virtual std::string askSaveFileName() = 0;

    // Where to save the section's drawing (.dxf, .svg or .png), proposing a name;
    // empty when cancelled.
    virtual std::string askDrawingFileName(const std::string& proposed) = 0;

    // Where to save the calculation report (.pdf), proposing a name; empty when cancelled.
    virtual std::string askReportFileName(const std::string& proposed) = 0;

    // "Calcula melhor solução" would try `total` arrangements, more than `limit`:
    // true runs it all the same. Without a person to ask, the limit holds.
    virtual bool askLargeSearch(double total, double limit)
    {
        (void)total, (void)limit;
        return false;
    }

    // How far a search has gone, a few times a second at most; false stops it.
    virtual bool searchProgress(double done, double total)
    {
        (void)done, (void)total;
        return true;
    }

    // Before the window closes, opens a project or starts anew over input that was
    // not saved: 1 saves it first, 2 discards it, 0 cancels what was asked.
    virtual int askSaveChanges(const std::string& question) = 0;
};

} // namespace pilarix
