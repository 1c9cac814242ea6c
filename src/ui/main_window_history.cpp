// The main window's edits: each change of the input is kept for undo (edit_history.h),
// and the result on show and the list of the search are marked out of date against it.

#include "ui/main_window.h"
#include "ui/edit_history.h"
#include "ui/form_binding.h"
#include "ui/window_parts.h"

#include "window/window_input.h"

#include <QUndoStack>

namespace pilarix::ui {

using namespace window_parts;

// ---- edits, the result out of date, undo ----

void MainWindow::entradaEditada(bool digitacao)
{
    if (pintando_ || ocupado_)
        return;
    copiaParaModelo();
    historia_->registra(QString(), digitacao);
    reavalia();
}

void MainWindow::desfeito()
{
    atualiza();
    historia_->lembraEntrada();
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

QUndoStack* MainWindow::pilhaDesfazer() const { return historia_->pilha(); }

bool MainWindow::modificado() const { return fotoDaEntrada(*program_, Alcance::Projeto) != fotoSalva_; }

} // namespace pilarix::ui
