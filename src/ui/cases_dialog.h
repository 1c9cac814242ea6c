#pragma once
// "Combinações de esforços": the load cases of the column in a table, each with its
// name, Nd and Md in the units chosen in the main window. The first row is the main
// window's Nd and Md; rows are added, removed, or pasted from a spreadsheet
// (Ctrl+V or the button: tab-separated rows, a header row skipped, "1.350,0" or
// "1350.0"). After a calculation with two or more cases the table shows, per case,
// the zone, βx, the required area and the utilisation of the detailed section, the
// governing case marked and every case the section does not carry in red; once a
// case is edited they stay, greyed, until the next calculation.

#include "window/program.h"

#include <QDialog>

#include <functional>

class QLabel;
class QTableWidget;

namespace pilarix::ui {

class CasesDialog : public QDialog {
    Q_OBJECT
public:
    // `alterou` runs after the cases in the model have changed: the window marks its
    // results as out of date and loads the table again.
    CasesDialog(Program& program, std::function<void()> alterou, QWidget* parent = nullptr);

    // The model into the table: the cases, their units and the last results, greyed
    // when `desatualizados` (the input changed since they were calculated).
    void carrega(bool desatualizados = false);

    QTableWidget* tabela() const { return tabela_; }
    QLabel* aviso() const { return aviso_; }

    // Rows of a spreadsheet, "nome<TAB>Nd<TAB>Md" or "Nd<TAB>Md", appended after the
    // last case; a first row that is not a case (its headings) is skipped. False,
    // with the line in `aviso`, when another line is not a case.
    bool cola(const QString& texto);

public slots:
    void adiciona();
    void remove();
    void colaDaAreaDeTransferencia();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void editou(int linha, int coluna);
    void guarda();
    void mudou();
    void avisa(const QString& texto);

    Program& p_;
    std::function<void()> alterou_;
    QTableWidget* tabela_;
    QLabel* aviso_;
    bool carregando_ = false;
    bool desatualizados_ = false;
};

// A force or moment as typed in Brazil or in a file: "1.234,5" is "1234.5", "400,5"
// and "400.5" both are "400.5"; empty when the text is not a number.
QString numeroNormalizado(const QString& texto);

} // namespace pilarix::ui
