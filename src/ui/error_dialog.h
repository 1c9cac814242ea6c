#pragma once
// "Mensagem de erro": the message above, the clause of the standard below, and
// "Continuar".

#include "window/forms.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace pilarix::ui {

class ErrorDialog : public QDialog {
    Q_OBJECT
public:
    explicit ErrorDialog(QWidget* parent = nullptr);
    void preenche(const Form2Model& form);

private:
    QLabel* mensagem_;
    QLabel* item_;
    QPushButton* continuar_;
};

} // namespace pilarix::ui
