#pragma once
// The main window's other forms and exports: each form is made the first time it is
// asked for and kept, so that it opens again as it was left; the drawing file and the
// report are written from the result on show.

#include <QPointer>

#include <string>

namespace pilarix::ui {

class MainWindow;
class OtherValuesDialog;
class DEstimateDialog;
class SolutionsDialog;
class InteractionDialog;
class CasesDialog;
class HelpDialog;

class WindowDialogs {
public:
    explicit WindowDialogs(MainWindow& janela);
    ~WindowDialogs();

    void abreOutrosValores();
    void abreEstimativaDLinha();
    void abreSolucoes();
    void exportaDesenho();
    void imprimeMemorial();
    void abreCasos();
    void abreDiagrama();
    void abreSobre();
    void abreAjuda();
    // The forms left open that follow the result on show (the cases, the diagram).
    void acompanha();

private:
    std::string nomeProposto() const;

    MainWindow& janela_;
    QPointer<OtherValuesDialog> outros_;
    QPointer<DEstimateDialog> estimativa_;
    QPointer<SolutionsDialog> solucoes_;
    QPointer<InteractionDialog> diagrama_;
    QPointer<CasesDialog> casos_;
    QPointer<HelpDialog> ajuda_;
};

} // namespace pilarix::ui
