// The main window's panels of output: the drawing, the messages, the results, the
// verdict and the row of buttons, built in code, and the refresh of what the last
// calculation said (its messages, "Verificação" and the forms that follow it).

#include "ui/main_window.h"
#include "ui/form_binding.h"
#include "ui/window_dialogs.h"
#include "ui/window_parts.h"

#include "ui/interaction_dialog.h"
#include "ui/section_canvas.h"
#include "ui/verdict_text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace pilarix::ui {

using namespace window_parts;

QWidget* MainWindow::montaDesenho()
{
    auto& f = program_->Form1;
    auto* q = quadro("Seção transversal", "Frame8");
    auto* v = new QVBoxLayout(q);
    desenho_ = new SectionCanvas;
    desenho_->setObjectName(QStringLiteral("Picture1"));
    desenho_->setToolTip(QStringLiteral("Roda do mouse: zoom. Arrastar: mover. Duplo clique ou Ajustar: desenho inteiro."));
    desenho_->setMinimumSize(200, 160);
    v->addWidget(desenho_, 1);
    auto* linha = new QHBoxLayout;
    auto* t6 = formulario_->caixa(f.Text6, Teclas::Decimal, 48, QStringLiteral("Escala"));
    linha->addWidget(rotulo(QStringLiteral("Escala"), t6));
    linha->addWidget(t6);
    linha->addStretch();
    auto* ajustar = new QPushButton(QStringLiteral("Ajustar"));
    ajustar->setObjectName(QStringLiteral("AjustarDesenho"));
    ajustar->setAutoDefault(false);
    ajustar->setToolTip(QStringLiteral("Mostra o desenho inteiro no quadro"));
    connect(ajustar, &QPushButton::clicked, desenho_, &SectionCanvas::fit);
    linha->addWidget(ajustar);
    v->addLayout(linha);
    return q;
}

QWidget* MainWindow::montaMensagens()
{
    auto* q = quadro("Mensagens", "FrameMensagens");
    auto* v = new QVBoxLayout(q);
    v->setContentsMargins(6, 4, 6, 6);
    mensagens_ = new QTextBrowser;
    mensagens_->setObjectName(QStringLiteral("Mensagens"));
    mensagens_->setOpenLinks(false);
    mensagens_->setMinimumHeight(60);
    mensagens_->setToolTip(QStringLiteral("Cada mensagem e pergunta do último cálculo, com o item da norma e a "
                                          "resposta dada"));
    v->addWidget(mensagens_);
    return q;
}

QWidget* MainWindow::montaResultados()
{
    auto& f = program_->Form1;
    auto* coluna = new QWidget;
    auto* v = new QVBoxLayout(coluna);
    v->setContentsMargins(0, 0, 0, 0);

    auto* area = quadro("Área de AÇO (cm2)", "Frame9");
    auto* ga = new QGridLayout(area);
    ga->setHorizontalSpacing(6);
    ga->addWidget(rotulo(QStringLiteral("Total")), 0, 1, Qt::AlignCenter);
    ga->addWidget(rotulo(QStringLiteral("Por barra")), 0, 2, Qt::AlignCenter);
    const char* linhas[] = {"Mínima", "Teórica", "Efetiva"};
    TextBox* totais[] = {&f.Text9, &f.Text10, &f.Text11};
    TextBox* porBarra[] = {&f.Text12, &f.Text13, &f.Text14};
    for (int i = 0; i < 3; ++i) {
        ga->addWidget(rotulo(QString::fromUtf8(linhas[i])), i + 1, 0);
        ga->addWidget(formulario_->resultado(*totais[i], 72), i + 1, 1);
        ga->addWidget(formulario_->resultado(*porBarra[i], 72), i + 1, 2);
    }
    ga->addWidget(rotulo(QStringLiteral("Excesso")), 4, 0);
    ga->addWidget(formulario_->resultado(f.Text15, 72), 4, 1);
    ga->setColumnStretch(3, 1);
    v->addWidget(area);

    auto* peso = quadro("Aço (Kg)", "Frame10");
    auto* gp = new QHBoxLayout(peso);
    gp->addWidget(rotulo(QStringLiteral("Longitudinal")));
    gp->addWidget(formulario_->resultado(f.Text19, 72));
    gp->addStretch();
    v->addWidget(peso);

    auto* cob = quadro("Cobrimento (cm)", "Frame11");
    auto* gc = new QHBoxLayout(cob);
    gc->addWidget(rotulo(QStringLiteral("Nominal")));
    gc->addWidget(formulario_->resultado(f.Text25, 60));
    gc->addSpacing(8);
    gc->addWidget(rotulo(QStringLiteral("Efetivo")));
    gc->addWidget(formulario_->resultado(f.Text26, 60));
    gc->addStretch();
    v->addWidget(cob);

    auto* est = quadro("Estribo", "Frame12");
    auto* gs = new QHBoxLayout(est);
    auto* t27 = formulario_->resultado(f.Text27, 0);
    t27->setAlignment(Qt::AlignLeft);
    gs->addWidget(t27);
    v->addWidget(est);

    auto* zon = quadro("Zonas de Solicitação", "Frame13");
    auto* gz = new QGridLayout(zon);
    gz->setHorizontalSpacing(6);
    gz->addWidget(rotulo(QStringLiteral("Zona")), 0, 0);
    auto* t8 = formulario_->resultado(f.Text8, 60);
    t8->setAlignment(Qt::AlignCenter);
    gz->addWidget(t8, 0, 1);
    gz->addWidget(rotulo(QStringLiteral("βx = x / h")), 1, 0);
    gz->addWidget(formulario_->resultado(f.Text28, 60), 1, 1);
    gz->addWidget(rotulo(QStringLiteral("Altura da L.N.")), 2, 0);
    gz->addWidget(formulario_->resultado(f.Text29, 60), 2, 1);
    gz->addWidget(rotulo(QStringLiteral("cm")), 2, 2);
    gz->setColumnStretch(3, 1);
    v->addWidget(zon);
    v->addWidget(montaEsbeltez());

    // The detailed section checked by strain compatibility, whatever the zones method said.
    auto* ver = quadro("Verificação", "FrameVerificacao");
    auto* gv = new QGridLayout(ver);
    gv->setHorizontalSpacing(6);
    gv->addWidget(rotulo(QStringLiteral("Utilização")), 0, 0);
    utilizacao_ = new QLineEdit;
    utilizacao_->setObjectName(QStringLiteral("TextUtilizacao"));
    utilizacao_->setReadOnly(true);
    utilizacao_->setFocusPolicy(Qt::ClickFocus);
    utilizacao_->setAlignment(Qt::AlignRight);
    utilizacao_->setFixedWidth(72);
    utilizacao_->setToolTip(QStringLiteral("Quanto da resistência da seção detalhada os esforços de cálculo usam, "
                                           "por compatibilidade de deformações (100 % no limite)"));
    formulario_->somenteLeitura(utilizacao_, QStringLiteral("Utilização"));
    gv->addWidget(utilizacao_, 0, 1);
    auto* diagrama = new QPushButton(QStringLiteral("Dia&grama..."));
    diagrama->setObjectName(QStringLiteral("cmdDiagrama"));
    diagrama->setAutoDefault(false);
    diagrama->setToolTip(QStringLiteral("Diagrama de interação N–M da seção detalhada"));
    connect(diagrama, &QPushButton::clicked, this, &MainWindow::abreDiagrama);
    gv->addWidget(diagrama, 0, 2);
    // The warning keeps its room, so that the window does not grow when it speaks.
    avisoVerificacao_ = new QLabel;
    avisoVerificacao_->setObjectName(QStringLiteral("lblAvisoVerificacao"));
    avisoVerificacao_->setWordWrap(true);
    avisoVerificacao_->setFixedHeight(2 * avisoVerificacao_->fontMetrics().lineSpacing() + 2);
    gv->addWidget(avisoVerificacao_, 1, 0, 1, 3);
    // With several load cases the boxes Nd and Md are the first case's, the results
    // the governing case's: the window says which.
    casoDeterminante_ = new QLabel;
    casoDeterminante_->setObjectName(QStringLiteral("lblCasoDeterminante"));
    casoDeterminante_->setWordWrap(true);
    casoDeterminante_->setVisible(false);
    gv->addWidget(casoDeterminante_, 2, 0, 1, 3);
    gv->setColumnStretch(2, 1);

    auto* err = quadro("Erros", "Frame14");
    auto* gr = new QHBoxLayout(err);
    auto* t30 = formulario_->resultado(f.Text30, 0);
    t30->setAlignment(Qt::AlignCenter);
    QFont negrito = t30->font();
    negrito.setBold(true);
    t30->setFont(negrito);
    gr->addWidget(t30);
    v->addStretch();
    // The verdict stays in sight under the results, which scroll on a short screen.
    veredito_ = new QWidget;
    auto* vv = new QVBoxLayout(veredito_);
    vv->setContentsMargins(0, 0, 0, 0);
    vv->addWidget(ver);
    vv->addWidget(err);
    // The column of results is the tallest: its frames hold their boxes close.
    for (auto* w : {coluna, veredito_})
        for (auto* q : w->findChildren<QGroupBox*>())
            if (q->layout())
                q->layout()->setContentsMargins(8, 4, 8, 4);
    coluna->setMinimumWidth(250);
    return coluna;
}

QWidget* MainWindow::montaBotoes()
{
    auto& f = program_->Form1;
    auto* barra = new QWidget;
    auto* h = new QHBoxLayout(barra);
    h->setContentsMargins(0, 4, 0, 0);
    auto* calcula = formulario_->botao(f.Command1, QStringLiteral("Command1"), [this] { this->calcula(); });
    QFont negrito = calcula->font();
    negrito.setBold(true);
    calcula->setFont(negrito);
    calcula->setMinimumWidth(110);
    h->addWidget(calcula);
    h->addWidget(formulario_->botao(f.Command8, QStringLiteral("Command8"), [this] {
        buscando_ = true;
        calculaConferido([this] { program_->Command8_Click(); });
        buscando_ = false;
    }));
    auto* anterior = formulario_->botao(f.Command10, QStringLiteral("Command10"), [this] {
        executa([this] { program_->Command10_Click(); });
    });
    auto* seguinte = formulario_->botao(f.Command9, QStringLiteral("Command9"), [this] {
        executa([this] { program_->Command9_Click(); });
    });
    anterior->setFixedWidth(32);
    seguinte->setFixedWidth(32);
    // Which solution of the list is in the window: "3 de 40".
    posicaoNaLista_ = new QLabel;
    posicaoNaLista_->setObjectName(QStringLiteral("lblSolucaoAtual"));
    posicaoNaLista_->setVisible(false);
    h->addWidget(anterior);
    h->addWidget(posicaoNaLista_);
    h->addWidget(seguinte);
    h->addWidget(formulario_->botao(f.Command11, QStringLiteral("Command11"), [this] {
        executa([this] { program_->Command11_Click(); });
        abreSolucoes();
    }));
    h->addStretch();
    h->addWidget(formulario_->botao(f.Command7, QStringLiteral("Command7"), [this] { valoresPadrao(); }));
    h->addSpacing(12);
    auto* sai = formulario_->botao(f.Command6, QStringLiteral("Command6"), [this] { close(); });
    sai->setMinimumWidth(80);
    h->addWidget(sai);
    return barra;
}

void MainWindow::mostraMensagens()
{
    leRegistro();
    const auto& lista = registro_.transcript;
    QString texto;
    if (lista.empty()) {
        texto = program_->CalculosFeitos == 0 ? QStringLiteral("<p>Nenhum cálculo ainda.</p>")
                                              : QStringLiteral("<p>O último cálculo não deu mensagens.</p>");
    }
    for (const auto& r : lista) {
        const QString janela = r.kind == DialogRecord::Kind::Notice ? QStringLiteral("Aviso") : html(r.janela);
        texto += QStringLiteral("<p><b>%1</b>: %2").arg(janela, html(r.mensagem));
        if (!r.item.empty())
            texto += QStringLiteral("<br><i>%1</i>").arg(html(r.item));
        if (r.kind == DialogRecord::Kind::Cover)
            texto += QStringLiteral("<br>Resposta: %1").arg(semAtalho(r.respostaTexto).toHtmlEscaped());
        else if (r.kind == DialogRecord::Kind::Stirrup)
            texto += QStringLiteral("<br>Escolha: %1").arg(html(r.respostaTexto));
        texto += QStringLiteral("</p>");
    }
    if (desatualizado_)
        texto = QStringLiteral("<p style=\"color:#aa3c00\"><b>Do cálculo anterior: a entrada mudou depois "
                               "dele.</b></p><div style=\"color:#8c8c8c\">")
                + texto + QStringLiteral("</div>");
    mensagens_->setHtml(texto);
}

void MainWindow::mostraVerificacao()
{
    const auto& v = registro_.verification;
    // A failed design: its utilisation approves nothing, whatever its figure.
    const bool erro = registro_.verdict == "erro";
    QPalette pal = utilizacao_->palette();
    QPalette palAviso = avisoVerificacao_->palette();
    QColor corAviso(205, 30, 30);
    if (!v) {
        utilizacao_->clear();
        avisoVerificacao_->clear();
    } else {
        utilizacao_->setText(utilisationText(v->utilisation));
        const bool naoResiste = !(v->utilisation <= 1);
        const QColor cor = erro && !naoResiste ? QColor(128, 128, 128) : utilisationColour(v->utilisation);
        pal.setColor(QPalette::Text, desatualizado_ ? kLetraDesatualizada : cor);
        if (naoResiste)
            avisoVerificacao_->setText(QStringLiteral("A seção detalhada NÃO resiste aos esforços (utilização %1).")
                                           .arg(utilisationText(v->utilisation)));
        else if (erro) {
            avisoVerificacao_->setText(QStringLiteral("Com \"erro\" a utilização não aprova o pilar: veja as "
                                                      "mensagens."));
            corAviso = QColor(110, 110, 110);
        } else
            avisoVerificacao_->clear();
    }
    utilizacao_->setToolTip(erro && v ? QStringLiteral("O cálculo deu erro: a utilização vale só como informação; "
                                                      "o pilar não está verificado.")
                                      : QStringLiteral("Quanto da resistência da seção detalhada os esforços de "
                                                       "cálculo usam, por compatibilidade de deformações (100 % no "
                                                       "limite)"));
    pal.setColor(QPalette::Base, desatualizado_ ? esmaecida(Qt::white) : QColor(Qt::white));
    utilizacao_->setPalette(pal);
    QFont fonte = avisoVerificacao_->font();
    fonte.setBold(true);
    avisoVerificacao_->setFont(fonte);
    palAviso.setColor(QPalette::WindowText, desatualizado_ ? kLetraDesatualizada : corAviso);
    avisoVerificacao_->setPalette(palAviso);
    desenho_->setUnverified(erro && desenho_->hasSection()
                                ? QStringLiteral("O cálculo deu erro: veja as mensagens.")
                                : QString());
    const QString caso = casoDeterminanteTexto(registro_);
    casoDeterminante_->setText(caso);
    casoDeterminante_->setVisible(!caso.isEmpty());
    casoDeterminante_->setStyleSheet(desatualizado_ ? QStringLiteral("color: rgb(140, 140, 140);") : QString());
    formularios_->acompanha();
    mostra2014();
}

} // namespace pilarix::ui
