// The main window's file commands: new, open, save, save as, the question before
// unsaved input is lost, and the title that names the project and its changes.

#include "ui/file_actions.h"

#include "ui/main_window.h"
#include "ui/edit_history.h"
#include "ui/recent_projects.h"
#include "ui/window_parts.h"

#include "window/window_input.h"

#include <QFileInfo>
#include <QUndoStack>

namespace pilarix::ui {

using namespace window_parts;

FileActions::FileActions(MainWindow& janela) : janela_(janela) {}

void FileActions::atualizaTitulo()
{
    QString titulo = qs(janela_.program_->Form1.Caption);
    if (!janela_.arquivoAtual_.isEmpty())
        titulo += QStringLiteral(" — ") + QFileInfo(janela_.arquivoAtual_).fileName();
    if (janela_.modificado())
        titulo += QStringLiteral(" *");
    if (janela_.windowTitle() != titulo)
        janela_.setWindowTitle(titulo);
}

bool FileActions::podeDescartar(const QString& acao)
{
    janela_.copiaParaModelo();
    if (!janela_.modificado())
        return true;
    const QString& arquivo = janela_.arquivoAtual_;
    const QString projeto = arquivo.isEmpty() ? QStringLiteral("O projeto sem nome")
                                              : QStringLiteral("O projeto \"%1\"").arg(QFileInfo(arquivo).fileName());
    const int resposta = janela_.dialogos_->askSaveChanges(
        (projeto + QStringLiteral(" tem alterações não salvas. Salvar antes de %1?").arg(acao)).toStdString());
    if (resposta == 1)
        return salva();
    return resposta == 2;
}

void FileActions::guardouOuAbriu(const QString& nome)
{
    janela_.arquivoAtual_ = nome;
    janela_.fotoSalva_ = fotoDaEntrada(*janela_.program_, Alcance::Projeto);
    janela_.recentes_->lembra(nome);
    atualizaTitulo();
}

void FileActions::novo()
{
    if (!podeDescartar(QStringLiteral("começar um novo")))
        return;
    janela_.executa([this] {
        auto& p = *janela_.program_;
        p.ErroArquivo.clear();
        p.Command7_Click();
        dLinhaSegueAMarca(p.Form1);
        if (p.ErroArquivo.empty())
            p.LimpaResultados();
    });
    janela_.arquivoAtual_.clear();
    janela_.fotoSalva_ = fotoDaEntrada(*janela_.program_, Alcance::Projeto);
    janela_.historia_->pilha()->clear();
    janela_.mostraMensagens();
    atualizaTitulo();
}

void FileActions::abre()
{
    if (!podeDescartar(QStringLiteral("abrir outro")))
        return;
    abreArquivo(qs(janela_.dialogos_->askOpenFileName()));
}

void FileActions::abreArquivo(const QString& nome)
{
    // As "&Abrir arquivo..." always did: the file is loaded and the window calculated,
    // also when no file was chosen; the input is checked first.
    bool carregou = false;
    janela_.executa([this, &nome, &carregou] {
        auto& p = *janela_.program_;
        p.ErroArquivo.clear();
        if (!nome.isEmpty()) {
            p.NomeArquivo = nome.toStdString();
            p.Carrega33();
            dLinhaSegueAMarca(p.Form1);
            carregou = p.ErroArquivo.empty();
        }
    });
    if (carregou) {
        janela_.historia_->pilha()->clear();
        guardouOuAbriu(nome);
    } else if (!nome.isEmpty()) {
        // A recent file that can no longer be read leaves the list.
        janela_.recentes_->esquece(nome);
    }
    janela_.calcula();
}

bool FileActions::salva()
{
    if (janela_.arquivoAtual_.isEmpty())
        return salvaComo();
    bool gravou = false;
    janela_.executa([this, &gravou] {
        auto& p = *janela_.program_;
        p.ErroArquivo.clear();
        p.NomeArquivo = janela_.arquivoAtual_.toStdString();
        p.Grava32();
        gravou = p.ErroArquivo.empty();
    });
    if (gravou) {
        guardouOuAbriu(janela_.arquivoAtual_);
        janela_.mostraNaBarra(QStringLiteral("Salvo em %1").arg(janela_.arquivoAtual_));
    }
    return gravou;
}

bool FileActions::salvaComo()
{
    bool gravou = false;
    janela_.executa([this, &gravou] {
        auto& p = *janela_.program_;
        p.ErroArquivo.clear();
        p.mnuItemSave_Click();
        gravou = !p.NomeArquivo.empty() && p.ErroArquivo.empty();
    });
    if (gravou) {
        guardouOuAbriu(qs(janela_.program_->NomeArquivo));
        janela_.mostraNaBarra(QStringLiteral("Salvo em %1").arg(janela_.arquivoAtual_));
    }
    return gravou;
}

} // namespace pilarix::ui
