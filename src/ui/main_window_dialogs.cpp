// The main window's other forms and exports: "Outros valores", the d' estimate, the
// solutions, the load cases, the interaction diagram, the drawing file, the report,
// help and about.

#include "ui/main_window.h"
#include "ui/edit_history.h"
#include "ui/window_parts.h"

#include "base/number_text.h"
#include "engine/catalogue.h"
#include "render/drawing_export.h"
#include "render/report_pdf.h"
#include "ui/cases_dialog.h"
#include "ui/about_dialog.h"
#include "ui/d_estimate_dialog.h"
#include "ui/help_dialog.h"
#include "ui/interaction_dialog.h"
#include "ui/other_values_dialog.h"
#include "ui/solutions_dialog.h"
#include "window/solution_details.h"
#include "window/window_input.h"

namespace pilarix::ui {

using namespace window_parts;

// ---- the other forms ----

void MainWindow::abreOutrosValores()
{
    if (!outros_)
        outros_ = new OtherValuesDialog(
            program_->Form8,
            [this] { executa([this] { program_->Form8Command1_Click(); }, Edicao::Usuario, QStringLiteral("outros valores")); },
            [this](const std::string& mensagem) {
                auto& form = program_->Form2;
                form.Label1.Caption = mensagem;
                form.Label2.Caption.clear();
                dialogos_->showError(form);
            },
            this);
    outros_->carrega();
    outros_->exec();
}

void MainWindow::abreEstimativaDLinha()
{
    if (!estimativa_)
        estimativa_ = new DEstimateDialog(
            program_->Form5, [this] { executa([this] { program_->Form5Calcula(); }); },
            [this] { executa([this] { program_->Form5Aceita(); }, Edicao::Usuario, QStringLiteral("estimativa de d'")); },
            this);
    // It starts from the bar, the stirrup and the cover of the last calculation.
    if (const auto& r = program_->Resultado; r && r->detailed && r->bar) {
        auto& f5 = program_->Form5;
        for (int i = 1; i <= engine::kBarCount; ++i) {
            const auto& b = engine::bar(i);
            if (i <= engine::kLastStirrupBar && std::abs(b.diameter - r->stirrup.diameter) < 1e-9)
                f5.Combo1.Text = std::string(b.labelComma);
            if (i == r->bar->index)
                f5.Combo2.Text = std::string(b.labelComma);
        }
        f5.Text1.Text = Str(r->cover.effective * 10);
        program_->Form5Calcula();
    }
    estimativa_->carrega();
    estimativa_->exec();
}

void MainWindow::abreSolucoes()
{
    if (!solucoes_)
        solucoes_ = new SolutionsDialog(
            program_->Form11, [this] { executa([this] { program_->Form11Escolhe(); }); }, this);
    solucoes_->poeDetalhes(detalhaSolucoes(*program_));
    solucoes_->exec();
}

void MainWindow::exportaDesenho()
{
    auto& p = *program_;
    if (!p.Desenho) {
        dialogos_->notice("Calcule a seção antes de exportar o desenho: não há seção detalhada para desenhar.");
        return;
    }
    copiaParaModelo();
    if (const auto problema = conferenciaDaEscala(p.Form1.Text6.Text)) {
        dialogos_->notice(*problema);
        return;
    }
    // The project's name, with the drawing's extension in place of its own.
    const std::string nome = dialogos_->askDrawingFileName(nomeProposto() + ".dxf");
    if (nome.empty())
        return;
    // A design that does not hold says so in the file itself.
    std::string motivo;
    if (p.Form1.Text30.Text != "Ok")
        motivo = "o cálculo deu erro";
    else if (desatualizado_)
        motivo = "a entrada mudou depois do cálculo";
    const engine::SectionGeometry desenho =
        motivo.empty() ? *p.Desenho : render::stampedUnverified(*p.Desenho, motivo);
    std::string erro;
    if (render::exportDrawing(desenho, nome, Val(p.Form1.Text6.Text), erro))
        mostraNaBarra(QStringLiteral("Desenho %1gravado em %2")
                          .arg(motivo.empty() ? QString() : QStringLiteral("(NÃO VERIFICADO) "), qs(nome)));
    else
        dialogos_->notice(erro);
}

// The project's name without its extension, to propose for a drawing or a report.
std::string MainWindow::nomeProposto() const
{
    const auto& p = *program_;
    std::string proposto = p.NomeArquivo.empty() || p.NomeArquivo == "Padrão.txt" ? "pilar" : p.NomeArquivo;
    if (const auto ponto = proposto.find_last_of('.');
        ponto != std::string::npos && proposto.find('/', ponto) == std::string::npos)
        proposto.erase(ponto);
    return proposto;
}

void MainWindow::imprimeMemorial()
{
    // A report signs the results on show: results the input no longer matches are
    // calculated again first, and input that cannot be calculated reports nothing.
    if (desatualizado_ || program_->Form1.Text30.Text.empty()) {
        if (!calculaConferido([this] { program_->Command1_Click(); }))
            return;
        mostraNaBarra(QStringLiteral("Os resultados foram recalculados para o memorial."));
    }
    const std::string nome = dialogos_->askReportFileName(nomeProposto() + ".pdf");
    if (nome.empty())
        return;
    std::string erro;
    if (render::writeReport(*program_, nome, render::currentStamp(), erro))
        mostraNaBarra(QStringLiteral("Memorial de cálculo gravado em ") + qs(nome));
    else
        dialogos_->notice(erro);
}

void MainWindow::abreCasos()
{
    // The cases table edits Nd and Md of the main window too: it starts from what
    // the boxes hold, and every change is an edit of the input like a typed one.
    copiaParaModelo();
    if (!casos_)
        casos_ = new CasesDialog(
            *program_,
            [this] {
                atualiza();
                historia_->registra(QStringLiteral("casos de carga"), false);
                reavalia();
                casos_->carrega(desatualizado_);
            },
            this);
    casos_->carrega(desatualizado_);
    casos_->show();
    casos_->raise();
    casos_->activateWindow();
}

void MainWindow::abreDiagrama()
{
    if (!diagrama_)
        diagrama_ = new InteractionDialog(this);
    diagrama_->show();
    mostraVerificacao();
    diagrama_->raise();
    diagrama_->activateWindow();
}

void MainWindow::abreSobre()
{
    AboutDialog sobre(this);
    sobre.exec();
}

void MainWindow::abreAjuda()
{
    if (!ajuda_)
        ajuda_ = new HelpDialog(this);
    ajuda_->show();
    ajuda_->raise();
    ajuda_->activateWindow();
}

} // namespace pilarix::ui
