#include "ui/screenshot.h"

#include "ui/main_window.h"

#include <QApplication>
#include <QPixmap>

#include <iostream>

namespace pilarix::ui {

namespace {

// Every question gets its first answer; nothing waits for a user.
class RespostasAutomaticas : public DialogPort {
public:
    void showError(const Form2Model& form) override
    {
        std::cerr << form.Caption << ": " << form.Label1.Caption;
        if (!form.Label2.Caption.empty())
            std::cerr << " (" << form.Label2.Caption << ")";
        std::cerr << "\n";
    }
    int askCover(const Form4Model& form) override
    {
        std::cerr << form.Caption << ": " << form.Label2.Caption << " -> " << form.Command2.Caption << "\n";
        return 1;
    }
    void chooseStirrup(Form7Model& form) override
    {
        for (auto& o : form.Option1)
            o.Value = false;
        form.Option1[4].Value = true;
    }
    void notice(const std::string& text) override { std::cerr << text << "\n"; }
    void beep() override {}
    std::string askOpenFileName() override { return {}; }
    std::string askSaveFileName() override { return {}; }
};

} // namespace

int salvaImagemDaJanela(const QString& arquivoPng, const QString& projeto)
{
    RespostasAutomaticas respostas;
    MainWindow janela(&respostas);
    janela.inicia();
    if (!projeto.isEmpty()) {
        auto& p = janela.program();
        janela.executa([&] {
            p.NomeArquivo = projeto.toStdString();
            p.ErroArquivo.clear();
            p.Carrega33();
        });
        // The reason has gone to standard error with the other messages.
        if (!p.ErroArquivo.empty())
            return 2;
    }
    janela.executa([&] { janela.program().Command1_Click(); });
    janela.show();
    QApplication::processEvents();
    janela.adjustSize();
    QApplication::processEvents();
    const QPixmap imagem = janela.grab();
    if (!imagem.save(arquivoPng, "PNG")) {
        std::cerr << "pilarix: não foi possível gravar " << arquivoPng.toStdString() << "\n";
        return 1;
    }
    return 0;
}

} // namespace pilarix::ui
