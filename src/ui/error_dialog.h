#pragma once
// "Mensagem de erro": the message above, the clause of the standard below, and
// "Continuar".

#include "window/forms.h"

#include <QDialog>

class QLabel;
class QScrollArea;
class QPushButton;

namespace pilarix::ui {

class ErrorDialog : public QDialog {
    Q_OBJECT
public:
    explicit ErrorDialog(QWidget* parent = nullptr);
    // Shows the message whole, the dialog sized to it.
    void preenche(const Form2Model& form);

private:
    QLabel* mensagem_;
    QScrollArea* rolagem_;
    QLabel* item_;
    QPushButton* continuar_;
};

} // namespace pilarix::ui
