#include "ui/screenshot.h"

#include "ui/cases_dialog.h"
#include "ui/interaction_dialog.h"
#include "ui/main_window.h"
#include "ui/moment_contour_dialog.h"
#include "window/policy_dialogs.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QPixmap>

#include <iostream>

namespace pilarix::ui {

namespace {
// What the calculation told and asked, for the one who took the picture.
void contaOsDialogos(const PolicyDialogs& d)
{
    for (const auto& r : d.records) {
        std::cerr << r.janela << ": " << r.mensagem;
        if (r.kind == DialogRecord::Kind::Cover)
            std::cerr << " -> " << r.botao1;
        else if (!r.item.empty())
            std::cerr << " (" << r.item << ")";
        std::cerr << "\n";
    }
}
} // namespace

int salvaImagemDaJanela(const QString& arquivoPng, const QString& projeto, QSize tela, const QString& dialogo)
{
    // Every question gets its first answer; nothing waits for a user.
    PolicyDialogs respostas;
    MainWindow janela(&respostas);
    janela.inicia();
    if (!projeto.isEmpty()) {
        auto& p = janela.program();
        janela.executa([&] {
            p.NomeArquivo = projeto.toStdString();
            p.ErroArquivo.clear();
            p.Carrega33();
        });
        // The reason goes to standard error with the other messages.
        if (!p.ErroArquivo.empty()) {
            contaOsDialogos(respostas);
            return 2;
        }
    }
    // As "&Calcula" does: an input the window refuses is refused here too.
    janela.calcula();
    contaOsDialogos(respostas);
    if (tela.isValid()) {
        // Pixels of the screen are device pixels: the window's own size is that
        // divided by the scaling.
        const double escala = janela.devicePixelRatioF();
        janela.resize(static_cast<int>(tela.width() / escala), static_cast<int>(tela.height() / escala));
    }
    janela.show();
    QApplication::processEvents();
    QWidget* retratado = &janela;
    if (!dialogo.isEmpty()) {
        // The menu's own action, so that the dialog shows what a user would see.
        const QString acao = dialogo == QStringLiteral("casos")  ? QStringLiteral("mnuItemCasos")
                             : dialogo == QStringLiteral("mxmy") ? QStringLiteral("mnuItemDiagramaMxMy")
                                                                 : QStringLiteral("mnuItemDiagrama");
        QAction* a = janela.findChild<QAction*>(acao);
        if (!a) {
            std::cerr << "pilarix: o menu não tem " << acao.toStdString() << "\n";
            return 1;
        }
        a->trigger();
        QApplication::processEvents();
        if (dialogo == QStringLiteral("casos"))
            retratado = janela.findChild<CasesDialog*>();
        else if (dialogo == QStringLiteral("mxmy"))
            retratado = janela.findChild<MomentContourDialog*>();
        else
            retratado = janela.findChild<InteractionDialog*>();
        if (!retratado) {
            std::cerr << "pilarix: o diálogo " << dialogo.toStdString() << " não abriu\n";
            return 1;
        }
        QApplication::processEvents();
    }
    // The whole window is flat colours and text: a palette of 256 keeps its picture
    // small for the documentation without a visible change. A dialog's diagram has
    // translucent fills that a palette would shift, and keeps every colour.
    QImage imagem = retratado->grab().toImage();
    if (dialogo.isEmpty())
        imagem = imagem.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither | Qt::AvoidDither);
    if (!imagem.save(arquivoPng, "PNG", 0)) {
        std::cerr << "pilarix: não foi possível gravar " << arquivoPng.toStdString() << "\n";
        return 1;
    }
    return 0;
}

} // namespace pilarix::ui
