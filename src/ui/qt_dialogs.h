#pragma once
// The dialogs of the window: every question the calculation asks is answered in a
// real modal dialog over the main window, and the bar list's beep is the system
// beep.

#include "window/dialog_port.h"

#include <QPointer>
#include <QString>

class QProgressDialog;
class QWidget;

namespace pilarix::ui {

class ErrorDialog;
class CoverDialog;
class StirrupChoiceDialog;

// The filter of the file dialogs, in Qt's spelling of "Text files (*.TXT)|*.TXT".
// Qt's own file dialog matches it without regard to case, so "*.txt" shows too.
inline const QString kFiltroArquivos = QStringLiteral("Text files (*.TXT)");

class QtDialogs : public DialogPort {
public:
    explicit QtDialogs(QWidget* parent = nullptr);
    ~QtDialogs() override;
    void setParent(QWidget* parent) { parent_ = parent; }

    void showError(const Form2Model& form) override;
    int askCover(const Form4Model& form) override;
    void chooseStirrup(Form7Model& form) override;
    void notice(const std::string& text) override;
    void beep() override;
    std::string askOpenFileName() override;
    std::string askSaveFileName() override;
    std::string askDrawingFileName(const std::string& proposed) override;
    std::string askReportFileName(const std::string& proposed) override;
    int askSaveChanges(const std::string& question) override;
    bool askLargeSearch(double total, double limit) override;
    bool searchProgress(double done, double total) override;

private:
    QWidget* parent_;
    // Created on first use and kept, hidden, for the life of the window.
    QPointer<ErrorDialog> erro_;
    QPointer<CoverDialog> cobrimento_;
    QPointer<StirrupChoiceDialog> estribos_;
    // The progress of the search under way: shown once it has run half a second,
    // closed when it ends.
    QPointer<QProgressDialog> progresso_;
};

} // namespace pilarix::ui
