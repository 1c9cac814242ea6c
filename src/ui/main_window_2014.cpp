// The main window's part for ABNT NBR 6118:2014 (and 2023): the rule set's row and
// input frame, the results frame "Esbeltez e 2ª ordem", the proposal of γc = 1.4 when
// the rule set is chosen, and the "Diagrama Mx–My". Kept apart from main_window.cpp,
// wired there by a few calls.

#include "ui/main_window.h"

#include "report/moment_contour.h"
#include "ui/form_binding.h"
#include "ui/moment_contour_dialog.h"
#include "ui/norma2014_panel.h"
#include "ui/norma2014_results.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLineEdit>

namespace pilarix::ui {

namespace {
// The γc of the default file and of the 2001 rule set; 2014 takes 1.4 (12.4.1).
constexpr const char* kGamaC2001 = "1.5";
constexpr const char* kGamaC2014 = "1.4";
} // namespace

void MainWindow::montaNorma2014(QBoxLayout* entradas)
{
    FabricaDeEntradas fabrica{
        [this](TextBox& m, Teclas regra, int largura, const QString& rotulo) {
            return formulario_->caixa(m, regra, largura, rotulo);
        },
        [this](ComboBox& m, const QString& rotulo) { return formulario_->lista(m, rotulo); }};
    norma2014_ = new Norma2014Panel(program_->Form1, fabrica);
    // The rule set heads the input; its frame goes below the options, where a
    // 1366 × 768 screen still has room (montaOpcoes).
    entradas->insertWidget(0, norma2014_->linhaDaNorma());
    connect(norma2014_, &Norma2014Panel::normaEscolhida, this, &MainWindow::propoeGamaC);
}

QWidget* MainWindow::montaEsbeltez()
{
    esbeltez_ = new Norma2014Results;
    connect(esbeltez_, &Norma2014Results::abreDiagrama, this, &MainWindow::abreDiagramaMxMy);
    return esbeltez_;
}

void MainWindow::propoeGamaC(int indiceDaNorma)
{
    if (pintando_ || ocupado_ || indiceDaNorma < 1)
        return;
    copiaParaModelo();
    auto& f = program_->Form1;
    // Only the 2001 default is replaced: a γc the engineer typed is theirs.
    if (f.Text21.Text != kGamaC2001)
        return;
    executa([&f] { f.Text21.Text = kGamaC2014; }, Edicao::Usuario, QStringLiteral("γc da norma"));
    mostraNaBarra(QStringLiteral("γc passou de %1 para %2, o da %3 (item 12.4.1); Ctrl+Z desfaz.")
                      .arg(QString::fromUtf8(kGamaC2001), QString::fromUtf8(kGamaC2014),
                           QString::fromStdString(f.Norma.Text)));
}

void MainWindow::mostra2014()
{
    if (norma2014_)
        norma2014_->atualiza(program_->Form1);
    if (esbeltez_)
        esbeltez_->mostra(registro_, desatualizado_);
    if (diagramaMxMy_ && diagramaMxMy_->isVisible()) {
        if (const auto c = report::momentContourOf(registro_))
            diagramaMxMy_->mostra(*c);
        else
            diagramaMxMy_->limpa();
        diagramaMxMy_->setWindowTitle(desatualizado_ ? QStringLiteral("Diagrama Mx–My (desatualizado)")
                                                     : QStringLiteral("Diagrama Mx–My"));
    }
}

void MainWindow::abreDiagramaMxMy()
{
    if (!diagramaMxMy_)
        diagramaMxMy_ = new MomentContourDialog(this);
    diagramaMxMy_->show();
    mostra2014();
    diagramaMxMy_->raise();
    diagramaMxMy_->activateWindow();
}

} // namespace pilarix::ui
