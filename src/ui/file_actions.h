#pragma once
// The main window's file commands. Each asks before unsaved changes are lost; a
// project saved or opened becomes the window's project, in its title and first
// among the recent ones.

#include <QString>

namespace pilarix::ui {

class MainWindow;

class FileActions {
public:
    explicit FileActions(MainWindow& janela);

    void novo();
    void abre();
    void abreArquivo(const QString& nome);
    bool salva();
    bool salvaComo();
    // Before input not saved is replaced: true when it may go (saved or discarded).
    bool podeDescartar(const QString& acao);
    void atualizaTitulo();

private:
    void guardouOuAbriu(const QString& nome);

    MainWindow& janela_;
};

} // namespace pilarix::ui
