// The main window's edits: each change of the input is kept for undo, and the result
// on show and the list of the search are marked out of date against the input.

#include "ui/main_window.h"
#include "ui/form_binding.h"
#include "ui/window_parts.h"

#include "ui/input_edit.h"
#include "window/window_input.h"

#include <QAbstractButton>
#include <QUndoStack>

namespace pilarix::ui {

using namespace window_parts;

// ---- edits, the result out of date, undo ----

void MainWindow::entradaEditada(bool digitacao)
{
    if (pintando_ || ocupado_)
        return;
    copiaParaModelo();
    registraEdicao(QString(), digitacao);
    reavalia();
}

void MainWindow::registraEdicao(const QString& descricao, bool digitacao)
{
    auto agora = valoresDaEntrada(*program_, Alcance::Projeto);
    std::vector<EdicaoDaEntrada::Mudanca> mudancas;
    for (std::size_t i = 0; i < agora.size() && i < valoresAtuais_.size(); ++i)
        if (agora[i].second != valoresAtuais_[i].second)
            mudancas.push_back({agora[i].first, valoresAtuais_[i].second, agora[i].second});
    valoresAtuais_ = std::move(agora);
    if (mudancas.empty())
        return;
    // The edit is named as the menu says it: "Desfazer Base (cm)".
    QString texto = descricao;
    if (texto.isEmpty() && mudancas.size() == 1) {
        const QString nome = qs(mudancas.front().nome).section(QLatin1Char('|'), 0, 0);
        auto* w = centralWidget()->findChild<QWidget*>(nome);
        if (const QString* rotulo = w ? formulario_->rotuloDe(w) : nullptr)
            texto = *rotulo;
        else if (auto* b = qobject_cast<QAbstractButton*>(w); b && !b->text().isEmpty())
            texto = b->text().remove(QLatin1Char('&')).simplified();
        else
            texto = nome;
    }
    if (texto.isEmpty())
        texto = QStringLiteral("edição");
    pilhaDesfazer_->push(new EdicaoDaEntrada(std::move(mudancas), digitacao, texto,
                                             [this](const std::vector<std::pair<std::string, std::string>>& v) {
                                                 for (const auto& [nome, valor] : v)
                                                     restauraEntrada(*program_, nome, valor);
                                                 desfeito();
                                             }));
}

void MainWindow::desfeito()
{
    atualiza();
    valoresAtuais_ = valoresDaEntrada(*program_, Alcance::Projeto);
    reavalia();
}

void MainWindow::reavalia()
{
    auto& p = *program_;
    const bool haResultado = !p.Form1.Text30.Text.empty() || p.Desenho.has_value();
    const bool estava = desatualizado_;
    desatualizado_ = haResultado && fotoDaEntrada(p, Alcance::Resultado) != fotoResultado_;
    bool repinta = estava != desatualizado_;
    // The list of the search belongs to the section, forces and materials it was
    // found for.
    if (p.NSolucoes > 0 && fotoDaEntrada(p, Alcance::Busca) != fotoBusca_) {
        p.LimpaSolucoes();
        repinta = true;
        mostraNaBarra(QStringLiteral("A lista de soluções foi limpa: a seção, as barras, os esforços ou os "
                                     "materiais mudaram depois da busca."));
    }
    if (repinta) {
        atualiza();
        mostraMensagens();
    }
    atualizaTitulo();
}

bool MainWindow::modificado() const { return fotoDaEntrada(*program_, Alcance::Projeto) != fotoSalva_; }

} // namespace pilarix::ui
