#pragma once
// "Outros valores": precision of the iterative solutions, the largest aggregate and
// the largest bar and stirrup diameters the bar choice may use.

#include "window/forms.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLineEdit;

namespace pilarix::ui {

class OtherValuesDialog : public QDialog {
    Q_OBJECT
public:
    // `voltar` runs the program's own "&Voltar" handler once the boxes are back in
    // the model.
    OtherValuesDialog(Form8Model& form, std::function<void()> voltar, QWidget* parent = nullptr);

    void carrega();  // model -> boxes
    void devolve();  // boxes -> model

protected:
    void reject() override;

private:
    void volta();

    Form8Model& form_;
    std::function<void()> voltar_;
    QComboBox* combo1_;
    QComboBox* combo3_;
    QLineEdit* text2_;
    QLineEdit* text1_;
};

} // namespace pilarix::ui
