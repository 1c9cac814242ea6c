// The main window's other forms and exports: "Outros valores", the d' estimate, the
// solutions, the load cases, the interaction diagram, the drawing file, the report,
// help and about.

#include "ui/window_dialogs.h"

#include "ui/edit_history.h"
#include "ui/main_window.h"
#include "ui/verdict_text.h"
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

WindowDialogs::WindowDialogs(MainWindow& janela) : janela_(janela) {}

WindowDialogs::~WindowDialogs() = default;

void WindowDialogs::abreOutrosValores()
{
    if (!outros_)
        outros_ = new OtherValuesDialog(
            janela_.program_->Form8,
            [this] {
                janela_.executa([this] { janela_.program_->Form8Command1_Click(); }, MainWindow::Edicao::Usuario,
                                QStringLiteral("outros valores"));
            },
            [this](const std::string& mensagem) {
                auto& form = janela_.program_->Form2;
                form.Label1.Caption = mensagem;
                form.Label2.Caption.clear();
                janela_.dialogos_->showError(form);
            },
            &janela_);
    outros_->carrega();
    outros_->exec();
}

void WindowDialogs::abreEstimativaDLinha()
{
    if (!estimativa_)
        estimativa_ = new DEstimateDialog(
            janela_.program_->Form5, [this] { janela_.executa([this] { janela_.program_->Form5Calcula(); }); },
            [this] {
                janela_.executa([this] { janela_.program_->Form5Aceita(); }, MainWindow::Edicao::Usuario,
                                QStringLiteral("estimativa de d'"));
            },
            &janela_);
    // It starts from the bar, the stirrup and the cover of the last calculation.
    janela_.leRegistro();
    if (const auto& r = janela_.registro_.result; r && r->detailed && r->bar) {
        auto& f5 = janela_.program_->Form5;
        for (int i = 1; i <= engine::kBarCount; ++i) {
            const auto& b = engine::bar(i);
            if (i <= engine::kLastStirrupBar && std::abs(b.diameter - r->stirrup.diameter) < 1e-9)
                f5.Combo1.Text = std::string(b.labelComma);
            if (i == r->bar->index)
                f5.Combo2.Text = std::string(b.labelComma);
        }
        f5.Text1.Text = Str(r->cover.effective * 10);
        janela_.program_->Form5Calcula();
    }
    estimativa_->carrega();
    estimativa_->exec();
}

void WindowDialogs::abreSolucoes()
{
    if (!solucoes_)
        solucoes_ = new SolutionsDialog(
            janela_.program_->Form11, [this] { janela_.executa([this] { janela_.program_->Form11Escolhe(); }); }, &janela_);
    solucoes_->poeDetalhes(detalhaSolucoes(*janela_.program_));
    solucoes_->exec();
}

void WindowDialogs::exportaDesenho()
{
    auto& p = *janela_.program_;
    const app::CalculationRecord registro = p.registroDoCalculo();
    if (!registro.drawing) {
        janela_.dialogos_->notice("Calcule a seção antes de exportar o desenho: não há seção detalhada para desenhar.");
        return;
    }
    janela_.copiaParaModelo();
    if (const auto problema = conferenciaDaEscala(p.Form1.Text6.Text)) {
        janela_.dialogos_->notice(*problema);
        return;
    }
    // The project's name, with the drawing's extension in place of its own.
    const std::string nome = janela_.dialogos_->askDrawingFileName(nomeProposto() + ".dxf");
    if (nome.empty())
        return;
    // A design that does not hold says so in the file itself.
    std::string motivo;
    if (registro.verdict != "Ok")
        motivo = "o cálculo deu erro";
    else if (janela_.desatualizado_)
        motivo = "a entrada mudou depois do cálculo";
    const engine::SectionGeometry desenho =
        motivo.empty() ? *registro.drawing : render::stampedUnverified(*registro.drawing, motivo);
    std::string erro;
    if (render::exportDrawing(desenho, nome, Val(p.Form1.Text6.Text), erro))
        janela_.mostraNaBarra(QStringLiteral("Desenho %1gravado em %2")
                          .arg(motivo.empty() ? QString() : QStringLiteral("(NÃO VERIFICADO) "), qs(nome)));
    else
        janela_.dialogos_->notice(erro);
}

// The project's name without its extension, to propose for a drawing or a report.
std::string WindowDialogs::nomeProposto() const
{
    const auto& p = *janela_.program_;
    std::string proposto = p.NomeArquivo.empty() || p.NomeArquivo == "Padrão.txt" ? "pilar" : p.NomeArquivo;
    if (const auto ponto = proposto.find_last_of('.');
        ponto != std::string::npos && proposto.find('/', ponto) == std::string::npos)
        proposto.erase(ponto);
    return proposto;
}

void WindowDialogs::imprimeMemorial()
{
    // A report signs the results on show: results the input no longer matches are
    // calculated again first, and input that cannot be calculated reports nothing.
    if (janela_.desatualizado_ || !janela_.program_->registroDoCalculo().calculated()) {
        if (!janela_.calculaConferido([this] { janela_.program_->Command1_Click(); }))
            return;
        janela_.mostraNaBarra(QStringLiteral("Os resultados foram recalculados para o memorial."));
    }
    const std::string nome = janela_.dialogos_->askReportFileName(nomeProposto() + ".pdf");
    if (nome.empty())
        return;
    std::string erro;
    if (render::writeReport(janela_.program_->registroDoCalculo(), nome, render::currentStamp(), erro))
        janela_.mostraNaBarra(QStringLiteral("Memorial de cálculo gravado em ") + qs(nome));
    else
        janela_.dialogos_->notice(erro);
}

void WindowDialogs::abreCasos()
{
    // The cases table edits Nd and Md of the main window too: it starts from what
    // the boxes hold, and every change is an edit of the input like a typed one.
    janela_.copiaParaModelo();
    if (!casos_)
        casos_ = new CasesDialog(
            *janela_.program_,
            [this] {
                janela_.atualiza();
                janela_.historia_->registra(QStringLiteral("casos de carga"), false);
                janela_.reavalia();
                casos_->carrega(janela_.desatualizado_);
            },
            &janela_);
    casos_->carrega(janela_.desatualizado_);
    casos_->show();
    casos_->raise();
    casos_->activateWindow();
}

void WindowDialogs::abreDiagrama()
{
    if (!diagrama_)
        diagrama_ = new InteractionDialog(&janela_);
    diagrama_->show();
    janela_.mostraVerificacao();
    diagrama_->raise();
    diagrama_->activateWindow();
}

void WindowDialogs::abreSobre()
{
    AboutDialog sobre(&janela_);
    sobre.exec();
}

void WindowDialogs::abreAjuda()
{
    if (!ajuda_)
        ajuda_ = new HelpDialog(&janela_);
    ajuda_->show();
    ajuda_->raise();
    ajuda_->activateWindow();
}

void WindowDialogs::acompanha()
{
    const bool desatualizado = janela_.desatualizado_;
    if (casos_ && casos_->isVisible())
        casos_->carrega(desatualizado);
    if (diagrama_ && diagrama_->isVisible()) {
        if (janela_.registro_.verification)
            diagrama_->mostra(dadosDoDiagrama(janela_.registro_));
        else
            diagrama_->limpa();
        diagrama_->setWindowTitle(desatualizado ? QStringLiteral("Diagrama de interação (desatualizado)")
                                                : QStringLiteral("Diagrama de interação"));
    }
}

} // namespace pilarix::ui
