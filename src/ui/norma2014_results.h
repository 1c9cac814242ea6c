#pragma once
// "Esbeltez e 2ª ordem": what ABNT NBR 6118:2014 (or 2023) found for the governing
// case, in both directions side by side (λ, λ1, αb, e1, M1d,mín, M2d, Md,tot, whether
// the second order applies, the area), the governing direction and case, γn, and the
// check of both directions together (utilisation, the envelope's margin) with the
// button of the Mx–My diagram. Shown only under those rule sets, once calculated;
// greyed, as every result, when the input has changed since.

#include "window/program.h"

#include <QGroupBox>

#include <array>

class QLabel;
class QPushButton;

namespace pilarix::ui {

class Norma2014Results : public QGroupBox {
    Q_OBJECT
public:
    explicit Norma2014Results(QWidget* parent = nullptr);

    void mostra(const app::CalculationRecord& record, bool desatualizado);

    // The rows of the table, in order, each with the text of the direction h and b.
    enum Linha { Lambda, Lambda1, AlfaB, E1, M1dMin, M2d, MdTot, SegundaOrdem, As, kLinhas };
    QLabel* valor(Linha linha, char direcao) const;
    QLabel* resumo() const { return resumo_; }
    QLabel* obliqua() const { return obliqua_; }
    QPushButton* botaoDiagrama() const { return diagrama_; }
    bool desatualizado() const { return desatualizado_; }

signals:
    void abreDiagrama();

private:
    std::array<std::array<QLabel*, 2>, kLinhas> valores_{};
    std::array<QLabel*, kLinhas> rotulos_{};
    QLabel* cabecalhoH_;
    QLabel* cabecalhoB_;
    QLabel* resumo_;
    QLabel* obliqua_;
    QPushButton* diagrama_;
    bool desatualizado_ = false;
};

} // namespace pilarix::ui
