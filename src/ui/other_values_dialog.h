#pragma once
// "Outros valores": precision of the iterative solutions, the largest aggregate and
// the largest bar and stirrup diameters the bar choice may use. "&Voltar" keeps what
// was chosen once the precision and the aggregate are in range; Esc and the close
// button leave every value as it was.

#include "window/forms.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace pilarix::ui {

class OtherValuesDialog : public QDialog {
    Q_OBJECT
public:
    // `voltar` runs the program's own "&Voltar" handler once the boxes are back in
    // the model; `avisa` shows why a value is refused.
    OtherValuesDialog(Form8Model& form, std::function<void()> voltar,
                      std::function<void(const std::string&)> avisa, QWidget* parent = nullptr);

    void carrega();  // model -> boxes
    void devolve();  // boxes -> model

protected:
    void reject() override;

private:
    void volta();

    Form8Model& form_;
    std::function<void()> voltar_;
    std::function<void(const std::string&)> avisa_;
    QLabel* tecla_; // what a box refused
    QComboBox* combo1_;
    QComboBox* combo3_;
    QLineEdit* text2_;
    QLineEdit* text1_;
};

} // namespace pilarix::ui
