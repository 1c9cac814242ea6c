#pragma once
// "Combinações de esforços": the load cases of the column in a table, each with its
// name, Nd and Md in the units chosen in the main window. The first row is the main
// window's Nd and Md; rows are added, removed, or pasted from a spreadsheet
// (tab-separated rows, decimal comma or point). After a calculation with two or more
// cases the table shows, per case, the zone, βx, the required area and the
// utilisation of the detailed section, the governing case marked and every case the
// section does not carry in red.

#include "window/program.h"

#include <QDialog>

#include <functional>

class QLabel;
class QTableWidget;

namespace pilarix::ui {

class CasesDialog : public QDialog {
    Q_OBJECT
public:
    // `alterou` runs after the cases in the model have changed (the window marks its
    // results as out of date).
    CasesDialog(Program& program, std::function<void()> alterou, QWidget* parent = nullptr);

    // The model into the table: the cases, their units and the last results.
    void carrega();

    QTableWidget* tabela() const { return tabela_; }
    QLabel* aviso() const { return aviso_; }

    // Rows of a spreadsheet, "nome<TAB>Nd<TAB>Md" or "Nd<TAB>Md", appended after the
    // last case; false, with the line in `aviso`, when a line is not a case.
    bool cola(const QString& texto);

public slots:
    void adiciona();
    void remove();
    void colaDaAreaDeTransferencia();

private:
    void editou(int linha, int coluna);
    void guarda();
    void avisa(const QString& texto);

    Program& p_;
    std::function<void()> alterou_;
    QTableWidget* tabela_;
    QLabel* aviso_;
    bool carregando_ = false;
};

// A force or moment as typed in Brazil or in a file: "1.234,5" is not taken, but
// "400,5" and "400.5" both are "400.5"; empty when the text is not a number.
QString numeroNormalizado(const QString& texto);

} // namespace pilarix::ui
