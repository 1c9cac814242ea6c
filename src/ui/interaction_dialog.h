#pragma once
// "Diagrama de interação": the interaction diagram of the detailed column with its
// figures beside it (utilisation and verdict, the design forces, M_Rd at N_Sd,
// N_Rd,máx and N_Rd,mín). Not modal: the window keeps it open and shows each new
// calculation in it, or clears it when there is none.

#include "ui/interaction_plot.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace pilarix::ui {

class InteractionDialog : public QDialog {
    Q_OBJECT
public:
    explicit InteractionDialog(QWidget* parent = nullptr);

    // Shows a calculation; the utilisation of the verdict is the governing point's.
    void mostra(const DiagramData& data);
    // The same with the utilisation given apart (a fraction: 1 on the curve).
    void mostra(const DiagramData& data, double utilisation);
    // No calculation to show: the plot's placeholder and no figures.
    void limpa();

    InteractionPlot* grafico() const { return grafico_; }
    QLabel* utilizacao() const { return utilizacao_; }
    QLabel* veredito() const { return veredito_; }
    QLabel* momentoResistente() const { return mRd_; }

    QSize sizeHint() const override { return {760, 560}; }

private:
    InteractionPlot* grafico_;
    QLabel* utilizacao_;
    QLabel* veredito_;
    QLabel* solicitacao_;
    QLabel* mRd_;
    QLabel* nRdMax_;
    QLabel* nRdMin_;
};

} // namespace pilarix::ui
