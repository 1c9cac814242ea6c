// The main window's input panels: the frames "Dimensões", "Arranjo", "Esforços e
// Resistências", "Cobrimento", "Bitola", "Estribos" and "Ganchos", built in code, each
// widget made bound to its control of the form model (form_binding.h).

#include "ui/main_window.h"
#include "ui/window_parts.h"

#include "ui/form_binding.h"
#include "ui/norma2014_panel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace pilarix::ui {

using namespace window_parts;

// ---- building the window ----

QPushButton* MainWindow::passo(CommandButton& m, const QString& nome, void (Program::*handler)(),
                               const TextBox* passoCaixa)
{
    // A step changes its box as the user's edit, then calculates. An empty step
    // moves nothing, as the program always did; the status bar says so.
    auto* b = formulario_->botao(m, nome, [this, handler, passoCaixa] {
        if (calculaConferido([this, handler] { (program_.get()->*handler)(); }, Edicao::Usuario) && passoCaixa
            && passoCaixa->Text.find_first_not_of(' ') == std::string::npos)
            mostraNaBarra(QStringLiteral("O passo ao lado está vazio: o lado não mudou."));
    });
    b->setFixedWidth(26);
    // Tab goes from box to box; the buttons are for the mouse.
    b->setFocusPolicy(Qt::ClickFocus);
    return b;
}

QWidget* MainWindow::montaEntradas()
{
    auto& f = program_->Form1;
    auto* coluna = new QWidget;
    auto* v = new QVBoxLayout(coluna);
    v->setContentsMargins(0, 0, 0, 0);

    // "Dimensões": each side with its "-" / "+" buttons and the step they use.
    auto* dim = quadro("Dimensões", "Frame1");
    auto* g = new QGridLayout(dim);
    g->setHorizontalSpacing(4);
    auto* t1 = formulario_->caixa(f.Text1, Teclas::Inteiro, 56, QStringLiteral("Base (cm)"));
    auto* t2 = formulario_->caixa(f.Text2, Teclas::Inteiro, 56, QStringLiteral("Altura (cm)"));
    auto* t23 = formulario_->caixa(f.Text23, Teclas::Decimal, 56, QStringLiteral("Comprimento (cm)"));
    auto* passoRotulo = rotulo(QStringLiteral("passo"));
    passoRotulo->setAlignment(Qt::AlignCenter);
    g->addWidget(passoRotulo, 0, 5);
    g->addWidget(rotulo(QStringLiteral("Base (cm)"), t1), 1, 0);
    g->addWidget(t1, 1, 1);
    g->addWidget(passo(f.Command13, QStringLiteral("Command13"), &Program::Command13_Click, &f.Text31), 1, 2);
    g->addWidget(passo(f.Command16, QStringLiteral("Command16"), &Program::Command16_Click, &f.Text31), 1, 3);
    g->addWidget(formulario_->caixa(f.Text31, Teclas::Inteiro, 40, QStringLiteral("Passo da base")), 1, 5);
    g->addWidget(rotulo(QStringLiteral("Altura (cm)"), t2), 2, 0);
    g->addWidget(t2, 2, 1);
    g->addWidget(passo(f.Command14, QStringLiteral("Command14"), &Program::Command14_Click, &f.Text32), 2, 2);
    g->addWidget(passo(f.Command15, QStringLiteral("Command15"), &Program::Command15_Click, &f.Text32), 2, 3);
    g->addWidget(formulario_->caixa(f.Text32, Teclas::Inteiro, 40, QStringLiteral("Passo da altura")), 2, 5);
    g->addWidget(rotulo(QStringLiteral("Comprimento (cm)"), t23), 3, 0);
    g->addWidget(t23, 3, 1);
    g->setColumnStretch(4, 1);
    v->addWidget(dim);

    // "Arranjo": bars on each face, d' and how it is found.
    auto* arr = quadro("Arranjo", "Frame2");
    auto* ga = new QGridLayout(arr);
    ga->setHorizontalSpacing(4);
    auto* t4 = formulario_->caixa(f.Text4, Teclas::Inteiro, 56, QStringLiteral("Barras nas faces da base"));
    auto* t5 = formulario_->caixa(f.Text5, Teclas::Inteiro, 56, QStringLiteral("Barras nas faces da altura"));
    auto* t3 = formulario_->caixa(f.Text3, Teclas::Decimal, 72, QStringLiteral("d' (cm)"));
    ga->addWidget(rotulo(QStringLiteral("n   de barras nas faces:")), 0, 0, 1, 5);
    ga->addWidget(rotulo(QStringLiteral("Base"), t4), 1, 0);
    ga->addWidget(t4, 1, 1);
    ga->addWidget(passo(f.Command3, QStringLiteral("Command3"), &Program::Command3_Click), 1, 2);
    ga->addWidget(passo(f.Command2, QStringLiteral("Command2"), &Program::Command2_Click), 1, 3);
    ga->addWidget(rotulo(QStringLiteral("Altura"), t5), 2, 0);
    ga->addWidget(t5, 2, 1);
    ga->addWidget(passo(f.Command5, QStringLiteral("Command5"), &Program::Command5_Click), 2, 2);
    ga->addWidget(passo(f.Command4, QStringLiteral("Command4"), &Program::Command4_Click), 2, 3);
    ga->addWidget(rotulo(QStringLiteral("d' (cm)"), t3), 3, 0);
    ga->addWidget(t3, 3, 1);
    auto* estimar = formulario_->botao(f.Command17, QStringLiteral("Command17"), [this] { abreEstimativaDLinha(); });
    ga->addWidget(estimar, 3, 2, 1, 4);
    auto* c3 = formulario_->marca(f.Check3, qs(f.Check3.Caption));
    connect(c3, &QCheckBox::clicked, this, &MainWindow::marcouDLinhaAutomatico);
    ga->addWidget(c3, 4, 0, 1, 6);
    ga->setColumnStretch(5, 1);
    v->addWidget(arr);

    // "Esforços e Resistências": each quantity with its unit.
    auto* esf = quadro("Esforços e Resistências", "Frame3");
    auto* ge = new QGridLayout(esf);
    ge->setHorizontalSpacing(6);
    struct Linha {
        const char* rotulo;
        TextBox* caixa;
        Teclas regra;
        ComboBox* lista;
    };
    const Linha linhas[] = {
        {"Nd", &f.Text16, Teclas::DecimalComSinal, &f.Combo4},
        {"Md", &f.Text17, Teclas::Decimal, &f.Combo5},
        {"Fck", &f.Text18, Teclas::Decimal, &f.Combo6},
        {"Es", &f.Text20, Teclas::Decimal, &f.Combo7},
    };
    int linha = 0;
    for (const auto& l : linhas) {
        const QString nome = QString::fromUtf8(l.rotulo);
        auto* e = formulario_->caixa(*l.caixa, l.regra, 72, nome);
        ge->addWidget(rotulo(nome, e), linha, 0);
        ge->addWidget(e, linha, 1);
        ge->addWidget(formulario_->lista(*l.lista, QStringLiteral("Unidade de ") + nome), linha, 2);
        ++linha;
    }
    auto* t21 = formulario_->caixa(f.Text21, Teclas::Decimal, 72, QStringLiteral("γc"));
    auto* t22 = formulario_->caixa(f.Text22, Teclas::Decimal, 72, QStringLiteral("γs"));
    ge->addWidget(rotulo(QStringLiteral("γc"), t21), linha, 0);
    ge->addWidget(t21, linha, 1);
    ge->addWidget(rotulo(QStringLiteral("coef. do concreto")), linha++, 2);
    ge->addWidget(rotulo(QStringLiteral("γs"), t22), linha, 0);
    ge->addWidget(t22, linha, 1);
    ge->addWidget(rotulo(QStringLiteral("coef. do aço")), linha++, 2);
    auto* c1 = formulario_->lista(f.Combo1, QStringLiteral("Aço"));
    ge->addWidget(rotulo(QStringLiteral("Aço"), c1), linha, 0);
    ge->addWidget(c1, linha, 1, 1, 2);
    ge->setColumnStretch(2, 1);
    v->addWidget(esf);
    montaNorma2014(v);
    v->addStretch();
    coluna->setFixedWidth(300);
    return coluna;
}

QWidget* MainWindow::montaOpcoes()
{
    auto& f = program_->Form1;
    auto* coluna = new QWidget;
    auto* v = new QVBoxLayout(coluna);
    v->setContentsMargins(0, 0, 0, 0);

    auto* cob = quadro("Cobrimento", "Frame4");
    auto* gc = new QVBoxLayout(cob);
    auto* o1 = formulario_->opcao(f.Option1);
    auto* o2 = formulario_->opcao(f.Option2);
    formulario_->agrupa({o1, o2});
    gc->addWidget(o1);
    gc->addWidget(o2);
    auto* c2 = formulario_->lista(f.Combo2, QStringLiteral("Classe de agressividade ambiental"));
    c2->setFixedWidth(64);
    auto* classe = rotulo(QStringLiteral("Classe de agressividade ambiental"), c2);
    classe->setWordWrap(true);
    auto* linhaClasse = new QHBoxLayout;
    linhaClasse->addWidget(classe, 1);
    linhaClasse->addWidget(c2);
    gc->addLayout(linhaClasse);
    gc->addWidget(formulario_->marca(f.Check1, QStringLiteral("Corrigir o cobrimento sem perguntar")));
    v->addWidget(cob);

    // "Bitola (mm)": the eight catalogue bars, the one of the result highlighted;
    // with "Automático" clear, the one clicked is fixed for the calculation.
    auto* bit = quadro("Bitola (mm)", "Frame5");
    auto* gb = new QGridLayout(bit);
    gb->setHorizontalSpacing(4);
    for (int i = 0; i < 8; ++i) {
        const auto k = static_cast<std::size_t>(i);
        auto* e =
            formulario_->caixa(f.Text7[k], Teclas::Bitola, 48, QStringLiteral("Bitola %1 mm").arg(qs(f.Text7[k].Text)));
        e->setAlignment(Qt::AlignCenter);
        e->setFocusPolicy(Qt::ClickFocus);
        e->setCursor(Qt::PointingHandCursor);
        e->installEventFilter(this);
        bitolas_[k] = e;
        gb->addWidget(e, i / 4, i % 4);
    }
    gb->addWidget(formulario_->marca(f.Check2, qs(f.Check2.Caption)), 2, 0, 1, 4);
    v->addWidget(bit);

    auto* est = quadro("Estribos", "Frame6");
    auto* ge = new QGridLayout(est);
    auto* o3 = formulario_->opcao(f.Option3);
    auto* o5 = formulario_->opcao(f.Option5);
    auto* o6 = formulario_->opcao(f.Option6);
    formulario_->agrupa({o3, o5, o6});
    ge->addWidget(o3, 0, 0);
    ge->addWidget(formulario_->lista(f.Combo3, QStringLiteral("Estribo pré-definido")), 0, 1);
    ge->addWidget(o5, 1, 0, 1, 2);
    ge->addWidget(o6, 2, 0, 1, 2);
    {
        // The typed stirrup on its own line under the option, indented as its part.
        auto* digitado = new QWidget;
        auto* hd = new QHBoxLayout(digitado);
        hd->setContentsMargins(24, 0, 0, 0);
        estriboDiametro_ = formulario_->lista(f.EstriboDiametro, QStringLiteral("Diâmetro do estribo"));
        estriboEspacamento_ =
            formulario_->caixa(f.EstriboEspacamento, Teclas::Decimal, 48, QStringLiteral("Espaçamento do estribo (cm)"));
        hd->addWidget(new QLabel(QStringLiteral("φ")));
        hd->addWidget(estriboDiametro_, 1);
        hd->addWidget(new QLabel(QStringLiteral("c/")));
        hd->addWidget(estriboEspacamento_);
        hd->addWidget(new QLabel(QStringLiteral("cm")));
        ge->addWidget(digitado, 3, 0, 1, 2);
        // Only "Definir manualmente" reads them; the others leave them as they are.
        connect(o6, &QRadioButton::toggled, this, [this](bool marcado) {
            estriboDiametro_->setEnabled(marcado);
            estriboEspacamento_->setEnabled(marcado);
        });
    }
    ge->addWidget(formulario_->marca(f.Check5, qs(f.Check5.Caption)), 4, 0, 1, 2);
    ge->setColumnStretch(1, 1);
    v->addWidget(est);

    auto* gan = quadro("Ganchos", "Frame7");
    auto* gg = new QVBoxLayout(gan);
    auto* o90 = formulario_->opcao(f.Option7[1]);
    auto* o45 = formulario_->opcao(f.Option7[0]);
    formulario_->agrupa({o90, o45});
    gg->addWidget(o90);
    gg->addWidget(o45);
    v->addWidget(gan);
    v->addWidget(norma2014_); // made with the rule set's row in montaEntradas
    v->addStretch();
    coluna->setFixedWidth(270);
    return coluna;
}

} // namespace pilarix::ui
