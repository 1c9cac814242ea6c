// The main window's file commands: new, open, save, save as, the recent projects of
// the "Arquivo" menu, the question before unsaved input is lost, and the title.

#include "ui/main_window.h"
#include "ui/edit_history.h"
#include "ui/recent_projects.h"
#include "ui/window_parts.h"

#include "window/window_input.h"

#include <QFileInfo>
#include <QUndoStack>

namespace pilarix::ui {

using namespace window_parts;

void MainWindow::atualizaTitulo()
{
    QString titulo = qs(program_->Form1.Caption);
    if (!arquivoAtual_.isEmpty())
        titulo += QStringLiteral(" — ") + QFileInfo(arquivoAtual_).fileName();
    if (modificado())
        titulo += QStringLiteral(" *");
    if (windowTitle() != titulo)
        setWindowTitle(titulo);
}

// ---- files ----

bool MainWindow::podeDescartar(const QString& acao)
{
    copiaParaModelo();
    if (!modificado())
        return true;
    const QString projeto =
        arquivoAtual_.isEmpty() ? QStringLiteral("O projeto sem nome") : QStringLiteral("O projeto \"%1\"").arg(QFileInfo(arquivoAtual_).fileName());
    const int resposta = dialogos_->askSaveChanges(
        (projeto + QStringLiteral(" tem alterações não salvas. Salvar antes de %1?").arg(acao)).toStdString());
    if (resposta == 1)
        return salva();
    return resposta == 2;
}

void MainWindow::guardouOuAbriu(const QString& nome)
{
    arquivoAtual_ = nome;
    fotoSalva_ = fotoDaEntrada(*program_, Alcance::Projeto);
    recentes_->lembra(nome);
    atualizaTitulo();
}

void MainWindow::novo()
{
    if (!podeDescartar(QStringLiteral("começar um novo")))
        return;
    executa([this] {
        auto& p = *program_;
        p.ErroArquivo.clear();
        p.Command7_Click();
        dLinhaSegueAMarca(p.Form1);
        if (p.ErroArquivo.empty())
            p.LimpaResultados();
    });
    arquivoAtual_.clear();
    fotoSalva_ = fotoDaEntrada(*program_, Alcance::Projeto);
    historia_->pilha()->clear();
    mostraMensagens();
    atualizaTitulo();
}

void MainWindow::abre()
{
    if (!podeDescartar(QStringLiteral("abrir outro")))
        return;
    abreArquivo(qs(dialogos_->askOpenFileName()));
}

void MainWindow::abreArquivo(const QString& nome)
{
    // As "&Abrir arquivo..." always did: the file is loaded and the window calculated,
    // also when no file was chosen; the input is checked first.
    bool carregou = false;
    executa([this, &nome, &carregou] {
        auto& p = *program_;
        p.ErroArquivo.clear();
        if (!nome.isEmpty()) {
            p.NomeArquivo = nome.toStdString();
            p.Carrega33();
            dLinhaSegueAMarca(p.Form1);
            carregou = p.ErroArquivo.empty();
        }
    });
    if (carregou) {
        historia_->pilha()->clear();
        guardouOuAbriu(nome);
    } else if (!nome.isEmpty()) {
        // A recent file that can no longer be read leaves the list.
        recentes_->esquece(nome);
    }
    calcula();
}

bool MainWindow::salva()
{
    if (arquivoAtual_.isEmpty())
        return salvaComo();
    bool gravou = false;
    executa([this, &gravou] {
        auto& p = *program_;
        p.ErroArquivo.clear();
        p.NomeArquivo = arquivoAtual_.toStdString();
        p.Grava32();
        gravou = p.ErroArquivo.empty();
    });
    if (gravou) {
        guardouOuAbriu(arquivoAtual_);
        mostraNaBarra(QStringLiteral("Salvo em %1").arg(arquivoAtual_));
    }
    return gravou;
}

bool MainWindow::salvaComo()
{
    bool gravou = false;
    executa([this, &gravou] {
        auto& p = *program_;
        p.ErroArquivo.clear();
        p.mnuItemSave_Click();
        gravou = !p.NomeArquivo.empty() && p.ErroArquivo.empty();
    });
    if (gravou) {
        guardouOuAbriu(qs(program_->NomeArquivo));
        mostraNaBarra(QStringLiteral("Salvo em %1").arg(arquivoAtual_));
    }
    return gravou;
}

QStringList MainWindow::arquivosRecentes() const { return recentes_->lista(); }

} // namespace pilarix::ui
