// The main window's file commands (file_actions.h) and its recent projects
// (recent_projects.h), as the window offers them.

#include "ui/main_window.h"
#include "ui/file_actions.h"
#include "ui/recent_projects.h"

namespace pilarix::ui {

void MainWindow::novo() { arquivos_->novo(); }
void MainWindow::abre() { arquivos_->abre(); }
void MainWindow::abreArquivo(const QString& nome) { arquivos_->abreArquivo(nome); }
bool MainWindow::salva() { return arquivos_->salva(); }
bool MainWindow::salvaComo() { return arquivos_->salvaComo(); }
bool MainWindow::podeDescartar(const QString& acao) { return arquivos_->podeDescartar(acao); }
void MainWindow::atualizaTitulo() { arquivos_->atualizaTitulo(); }
QStringList MainWindow::arquivosRecentes() const { return recentes_->lista(); }

} // namespace pilarix::ui
