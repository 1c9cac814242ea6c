#pragma once
// The rule set of the column and what ABNT NBR 6118:2014 (and 2023) asks beyond the
// 2001 input, in the main window:
//   - the row "Norma" at the head of the input, the list of the three rule sets;
//   - the frame shown only under 2014/2023: the method of the second order
//     ("curvatura" / "rigidez κ"), and per direction the effective length ℓe (empty:
//     the column's length) and the first-order moments at both ends in Md's unit
//     (the top's of the direction of h is the main window's Md).
// The boxes and lists are made by the window's own factories, so that they behave as
// every other input: a comma read as the point, the out-of-date greying, undo, the
// project file (the table of controls already lists them and names their widgets).

#include "ui/key_filters.h"
#include "window/program.h"

#include <QGroupBox>

#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;

namespace pilarix::ui {

struct FabricaDeEntradas {
    std::function<QLineEdit*(TextBox&, Teclas regra, int largura, const QString& rotulo)> caixa;
    std::function<QComboBox*(ComboBox&, const QString& rotulo)> lista;
};

class Norma2014Panel : public QGroupBox {
    Q_OBJECT
public:
    Norma2014Panel(Form1Model& form, const FabricaDeEntradas& fabrica, QWidget* parent = nullptr);

    // The row "Norma", for the head of the input column.
    QWidget* linhaDaNorma() const { return linha_; }
    QComboBox* norma() const { return norma_; }

    // The frame's title, its visibility and the unit of the moments from the model.
    void atualiza(const Form1Model& form);

signals:
    // The engineer chose a rule set in the list (not the window setting it).
    void normaEscolhida(int indice);

private:
    void mostraPara(int indice);

    QWidget* linha_;
    QComboBox* norma_;
    QLabel* unidade_;
};

// The list's entries of SegundaOrdem as the window words them: "rigidez" reads "rigidez κ".
QString textoDoMetodo(const std::string& valor);

} // namespace pilarix::ui
