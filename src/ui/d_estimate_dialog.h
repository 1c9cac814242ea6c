#pragma once
// "Estimativa de d'": from the stirrup, the longitudinal bar and the cover, the
// distance from the face to the centre of the corner bar, written into the main
// window's d' box on request.

#include "window/forms.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QLineEdit;

namespace pilarix::ui {

class DEstimateDialog : public QDialog {
    Q_OBJECT
public:
    // `calcula` and `aceita` run the program's own handlers on the model.
    DEstimateDialog(Form5Model& form, std::function<void()> calcula, std::function<void()> aceita,
                    QWidget* parent = nullptr);

    void carrega();  // model -> boxes
    void devolve();
    // The cover as typed can be read; otherwise the box says why and nothing is estimated.
    bool coberturaLegivel();  // boxes -> model

private:
    void calcula();
    void calculaEAceita();

    Form5Model& form_;
    std::function<void()> calcula_, aceita_;
    QComboBox* combo1_;
    QComboBox* combo2_;
    QLineEdit* text1_;
    QLineEdit* text2_;
};

} // namespace pilarix::ui
