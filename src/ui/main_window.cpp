#include "ui/main_window.h"

#include "base/number_text.h"
#include "ui/about_dialog.h"
#include "ui/d_estimate_dialog.h"
#include "ui/interaction_dialog.h"
#include "ui/other_values_dialog.h"
#include "ui/qt_dialogs.h"
#include "base/number_text.h"
#include "render/drawing_export.h"
#include "window/units.h"
#include "ui/section_canvas.h"
#include "ui/solutions_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QShortcutEvent>
#include <QVBoxLayout>

namespace pilarix::ui {

namespace {

QString qs(const std::string& s) { return QString::fromStdString(s); }

QColor corDoModelo(const Color& c)
{
    // System colour 19, the inactive caption text: the bars not chosen are shown
    // greyed, so that the chosen one stands out.
    if (c.system >= 0)
        return QColor(128, 128, 128);
    return QColor(c.r, c.g, c.b);
}

bool escura(const QColor& c) { return 0.299 * c.red() + 0.587 * c.green() + 0.114 * c.blue() < 110; }

void pintaCaixa(QLineEdit* e, const TextBox& m)
{
    const QColor fundo = corDoModelo(m.BackColor);
    QColor letra = corDoModelo(m.ForeColor);
    // The highlighted bar is dark blue: its number must stay readable on it.
    if (escura(fundo) && escura(letra))
        letra = Qt::white;
    QPalette pal = e->palette();
    if (pal.color(QPalette::Active, QPalette::Base) == fundo && pal.color(QPalette::Active, QPalette::Text) == letra)
        return;
    for (auto grupo : {QPalette::Active, QPalette::Inactive}) {
        pal.setColor(grupo, QPalette::Base, fundo);
        pal.setColor(grupo, QPalette::Text, letra);
    }
    e->setPalette(pal);
}

QLabel* rotulo(const QString& texto, QWidget* buddy = nullptr)
{
    auto* l = new QLabel(texto);
    if (buddy)
        l->setBuddy(buddy);
    return l;
}

QGroupBox* quadro(const char* titulo, const char* nome)
{
    auto* q = new QGroupBox(QString::fromUtf8(titulo));
    q->setObjectName(QString::fromUtf8(nome));
    return q;
}

// The menu "&Arquivo" and the stirrup option "Definir m&anualmente" share Alt+A.
// A shared access key only moves the focus between its owners; the menu is the one
// a user reaches for, so an ambiguous key that names a menu opens it.
class PrioridadeDosMenus : public QObject {
public:
    PrioridadeDosMenus(QMenuBar* barra, QObject* parent) : QObject(parent), barra_(barra) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Shortcut) {
            auto* se = static_cast<QShortcutEvent*>(event);
            if (se->isAmbiguous())
                for (QAction* menu : barra_->actions())
                    if (QKeySequence::mnemonic(menu->text()) == se->key()) {
                        barra_->setActiveAction(menu);
                        return true;
                    }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QMenuBar* barra_;
};

} // namespace

MainWindow::MainWindow(DialogPort* dialogs, QWidget* parent) : QMainWindow(parent)
{
    if (!dialogs) {
        dialogosProprios_ = std::make_unique<QtDialogs>(this);
        dialogs = dialogosProprios_.get();
    }
    dialogos_ = dialogs;
    program_ = std::make_unique<Program>(*dialogos_);

    auto beep = [this] { dialogos_->beep(); };
    filtroInteiro_ = new KeyFilter(Teclas::Inteiro, nullptr, this);
    filtroDecimal_ = new KeyFilter(Teclas::Decimal, nullptr, this);
    filtroComSinal_ = new KeyFilter(Teclas::DecimalComSinal, nullptr, this);
    filtroBitola_ = new KeyFilter(Teclas::Bitola, beep, this);
    filtroNenhum_ = new KeyFilter(Teclas::Nenhuma, nullptr, this);

    setObjectName(QStringLiteral("Form1"));
    setWindowTitle(qs(program_->Form1.Caption));
    montaMenus();

    auto* centro = new QWidget;
    auto* colunas = new QHBoxLayout;
    colunas->setSpacing(8);
    colunas->addWidget(montaEntradas());
    colunas->addWidget(montaOpcoes());
    colunas->addWidget(montaDesenho(), 1);
    colunas->addWidget(montaResultados());
    auto* raiz = new QVBoxLayout(centro);
    raiz->setContentsMargins(8, 6, 8, 8);
    raiz->addLayout(colunas, 1);
    raiz->addWidget(montaBotoes());
    setCentralWidget(centro);

    // Tab follows the reading order of the frames, column by column.
    const char* ordem[] = {
        "Text1",   "Command13", "Command16", "Text31",     "Text2",      "Command14",  "Command15",  "Text32",
        "Text23",  "Text4",     "Command3",  "Command2",   "Text5",      "Command5",   "Command4",   "Text3",
        "Command17", "Check3",  "Text16",    "Combo4",     "Text17",     "Combo5",     "Text18",     "Combo6",
        "Text20",  "Combo7",    "Text21",    "Text22",     "Combo1",     "Option1",    "Option2",    "Combo2",
        "Check1",  "Text7(0)",  "Text7(1)",  "Text7(2)",   "Text7(3)",   "Text7(4)",   "Text7(5)",   "Text7(6)",
        "Text7(7)", "Check2",   "Option3",   "Combo3",     "Option5",    "Option6",    "Check5",     "Option7(1)",
        "Option7(0)", "Text6",  "Command1",  "Command8",   "Command10",  "Command9",   "Command11",  "Command7",
        "Command6",
    };
    QWidget* anterior = nullptr;
    for (const char* nome : ordem) {
        auto* w = centro->findChild<QWidget*>(QString::fromUtf8(nome));
        if (w && anterior)
            setTabOrder(anterior, w);
        if (w)
            anterior = w;
    }

    auto* prioridade = new PrioridadeDosMenus(menuBar(), this);
    for (auto* b : centro->findChildren<QAbstractButton*>())
        b->installEventFilter(prioridade);

    atualiza();
}

MainWindow::~MainWindow() = default;

// ---- building the window ----

QLineEdit* MainWindow::caixa(TextBox& m, const QString& nome, Teclas regra, int largura)
{
    auto* e = new QLineEdit;
    e->setObjectName(nome);
    e->setFixedWidth(largura);
    e->setAlignment(Qt::AlignRight);
    KeyFilter* f = regra == Teclas::Inteiro           ? filtroInteiro_
                   : regra == Teclas::Decimal         ? filtroDecimal_
                   : regra == Teclas::DecimalComSinal ? filtroComSinal_
                   : regra == Teclas::Bitola          ? filtroBitola_
                                                      : filtroNenhum_;
    f->instala(e);
    caixas_.emplace_back(&m, e);
    return e;
}

QLineEdit* MainWindow::resultado(TextBox& m, const QString& nome, int largura)
{
    auto* e = new QLineEdit;
    e->setObjectName(nome);
    e->setReadOnly(true);
    e->setFocusPolicy(Qt::ClickFocus);
    e->setAlignment(Qt::AlignRight);
    if (largura > 0)
        e->setFixedWidth(largura);
    filtroNenhum_->instala(e);
    caixas_.emplace_back(&m, e);
    return e;
}

QComboBox* MainWindow::lista(ComboBox& m, const QString& nome)
{
    auto* c = new QComboBox;
    c->setObjectName(nome);
    c->setEditable(false);
    for (const auto& s : m.List)
        c->addItem(qs(s));
    filtroNenhum_->instala(c);
    listas_.emplace_back(&m, c);
    return c;
}

QCheckBox* MainWindow::marca(CheckBox& m, const QString& nome, const QString& texto)
{
    auto* c = new QCheckBox(texto);
    c->setObjectName(nome);
    marcas_.emplace_back(&m, c);
    return c;
}

QRadioButton* MainWindow::opcao(OptionButton& m, const QString& nome)
{
    auto* r = new QRadioButton(qs(m.Caption));
    r->setObjectName(nome);
    opcoes_.emplace_back(&m, r);
    return r;
}

QPushButton* MainWindow::botao(CommandButton& m, const QString& nome, std::function<void()> acao)
{
    auto* b = new QPushButton(qs(m.Caption));
    b->setObjectName(nome);
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, [acao = std::move(acao)] { acao(); });
    botoes_.emplace_back(&m, b);
    return b;
}

QPushButton* MainWindow::passo(CommandButton& m, const QString& nome, void (Program::*handler)())
{
    auto* b = botao(m, nome, [this, handler] { executa([this, handler] { (program_.get()->*handler)(); }); });
    b->setFixedWidth(26);
    b->setFocusPolicy(Qt::TabFocus);
    return b;
}

QAction* MainWindow::acao(const QString& texto, const QString& nome, std::function<void()> f)
{
    auto* a = new QAction(texto, this);
    a->setObjectName(nome);
    connect(a, &QAction::triggered, this, [f = std::move(f)] { f(); });
    return a;
}

void MainWindow::montaMenus()
{
    auto* arquivo = menuBar()->addMenu(QStringLiteral("&Arquivo"));
    arquivo->setObjectName(QStringLiteral("mnuArquivo"));
    arquivo->addAction(acao(QStringLiteral("&Abrir arquivo..."), QStringLiteral("mnuItemload"),
                            [this] { this->arquivo(&Program::mnuItemload_Click); }));
    arquivo->addAction(acao(QStringLiteral("Carre&gar valores padrões"), QStringLiteral("mnuItemCarregpadr"),
                            [this] { this->arquivo(&Program::mnuItemCarregpadr_Click); }));
    arquivo->addAction(acao(QStringLiteral("&Salvar como..."), QStringLiteral("mnuItemSave"),
                            [this] { this->arquivo(&Program::mnuItemSave_Click); }));
    arquivo->addAction(acao(QStringLiteral("Salvar valores como &padrão"), QStringLiteral("mnuItemSaveDefault"),
                            [this] { this->arquivo(&Program::mnuItemSaveDefault_Click); }));
    arquivo->addAction(
        acao(QStringLiteral("&Exportar desenho..."), QStringLiteral("mnuItemExportar"), [this] { exportaDesenho(); }));
    arquivo->addSeparator();
    arquivo->addAction(acao(QStringLiteral("S&obre"), QStringLiteral("mnuItemSobre"), [this] { abreSobre(); }));
    arquivo->addAction(acao(QStringLiteral("Sai&r"), QStringLiteral("mnuItemSair"), [this] { close(); }));

    auto* valores = menuBar()->addMenu(QStringLiteral("&Valores"));
    valores->setObjectName(QStringLiteral("mnuValores"));
    valores->addAction(
        acao(QStringLiteral("Outros"), QStringLiteral("mnuItemPrecisao"), [this] { abreOutrosValores(); }));
    valores->addAction(acao(QStringLiteral("&Diagrama de interação"), QStringLiteral("mnuItemDiagrama"),
                            [this] { abreDiagrama(); }));
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
    auto* t1 = caixa(f.Text1, QStringLiteral("Text1"), Teclas::Inteiro, 56);
    auto* t2 = caixa(f.Text2, QStringLiteral("Text2"), Teclas::Inteiro, 56);
    auto* t23 = caixa(f.Text23, QStringLiteral("Text23"), Teclas::Decimal, 56);
    auto* passoRotulo = rotulo(QStringLiteral("passo"));
    passoRotulo->setAlignment(Qt::AlignCenter);
    g->addWidget(passoRotulo, 0, 5);
    g->addWidget(rotulo(QStringLiteral("Base (cm)"), t1), 1, 0);
    g->addWidget(t1, 1, 1);
    g->addWidget(passo(f.Command13, QStringLiteral("Command13"), &Program::Command13_Click), 1, 2);
    g->addWidget(passo(f.Command16, QStringLiteral("Command16"), &Program::Command16_Click), 1, 3);
    g->addWidget(caixa(f.Text31, QStringLiteral("Text31"), Teclas::Inteiro, 40), 1, 5);
    g->addWidget(rotulo(QStringLiteral("Altura (cm)"), t2), 2, 0);
    g->addWidget(t2, 2, 1);
    g->addWidget(passo(f.Command14, QStringLiteral("Command14"), &Program::Command14_Click), 2, 2);
    g->addWidget(passo(f.Command15, QStringLiteral("Command15"), &Program::Command15_Click), 2, 3);
    g->addWidget(caixa(f.Text32, QStringLiteral("Text32"), Teclas::Inteiro, 40), 2, 5);
    g->addWidget(rotulo(QStringLiteral("Comprimento (cm)"), t23), 3, 0);
    g->addWidget(t23, 3, 1);
    g->setColumnStretch(4, 1);
    v->addWidget(dim);

    // "Arranjo": bars on each face, d' and how it is found.
    auto* arr = quadro("Arranjo", "Frame2");
    auto* ga = new QGridLayout(arr);
    ga->setHorizontalSpacing(4);
    auto* t4 = caixa(f.Text4, QStringLiteral("Text4"), Teclas::Inteiro, 56);
    auto* t5 = caixa(f.Text5, QStringLiteral("Text5"), Teclas::Inteiro, 56);
    auto* t3 = caixa(f.Text3, QStringLiteral("Text3"), Teclas::Decimal, 72);
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
    auto* estimar = botao(f.Command17, QStringLiteral("Command17"), [this] { abreEstimativaDLinha(); });
    ga->addWidget(estimar, 3, 2, 1, 4);
    auto* c3 = marca(f.Check3, QStringLiteral("Check3"), qs(f.Check3.Caption));
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
        const char* nomeCaixa;
        Teclas regra;
        ComboBox* lista;
        const char* nomeLista;
    };
    const Linha linhas[] = {
        {"Nd", &f.Text16, "Text16", Teclas::DecimalComSinal, &f.Combo4, "Combo4"},
        {"Md", &f.Text17, "Text17", Teclas::Decimal, &f.Combo5, "Combo5"},
        {"Fck", &f.Text18, "Text18", Teclas::Decimal, &f.Combo6, "Combo6"},
        {"Es", &f.Text20, "Text20", Teclas::Decimal, &f.Combo7, "Combo7"},
    };
    int linha = 0;
    for (const auto& l : linhas) {
        auto* e = caixa(*l.caixa, QString::fromUtf8(l.nomeCaixa), l.regra, 72);
        ge->addWidget(rotulo(QString::fromUtf8(l.rotulo), e), linha, 0);
        ge->addWidget(e, linha, 1);
        ge->addWidget(lista(*l.lista, QString::fromUtf8(l.nomeLista)), linha, 2);
        ++linha;
    }
    auto* t21 = caixa(f.Text21, QStringLiteral("Text21"), Teclas::Decimal, 72);
    auto* t22 = caixa(f.Text22, QStringLiteral("Text22"), Teclas::Decimal, 72);
    ge->addWidget(rotulo(QStringLiteral("γc"), t21), linha, 0);
    ge->addWidget(t21, linha, 1);
    ge->addWidget(rotulo(QStringLiteral("coef. do concreto")), linha++, 2);
    ge->addWidget(rotulo(QStringLiteral("γs"), t22), linha, 0);
    ge->addWidget(t22, linha, 1);
    ge->addWidget(rotulo(QStringLiteral("coef. do aço")), linha++, 2);
    auto* c1 = lista(f.Combo1, QStringLiteral("Combo1"));
    ge->addWidget(rotulo(QStringLiteral("Aço"), c1), linha, 0);
    ge->addWidget(c1, linha, 1, 1, 2);
    ge->setColumnStretch(2, 1);
    v->addWidget(esf);
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
    auto* o1 = opcao(f.Option1, QStringLiteral("Option1"));
    auto* o2 = opcao(f.Option2, QStringLiteral("Option2"));
    grupos_.push_back({o1, o2});
    gc->addWidget(o1);
    gc->addWidget(o2);
    auto* c2 = lista(f.Combo2, QStringLiteral("Combo2"));
    c2->setFixedWidth(64);
    auto* classe = rotulo(QStringLiteral("Classe de agressividade ambiental"), c2);
    classe->setWordWrap(true);
    auto* linhaClasse = new QHBoxLayout;
    linhaClasse->addWidget(classe, 1);
    linhaClasse->addWidget(c2);
    gc->addLayout(linhaClasse);
    gc->addWidget(marca(f.Check1, QStringLiteral("Check1"), QStringLiteral("Corrigir o cobrimento sem perguntar")));
    v->addWidget(cob);

    // "Bitola (mm)": the eight catalogue bars, the chosen one highlighted.
    auto* bit = quadro("Bitola (mm)", "Frame5");
    auto* gb = new QGridLayout(bit);
    gb->setHorizontalSpacing(4);
    for (int i = 0; i < 8; ++i) {
        auto* e = caixa(f.Text7[static_cast<std::size_t>(i)], QStringLiteral("Text7(%1)").arg(i), Teclas::Bitola, 48);
        e->setAlignment(Qt::AlignCenter);
        gb->addWidget(e, i / 4, i % 4);
    }
    gb->addWidget(marca(f.Check2, QStringLiteral("Check2"), qs(f.Check2.Caption)), 2, 0, 1, 4);
    v->addWidget(bit);

    auto* est = quadro("Estribos", "Frame6");
    auto* ge = new QGridLayout(est);
    auto* o3 = opcao(f.Option3, QStringLiteral("Option3"));
    auto* o5 = opcao(f.Option5, QStringLiteral("Option5"));
    auto* o6 = opcao(f.Option6, QStringLiteral("Option6"));
    grupos_.push_back({o3, o5, o6});
    ge->addWidget(o3, 0, 0);
    ge->addWidget(lista(f.Combo3, QStringLiteral("Combo3")), 0, 1);
    ge->addWidget(o5, 1, 0, 1, 2);
    ge->addWidget(o6, 2, 0, 1, 2);
    ge->addWidget(marca(f.Check5, QStringLiteral("Check5"), qs(f.Check5.Caption)), 3, 0, 1, 2);
    ge->setColumnStretch(1, 1);
    v->addWidget(est);

    auto* gan = quadro("Ganchos", "Frame7");
    auto* gg = new QVBoxLayout(gan);
    auto* o90 = opcao(f.Option7[1], QStringLiteral("Option7(1)"));
    auto* o45 = opcao(f.Option7[0], QStringLiteral("Option7(0)"));
    grupos_.push_back({o90, o45});
    gg->addWidget(o90);
    gg->addWidget(o45);
    v->addWidget(gan);
    v->addStretch();
    coluna->setFixedWidth(270);
    return coluna;
}

QWidget* MainWindow::montaDesenho()
{
    auto& f = program_->Form1;
    auto* q = quadro("Seção transversal", "Frame8");
    auto* v = new QVBoxLayout(q);
    desenho_ = new SectionCanvas;
    desenho_->setObjectName(QStringLiteral("Picture1"));
    desenho_->setToolTip(QStringLiteral("Roda do mouse: zoom. Arrastar: mover. Duplo clique ou Ajustar: desenho inteiro."));
    desenho_->setMinimumWidth(260);
    v->addWidget(desenho_, 1);
    auto* linha = new QHBoxLayout;
    auto* t6 = caixa(f.Text6, QStringLiteral("Text6"), Teclas::Decimal, 48);
    t6->setToolTip(QStringLiteral("Escala do desenho exportado em SVG e PNG, em pixels por centímetro da seção"));
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
        ga->addWidget(resultado(*totais[i], QStringLiteral("Text%1").arg(9 + i), 72), i + 1, 1);
        ga->addWidget(resultado(*porBarra[i], QStringLiteral("Text%1").arg(12 + i), 72), i + 1, 2);
    }
    ga->addWidget(rotulo(QStringLiteral("Excesso")), 4, 0);
    ga->addWidget(resultado(f.Text15, QStringLiteral("Text15"), 72), 4, 1);
    v->addWidget(area);

    auto* peso = quadro("Aço (Kg)", "Frame10");
    auto* gp = new QHBoxLayout(peso);
    gp->addWidget(rotulo(QStringLiteral("Longitudinal")));
    gp->addWidget(resultado(f.Text19, QStringLiteral("Text19"), 72));
    gp->addStretch();
    v->addWidget(peso);

    auto* cob = quadro("Cobrimento (cm)", "Frame11");
    auto* gc = new QHBoxLayout(cob);
    gc->addWidget(rotulo(QStringLiteral("Nominal")));
    gc->addWidget(resultado(f.Text25, QStringLiteral("Text25"), 60));
    gc->addSpacing(8);
    gc->addWidget(rotulo(QStringLiteral("Efetivo")));
    gc->addWidget(resultado(f.Text26, QStringLiteral("Text26"), 60));
    gc->addStretch();
    v->addWidget(cob);

    auto* est = quadro("Estribo", "Frame12");
    auto* gs = new QHBoxLayout(est);
    auto* t27 = resultado(f.Text27, QStringLiteral("Text27"), 0);
    t27->setAlignment(Qt::AlignLeft);
    gs->addWidget(t27);
    v->addWidget(est);

    auto* zon = quadro("Zonas de Solicitação", "Frame13");
    auto* gz = new QGridLayout(zon);
    gz->setHorizontalSpacing(6);
    gz->addWidget(rotulo(QStringLiteral("Zona")), 0, 0);
    auto* t8 = resultado(f.Text8, QStringLiteral("Text8"), 60);
    t8->setAlignment(Qt::AlignCenter);
    gz->addWidget(t8, 0, 1);
    gz->addWidget(rotulo(QStringLiteral("βx = x / h")), 1, 0);
    gz->addWidget(resultado(f.Text28, QStringLiteral("Text28"), 60), 1, 1);
    gz->addWidget(rotulo(QStringLiteral("Altura da L.N.")), 2, 0);
    gz->addWidget(resultado(f.Text29, QStringLiteral("Text29"), 60), 2, 1);
    gz->addWidget(rotulo(QStringLiteral("cm")), 2, 2);
    gz->setColumnStretch(3, 1);
    v->addWidget(zon);

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
    filtroNenhum_->instala(utilizacao_);
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
    avisoVerificacao_->setStyleSheet(QStringLiteral("color: rgb(205, 30, 30); font-weight: bold;"));
    avisoVerificacao_->setFixedHeight(2 * avisoVerificacao_->fontMetrics().lineSpacing() + 2);
    gv->addWidget(avisoVerificacao_, 1, 0, 1, 3);
    gv->setColumnStretch(2, 1);
    v->addWidget(ver);

    auto* err = quadro("Erros", "Frame14");
    auto* gr = new QHBoxLayout(err);
    auto* t30 = resultado(f.Text30, QStringLiteral("Text30"), 0);
    t30->setAlignment(Qt::AlignCenter);
    QFont negrito = t30->font();
    negrito.setBold(true);
    t30->setFont(negrito);
    gr->addWidget(t30);
    v->addWidget(err);
    v->addStretch();
    // The column of results is the tallest: its frames hold their boxes close.
    for (auto* q : coluna->findChildren<QGroupBox*>())
        if (q->layout())
            q->layout()->setContentsMargins(8, 4, 8, 4);
    coluna->setFixedWidth(270);
    return coluna;
}

QWidget* MainWindow::montaBotoes()
{
    auto& f = program_->Form1;
    auto* barra = new QWidget;
    auto* h = new QHBoxLayout(barra);
    h->setContentsMargins(0, 4, 0, 0);
    auto* calcula = botao(f.Command1, QStringLiteral("Command1"), [this] {
        executa([this] { program_->Command1_Click(); });
    });
    QFont negrito = calcula->font();
    negrito.setBold(true);
    calcula->setFont(negrito);
    calcula->setMinimumWidth(110);
    h->addWidget(calcula);
    h->addWidget(botao(f.Command8, QStringLiteral("Command8"), [this] {
        executa([this] { program_->Command8_Click(); });
    }));
    auto* anterior = botao(f.Command10, QStringLiteral("Command10"), [this] {
        executa([this] { program_->Command10_Click(); });
    });
    auto* seguinte = botao(f.Command9, QStringLiteral("Command9"), [this] {
        executa([this] { program_->Command9_Click(); });
    });
    anterior->setFixedWidth(32);
    seguinte->setFixedWidth(32);
    anterior->setToolTip(QStringLiteral("Solução anterior"));
    seguinte->setToolTip(QStringLiteral("Próxima solução"));
    h->addWidget(anterior);
    h->addWidget(seguinte);
    h->addWidget(botao(f.Command11, QStringLiteral("Command11"), [this] {
        executa([this] { program_->Command11_Click(); });
        abreSolucoes();
    }));
    h->addStretch();
    h->addWidget(botao(f.Command7, QStringLiteral("Command7"), [this] { arquivo(&Program::Command7_Click); }));
    h->addSpacing(12);
    auto* sai = botao(f.Command6, QStringLiteral("Command6"), [this] { close(); });
    sai->setMinimumWidth(80);
    h->addWidget(sai);
    return barra;
}

// ---- model <-> widgets ----

void MainWindow::copiaParaModelo()
{
    for (auto& [m, e] : caixas_)
        if (!e->isReadOnly())
            m->Text = e->text().toStdString();
    // A list showing nothing (a text from a file that is not in the list) keeps the
    // model's text instead of blanking it.
    for (auto& [m, c] : listas_)
        if (c->currentIndex() >= 0)
            m->Text = c->currentText().toStdString();
    for (auto& [m, c] : marcas_)
        m->Value = c->checkState() == Qt::Checked ? 1 : c->checkState() == Qt::PartiallyChecked ? 2 : 0;
    for (auto& [m, r] : opcoes_)
        m->Value = r->isChecked();
}

void MainWindow::atualiza()
{
    const auto& f = program_->Form1;
    setWindowTitle(qs(f.Caption));
    for (auto& [m, e] : caixas_) {
        const QString t = qs(m->Text);
        if (e->text() != t) {
            e->setText(t);
            e->setCursorPosition(0);
        }
        e->setEnabled(m->Enabled);
        e->setVisible(m->Visible);
        pintaCaixa(e, *m);
    }
    for (auto& [m, c] : listas_) {
        c->setCurrentIndex(c->findText(qs(m->Text), Qt::MatchExactly | Qt::MatchCaseSensitive));
        c->setEnabled(m->Enabled);
    }
    for (auto& [m, c] : marcas_) {
        if (m->Value == 2) {
            c->setTristate(true);
            c->setCheckState(Qt::PartiallyChecked);
        } else {
            c->setTristate(false);
            c->setCheckState(m->Value == 1 ? Qt::Checked : Qt::Unchecked);
        }
        c->setEnabled(m->Enabled);
    }
    // A group may hold no selected button (a file may say so): the buttons are let
    // out of their group while they are set.
    for (auto& g : grupos_)
        for (auto* r : g)
            r->setAutoExclusive(false);
    for (auto& [m, r] : opcoes_) {
        r->setText(qs(m->Caption));
        r->setChecked(m->Value);
        r->setEnabled(m->Enabled);
        r->setVisible(m->Visible);
    }
    for (auto& g : grupos_)
        for (auto* r : g)
            r->setAutoExclusive(true);
    for (auto& [m, b] : botoes_) {
        b->setText(qs(m->Caption));
        b->setEnabled(m->Enabled);
        b->setVisible(m->Visible);
    }
    // The canvas keeps its zoom while the drawing it shows stays the same.
    if (program_->VersaoDoDesenho != versaoDoDesenho_) {
        versaoDoDesenho_ = program_->VersaoDoDesenho;
        if (program_->Desenho)
            desenho_->setSection(*program_->Desenho);
        else
            desenho_->clearSection();
    }
    desenho_->setPlaceholderText(f.Image1Visible ? QStringLiteral("Pilarix Normal") : QString());
    mostraVerificacao();
}

void MainWindow::executa(const std::function<void()>& handler)
{
    // A click that arrives while a calculation waits on one of its dialogs belongs
    // to no calculation.
    if (ocupado_)
        return;
    ocupado_ = true;
    copiaParaModelo();
    try {
        handler();
    } catch (const std::exception& e) {
        program_->falhaDeCalculo(e.what());
    }
    ocupado_ = false;
    atualiza();
}

void MainWindow::inicia()
{
    executa([this] { program_->Form_Load(); });
}

void MainWindow::arquivo(void (Program::*handler)())
{
    executa([this, handler] {
        program_->ErroArquivo.clear();
        (program_.get()->*handler)();
    });
}

void MainWindow::marcouDLinhaAutomatico()
{
    // With d' found from the cover, the d' box and its estimate are out of use.
    copiaParaModelo();
    auto& f = program_->Form1;
    const bool automatico = f.Check3.ticked();
    f.Text3.Enabled = !automatico;
    f.Command17.Enabled = !automatico;
    atualiza();
}

// ---- the other forms ----

void MainWindow::abreOutrosValores()
{
    if (!outros_)
        outros_ = new OtherValuesDialog(
            program_->Form8, [this] { executa([this] { program_->Form8Command1_Click(); }); }, this);
    outros_->carrega();
    outros_->exec();
}

void MainWindow::abreEstimativaDLinha()
{
    if (!estimativa_)
        estimativa_ = new DEstimateDialog(
            program_->Form5, [this] { executa([this] { program_->Form5Calcula(); }); },
            [this] { executa([this] { program_->Form5Aceita(); }); }, this);
    estimativa_->carrega();
    estimativa_->exec();
}

void MainWindow::abreSolucoes()
{
    if (!solucoes_)
        solucoes_ = new SolutionsDialog(
            program_->Form11, [this] { executa([this] { program_->Form11Escolhe(); }); }, this);
    solucoes_->atualiza();
    solucoes_->exec();
}

void MainWindow::exportaDesenho()
{
    auto& p = *program_;
    if (!p.Desenho) {
        dialogos_->notice("Calcule a seção antes de exportar o desenho: não há seção detalhada para desenhar.");
        return;
    }
    // The project's name, with the drawing's extension in place of its own.
    std::string proposto = p.NomeArquivo.empty() || p.NomeArquivo == "Padrão.txt" ? "pilar" : p.NomeArquivo;
    if (const auto ponto = proposto.find_last_of('.'); ponto != std::string::npos && proposto.find('/', ponto) == std::string::npos)
        proposto.erase(ponto);
    const std::string nome = dialogos_->askDrawingFileName(proposto + ".dxf");
    if (nome.empty())
        return;
    std::string erro;
    if (!render::exportDrawing(*p.Desenho, nome, p.Escala > 0 ? p.Escala : 5, erro))
        dialogos_->notice(erro);
}

namespace {
// The check of the detailed section in the units the user chose for Nd and Md.
DiagramData dadosDoDiagrama(const Program& p)
{
    DiagramData d;
    const auto& f = p.Form1;
    d.forceUnit = qs(f.Combo4.Text);
    d.momentUnit = qs(f.Combo5.Text);
    const auto& v = *p.Verificacao;
    const double fn = fatorDaUnidade(f.Combo4.Text).value_or(1);
    const double fm = fatorDaUnidade(f.Combo5.Text).value_or(1);
    for (const auto& [n, m] : v.curve)
        d.curve.emplace_back(m / fm, n / fn);
    d.points.push_back({v.nSd / fn, v.mSd / fm, QStringLiteral("Sd"), v.utilisation, true});
    if (v.mRd)
        d.mRd = *v.mRd / fm;
    d.nRdMax = v.nRdMax / fn;
    d.nRdMin = v.nRdMin / fn;
    return d;
}
} // namespace

void MainWindow::mostraVerificacao()
{
    const auto& v = program_->Verificacao;
    QPalette pal = utilizacao_->palette();
    if (!v) {
        utilizacao_->clear();
        avisoVerificacao_->clear();
    } else {
        utilizacao_->setText(utilisationText(v->utilisation));
        pal.setColor(QPalette::Text, utilisationColour(v->utilisation));
        const bool naoResiste = !(v->utilisation <= 1);
        avisoVerificacao_->setText(naoResiste ? QStringLiteral("A seção detalhada NÃO resiste aos esforços "
                                                               "(utilização %1).")
                                                    .arg(utilisationText(v->utilisation))
                                              : QString());
    }
    utilizacao_->setPalette(pal);
    if (diagrama_ && diagrama_->isVisible()) {
        if (v)
            diagrama_->mostra(dadosDoDiagrama(*program_));
        else
            diagrama_->limpa();
    }
}

void MainWindow::abreDiagrama()
{
    if (!diagrama_)
        diagrama_ = new InteractionDialog(this);
    if (program_->Verificacao)
        diagrama_->mostra(dadosDoDiagrama(*program_));
    else
        diagrama_->limpa();
    diagrama_->show();
    diagrama_->raise();
    diagrama_->activateWindow();
}

void MainWindow::abreSobre()
{
    AboutDialog sobre(this);
    sobre.exec();
}

} // namespace pilarix::ui
