#pragma once
// "Escolha dos estribos": the stirrup the standard asks for, and the smaller ones
// allowed when stirrups and bars are of the same steel; the user picks one.

#include "window/forms.h"

#include <QDialog>

#include <array>

class QLabel;
class QPushButton;
class QRadioButton;

namespace pilarix::ui {

class StirrupChoiceDialog : public QDialog {
    Q_OBJECT
public:
    explicit StirrupChoiceDialog(QWidget* parent = nullptr);
    void preenche(const Form7Model& form);
    // Writes the selection back into the options of the form.
    void devolve(Form7Model& form) const;

private:
    QLabel* label1_;
    QLabel* label2_;
    std::array<QRadioButton*, 5> opcoes_{};
    QPushButton* ok_;
};

} // namespace pilarix::ui
