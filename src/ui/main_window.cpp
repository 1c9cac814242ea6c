#include "ui/main_window.h"
#include "ui/window_parts.h"

#include "engine/catalogue.h"
#include "ui/box_check.h"
#include "ui/edit_history.h"
#include "ui/file_actions.h"
#include "ui/form_binding.h"
#include "ui/input_columns.h"
#include "ui/input_edit.h"
#include "ui/input_tips.h"
#include "ui/project_data_dialog.h"
#include "ui/qt_dialogs.h"
#include "ui/recent_projects.h"
#include "ui/section_canvas.h"
#include "ui/wheel_guard.h"
#include "ui/window_dialogs.h"
#include "window/window_input.h"

#include <QAbstractButton>
#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include <algorithm>

namespace pilarix::ui {

using namespace window_parts;

MainWindow::MainWindow(DialogPort* dialogs, QWidget* parent) : QMainWindow(parent)
{
    if (!dialogs) {
        dialogosProprios_ = std::make_unique<QtDialogs>(this);
        dialogs = dialogosProprios_.get();
    }
    dialogos_ = dialogs;
    program_ = std::make_unique<Program>(*dialogos_);
    formularios_ = std::make_unique<WindowDialogs>(*this);
    arquivos_ = std::make_unique<FileActions>(*this);

    formulario_ = new FormBinding(program_->Form1,
                                  {[this](bool digitacao) { entradaEditada(digitacao); }, [this] { calcula(); },
                                   [this](QWidget* w, const QString& motivo) { recusouTecla(w, motivo); },
                                   [this](const QString& motivo) { mostraNaBarra(motivo); }},
                                  this);

    historia_ = new EditHistory(*program_, *formulario_, this, [this] { desfeito(); });

    setObjectName(QStringLiteral("Form1"));
    montaMenus();

    // The frames of input scroll when the screen is short, and stand in one column
    // when it is narrow; the drawing and the results take the room that is left.
    QWidget* colunaEntradas = montaEntradas();
    QWidget* colunaOpcoes = montaOpcoes(); // after the input column: it places the rule set's frame
    colunas_ = std::make_unique<InputColumns>(colunaEntradas, colunaOpcoes);

    auto* centroDesenho = new QSplitter(Qt::Vertical);
    centroDesenho->setObjectName(QStringLiteral("divisaoDesenho"));
    centroDesenho->setChildrenCollapsible(false);
    centroDesenho->addWidget(montaDesenho());
    centroDesenho->addWidget(montaMensagens());
    centroDesenho->setStretchFactor(0, 3);
    centroDesenho->setStretchFactor(1, 1);
    centroDesenho->setSizes({3000, 1000});

    rolagemResultados_ = new QScrollArea;
    rolagemResultados_->setObjectName(QStringLiteral("rolagemResultados"));
    rolagemResultados_->setWidget(montaResultados());
    rolagemResultados_->setWidgetResizable(true);
    rolagemResultados_->setFrameShape(QFrame::NoFrame);
    rolagemResultados_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolagemResultados_->setMinimumWidth(rolagemResultados_->widget()->minimumSizeHint().width()
                                        + rolagemResultados_->verticalScrollBar()->sizeHint().width());
    rolagemResultados_->setMaximumWidth(380);

    auto* centro = new QWidget;
    auto* colunas = new QHBoxLayout;
    colunas->setSpacing(8);
    colunas->addWidget(colunas_->rolagem());
    colunas->addWidget(centroDesenho, 3);
    auto* direita = new QVBoxLayout;
    direita->setSpacing(4);
    direita->addWidget(rolagemResultados_, 1);
    direita->addWidget(veredito_);
    veredito_->setMaximumWidth(380);
    colunas->addLayout(direita, 1);
    auto* raiz = new QVBoxLayout(centro);
    raiz->setContentsMargins(8, 6, 8, 4);
    raiz->addLayout(colunas, 1);
    raiz->addWidget(montaBotoes());
    setCentralWidget(centro);

    avisoDesatualizado_ = new QLabel(QStringLiteral("Resultados desatualizados: a entrada mudou. Calcule de novo."));
    avisoDesatualizado_->setObjectName(QStringLiteral("lblDesatualizado"));
    avisoDesatualizado_->setStyleSheet(QStringLiteral("color: rgb(170, 60, 0); font-weight: bold;"));
    avisoDesatualizado_->setVisible(false);
    statusBar()->addPermanentWidget(avisoDesatualizado_);
    statusBar()->setObjectName(QStringLiteral("barraDeEstado"));

    montaOrdemDeTab();
    montaDicas();

    // The wheel over a list scrolls the panel unless the list has the focus.
    (new WheelGuard(this))->protege(centro);

    auto* prioridade = new PrioridadeDosMenus(menuBar(), this);
    for (auto* b : centro->findChildren<QAbstractButton*>())
        b->installEventFilter(prioridade);

    atualiza();
    copiaParaModelo();
    mostraMensagens();
    historia_->lembraEntrada();
    fotoSalva_ = fotoDaEntrada(*program_, Alcance::Projeto);
    dispoeColunas();
    atualizaTitulo();

    // The first size fits the screen; the frames scroll where it is short.
    if (const QScreen* tela = screen()) {
        const QRect livre = tela->availableGeometry();
        const QSize desejado = sizeHint().expandedTo(QSize(1200, 700));
        resize(std::min(desejado.width(), livre.width() - 16), std::min(desejado.height(), livre.height() - 40));
    }
    // Where the engineer left it last time, if that still fits a screen.
    QSettings s(QString::fromUtf8(kOrganizacao), QString::fromUtf8(kAplicacao));
    restoreGeometry(s.value(QString::fromUtf8(kChaveGeometria)).toByteArray());
}

MainWindow::~MainWindow() = default;

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
    auto* novo = acao(QStringLiteral("&Novo"), QStringLiteral("mnuItemNovo"), [this] { this->novo(); });
    novo->setShortcut(QKeySequence::New);
    novo->setStatusTip(QStringLiteral("Começa um projeto novo com os valores padrão"));
    arquivo->addAction(novo);
    auto* abrir = acao(QStringLiteral("&Abrir arquivo..."), QStringLiteral("mnuItemload"), [this] { abre(); });
    abrir->setShortcut(QKeySequence::Open);
    arquivo->addAction(abrir);
    auto* menuRecentes = arquivo->addMenu(QStringLiteral("Arquivos recen&tes"));
    menuRecentes->setObjectName(QStringLiteral("mnuRecentes"));
    arquivo->addAction(acao(QStringLiteral("Carre&gar valores padrões"), QStringLiteral("mnuItemCarregpadr"),
                            [this] { valoresPadrao(); }));
    auto* salvar = acao(QStringLiteral("Sa&lvar"), QStringLiteral("mnuItemSalvar"), [this] { salva(); });
    salvar->setShortcut(QKeySequence::Save);
    arquivo->addAction(salvar);
    auto* salvarComo =
        acao(QStringLiteral("&Salvar como..."), QStringLiteral("mnuItemSave"), [this] { salvaComo(); });
    salvarComo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    arquivo->addAction(salvarComo);
    arquivo->addAction(acao(QStringLiteral("Salvar valores como &padrão"), QStringLiteral("mnuItemSaveDefault"),
                            [this] { this->arquivo(&Program::mnuItemSaveDefault_Click); }));
    arquivo->addAction(
        acao(QStringLiteral("&Exportar desenho..."), QStringLiteral("mnuItemExportar"), [this] { exportaDesenho(); }));
    arquivo->addAction(acao(QStringLiteral("Dados da o&bra..."), QStringLiteral("mnuItemDadosDaObra"), [this] {
        if (editProjectData(program_->Obra, this)) { // an edit of the project, undone as any other
            historia_->registra(QStringLiteral("dados da obra"), false);
            atualizaTitulo();
        }
    }));
    auto* imprimir = acao(QStringLiteral("&Memorial de cálculo (PDF)..."), QStringLiteral("mnuItemMemorial"),
                          [this] { imprimeMemorial(); });
    imprimir->setShortcut(QKeySequence::Print);
    arquivo->addAction(imprimir);
    arquivo->addSeparator();
    arquivo->addAction(acao(QStringLiteral("Sai&r"), QStringLiteral("mnuItemSair"), [this] { close(); }));
    recentes_ = new RecentProjects(menuRecentes, [this](const QString& caminho) {
        if (podeDescartar(QStringLiteral("abrir outro")))
            abreArquivo(caminho);
    }, this);

    auto* editar = menuBar()->addMenu(QStringLiteral("&Editar"));
    editar->setObjectName(QStringLiteral("mnuEditar"));
    auto* desfazer = historia_->pilha()->createUndoAction(this, QStringLiteral("&Desfazer"));
    desfazer->setObjectName(QStringLiteral("mnuItemDesfazer"));
    desfazer->setShortcut(QKeySequence::Undo);
    auto* refazer = historia_->pilha()->createRedoAction(this, QStringLiteral("&Refazer"));
    refazer->setObjectName(QStringLiteral("mnuItemRefazer"));
    refazer->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)});
    editar->addAction(desfazer);
    editar->addAction(refazer);

    auto* valores = menuBar()->addMenu(QStringLiteral("&Valores"));
    valores->setObjectName(QStringLiteral("mnuValores"));
    valores->addAction(
        acao(QStringLiteral("Outros"), QStringLiteral("mnuItemPrecisao"), [this] { abreOutrosValores(); }));
    valores->addAction(acao(QStringLiteral("&Combinações de esforços..."), QStringLiteral("mnuItemCasos"),
                            [this] { abreCasos(); }));
    valores->addAction(acao(QStringLiteral("&Diagrama de interação"), QStringLiteral("mnuItemDiagrama"),
                            [this] { abreDiagrama(); }));
    valores->addAction(acao(QStringLiteral("Diagrama &Mx–My (ABNT NBR 6118:2014)"), QStringLiteral("mnuItemDiagramaMxMy"),
                            [this] { abreDiagramaMxMy(); }));

    auto* ajuda = menuBar()->addMenu(QStringLiteral("Aj&uda"));
    ajuda->setObjectName(QStringLiteral("mnuAjuda"));
    auto* itemAjuda =
        acao(QStringLiteral("&Ajuda do Pilarix"), QStringLiteral("mnuItemAjuda"), [this] { abreAjuda(); });
    itemAjuda->setShortcut(QKeySequence::HelpContents);
    ajuda->addAction(itemAjuda);
    ajuda->addSeparator();
    ajuda->addAction(acao(QStringLiteral("S&obre o Pilarix"), QStringLiteral("mnuItemSobre"), [this] { abreSobre(); }));
}

void MainWindow::montaOrdemDeTab()
{
    // Tab follows the reading order of the frames, from box to box; the "-" / "+"
    // buttons and the bar list are for the mouse. An input by its control, a button by
    // its own name.
    auto& f = program_->Form1;
    const auto c = [&f](Controle::Alvo controle) { return nomeDoWidget(f, controle); };
    const QString ordem[] = {
        c(&f.Norma),
        // "Dimensões" and "Arranjo"
        c(&f.Text1), c(&f.Text31), c(&f.Text2), c(&f.Text32), c(&f.Text23),
        c(&f.Text4), c(&f.Text5), c(&f.Text3), QStringLiteral("Command17"), c(&f.Check3),
        // "Esforços e Resistências", then the frame of 2014
        c(&f.Text16), c(&f.Combo4), c(&f.Text17), c(&f.Combo5), c(&f.Text18), c(&f.Combo6),
        c(&f.Text20), c(&f.Combo7), c(&f.Text21), c(&f.Text22), c(&f.Combo1),
        c(&f.SegundaOrdem), c(&f.LeH), c(&f.LeB), c(&f.MyTopo), c(&f.MdBase), c(&f.MyBase),
        // "Cobrimento", "Bitola", "Estribos" and "Ganchos"
        c(&f.Option1), c(&f.Option2), c(&f.Combo2), c(&f.Check1), c(&f.Check2),
        c(&f.Option3), c(&f.Combo3), c(&f.Option5), c(&f.Option6),
        c(&f.EstriboDiametro), c(&f.EstriboEspacamento), c(&f.Check5),
        c(&f.Option7[1]), c(&f.Option7[0]),
        // The drawing and the row of buttons
        c(&f.Text6), QStringLiteral("AjustarDesenho"),
        QStringLiteral("Command1"), QStringLiteral("Command8"), QStringLiteral("Command10"), QStringLiteral("Command9"),
        QStringLiteral("Command11"), QStringLiteral("Command7"), QStringLiteral("Command6"),
    };
    QWidget* anterior = nullptr;
    for (const QString& nome : ordem) {
        // An empty name would find any widget.
        auto* w = nome.isEmpty() ? nullptr : centralWidget()->findChild<QWidget*>(nome);
        if (w && anterior)
            setTabOrder(anterior, w);
        if (w)
            anterior = w;
    }
}

void MainWindow::montaDicas() { aplicaDicas(centralWidget(), program_->Form1, bitolas_); }

// ---- model <-> widgets ----

void MainWindow::copiaParaModelo() { formulario_->copiaParaModelo(); }

void MainWindow::leRegistro() { registro_ = program_->registroDoCalculo(); }

void MainWindow::atualiza()
{
    leRegistro();
    const bool antes = pintando_;
    pintando_ = true;
    const auto& f = program_->Form1;
    const bool fixa = !f.Check2.ticked() && program_->BitolaFixa >= engine::kFirstLongitudinalBar
                      && program_->BitolaFixa <= engine::kBarCount;
    formulario_->pintaCaixas(desatualizado_, registro_);
    // The fixed bar is framed in orange and bold, in the colours of the result.
    for (std::size_t i = 0; i < bitolas_.size(); ++i) {
        const bool escolhida = fixa && program_->BitolaFixa == engine::kFirstLongitudinalBar + static_cast<int>(i);
        QFont fonte = bitolas_[i]->font();
        fonte.setBold(escolhida);
        bitolas_[i]->setFont(fonte);
        const QPalette& pal = bitolas_[i]->palette();
        const QString estilo =
            escolhida ? QStringLiteral("QLineEdit { border: 2px solid rgb(210, 110, 0); background: %1; color: %2; }")
                            .arg(pal.color(QPalette::Base).name(), pal.color(QPalette::Text).name())
                      : QString();
        if (bitolas_[i]->styleSheet() != estilo)
            bitolas_[i]->setStyleSheet(estilo);
    }
    formulario_->pintaOutros();
    if (estriboDiametro_) {
        estriboDiametro_->setEnabled(f.Option6.Value);
        estriboEspacamento_->setEnabled(f.Option6.Value);
    }
    // The canvas keeps its zoom while the drawing it shows stays the same.
    if (program_->VersaoDoDesenho != versaoDoDesenho_) {
        versaoDoDesenho_ = program_->VersaoDoDesenho;
        if (registro_.drawing)
            desenho_->setSection(*registro_.drawing);
        else
            desenho_->clearSection();
    }
    desenho_->setStale(desatualizado_);
    posicaoNaLista_->setVisible(f.Command9.Visible && program_->NSolucoes > 0);
    posicaoNaLista_->setText(QStringLiteral("%1 de %2").arg(program_->SolucaoAtual).arg(program_->Form11.RowsShown));
    desenho_->setPlaceholderText(f.Image1Visible ? QStringLiteral("Pilarix Normal") : QString());
    mostraVerificacao();
    avisoDesatualizado_->setVisible(desatualizado_);
    atualizaTitulo();
    pintando_ = antes;
}

void MainWindow::executa(const std::function<void()>& handler, Edicao edicao, const QString& descricao)
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

    auto& p = *program_;
    if (p.CalculosFeitos != calculosVistos_) {
        // What is on show now was calculated from the input as it stands.
        calculosVistos_ = p.CalculosFeitos;
        fotoResultado_ = fotoDaEntrada(p, Alcance::Resultado);
        desatualizado_ = false;
        // A new list belongs to the input the search ran on; stepping through it
        // keeps it, as the list only changes what it puts in.
        if (buscando_ && p.NSolucoes > 0)
            fotoBusca_ = fotoDaEntrada(p, Alcance::Busca);
        // What the status bar said belongs to the input before this calculation.
        statusBar()->clearMessage();
        if (!p.CorrecoesDaLeitura.empty()) {
            QStringList correcoes;
            for (const auto& c : p.CorrecoesDaLeitura)
                correcoes << qs(c);
            mostraNaBarra(correcoes.join(QStringLiteral("; ")) + QLatin1Char('.'));
        }
        mostraMensagens();
    }
    atualiza();
    if (edicao == Edicao::Usuario)
        historia_->registra(descricao, false);
    else
        historia_->lembraEntrada();
    reavalia();
}

void MainWindow::inicia()
{
    executa([this] {
        program_->Form_Load();
        dLinhaSegueAMarca(program_->Form1);
    });
    // The defaults just loaded are where the user starts: nothing to save, nothing to undo.
    fotoSalva_ = fotoDaEntrada(*program_, Alcance::Projeto);
    historia_->pilha()->clear();
    mostraMensagens();
    atualizaTitulo();
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
    copiaParaModelo();
    dLinhaSegueAMarca(program_->Form1);
    atualiza();
}

// ---- checking the input, calculating ----

bool MainWindow::entradaConfere()
{
    copiaParaModelo();
    // A box whose text the program cannot read as the engineer typed it comes first.
    std::optional<std::string> problema;
    if (const auto recusa = formulario_->conferidas().primeiraRecusada()) {
        problema = recusa->mensagem.toStdString();
        recusa->caixa->setFocus();
    } else {
        problema = conferenciaDaEntrada(*program_);
    }
    if (!problema)
        return true;
    auto& form = program_->Form2;
    form.Label1.Caption = *problema;
    form.Label2.Caption.clear();
    dialogos_->showError(form);
    mostraNaBarra(qs(*problema)); // the message already says that nothing was calculated
    return false;
}

bool MainWindow::calculaConferido(const std::function<void()>& handler, Edicao edicao)
{
    if (ocupado_ || !entradaConfere())
        return false;
    executa(handler, edicao, edicao == Edicao::Usuario ? QStringLiteral("passo") : QString());
    return true;
}

void MainWindow::calcula()
{
    calculaConferido([this] {
        // The stirrup chosen in "Escolha dos estribos" for an earlier column is not
        // carried into this one: the same project gives the same stirrup whatever
        // was calculated before it in this window.
        program_->calculadora.memory.stirrup = {};
        program_->Command1_Click();
    });
    dizEstriboMantido();
}

void MainWindow::dizEstriboMantido()
{
    // A repeated pass (after the cover was corrected) asks nothing: it keeps the
    // stirrup of the first pass, at the spacing it computes itself. The window says
    // so, as the method's own memory decided it.
    const auto& p = *program_;
    if (!p.Resultado || p.Resultado->passes < 2 || !p.Form1.Option6.Value)
        return;
    for (const auto& r : p.MensagensDoCalculo)
        if (r.kind == DialogRecord::Kind::Stirrup) {
            mostraNaBarra(QStringLiteral("Estribo %1: escolhido na primeira passada e mantido, sem nova pergunta, "
                                         "na passada repetida após a correção do cobrimento.")
                              .arg(qs(p.Resultado->stirrup.text)));
            return;
        }
}

void MainWindow::valoresPadrao()
{
    // The defaults replace the input as one edit, undone by Ctrl+Z; what was
    // calculated from the input they replace goes with it.
    executa(
        [this] {
            auto& p = *program_;
            p.ErroArquivo.clear();
            p.Command7_Click();
            dLinhaSegueAMarca(p.Form1);
            if (p.ErroArquivo.empty())
                p.LimpaResultados();
        },
        Edicao::Usuario, QStringLiteral("valores padrão"));
    mostraMensagens();
}

void MainWindow::escolheBitola(int i)
{
    auto& f = program_->Form1;
    copiaParaModelo();
    const QString diametro = qs(f.Text7[static_cast<std::size_t>(i)].Text);
    if (f.Check2.ticked()) {
        mostraNaBarra(QStringLiteral("Com \"Automático\" marcado o cálculo escolhe a bitola: desmarque-o para "
                                     "fixar %1 mm.")
                          .arg(diametro));
        return;
    }
    executa([this, i] { program_->BitolaFixa = engine::kFirstLongitudinalBar + i; }, Edicao::Usuario,
            QStringLiteral("bitola"));
    mostraNaBarra(QStringLiteral("Bitola fixada em %1 mm: o próximo cálculo usa esta bitola.").arg(diametro));
}

void MainWindow::recusouTecla(QWidget* caixa, const QString& motivo)
{
    dialogos_->beep();
    const QString* nome = formulario_->rotuloDe(caixa);
    mostraNaBarra((nome ? *nome : QStringLiteral("Caixa")) + QStringLiteral(": ") + motivo);
}

void MainWindow::mostraNaBarra(const QString& texto) { statusBar()->showMessage(texto, 8000); }

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (ocupado_ || !podeDescartar(QStringLiteral("fechar"))) {
        event->ignore();
        return;
    }
    QSettings s(QString::fromUtf8(kOrganizacao), QString::fromUtf8(kAplicacao));
    s.setValue(QString::fromUtf8(kChaveGeometria), saveGeometry());
    event->accept();
}

// ---- the layout by width ----

void MainWindow::dispoeColunas() { colunas_->dispoe(width() - rolagemResultados_->minimumWidth()); }

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    dispoeColunas();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton)
        for (std::size_t i = 0; i < bitolas_.size(); ++i)
            if (watched == bitolas_[i] && bitolas_[i]->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) {
                escolheBitola(static_cast<int>(i));
                return true;
            }
    return QMainWindow::eventFilter(watched, event);
}

// ---- the other forms (window_dialogs.h) ----

void MainWindow::abreOutrosValores() { formularios_->abreOutrosValores(); }
void MainWindow::abreEstimativaDLinha() { formularios_->abreEstimativaDLinha(); }
void MainWindow::abreSolucoes() { formularios_->abreSolucoes(); }
void MainWindow::abreSobre() { formularios_->abreSobre(); }
void MainWindow::abreAjuda() { formularios_->abreAjuda(); }
void MainWindow::exportaDesenho() { formularios_->exportaDesenho(); }
void MainWindow::abreDiagrama() { formularios_->abreDiagrama(); }
void MainWindow::abreCasos() { formularios_->abreCasos(); }
void MainWindow::imprimeMemorial() { formularios_->imprimeMemorial(); }

} // namespace pilarix::ui
