// The main window driven as a user drives it: typing, "&Calcula", the questions of
// the calculation answered in the real dialogs, the search and its list, the files
// through the menus, the drawing.

#include "ui_support.h"

#include "cli/controls_by_name.h"
#include "window/policy_dialogs.h"
#include "base/number_text.h"
#include "ui/main_window.h"
#include "ui/section_canvas.h"
#include "ui/solutions_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

using namespace pilarix;
using pilarix::test::botaoComTexto;
using pilarix::test::Janela;
using pilarix::test::PastaTemporaria;
using pilarix::test::Respondedor;

namespace {

QColor fundo(QLineEdit* e) { return e->palette().color(QPalette::Active, QPalette::Base); }

// Answers of a user who accepts the first button of every cover question and
// reads every message.
void respondePadrao(QWidget* d)
{
    if (d->objectName() == QLatin1String("Form4"))
        d->findChild<QAbstractButton*>(QStringLiteral("Command2"))->click();
    else if (auto* b = botaoComTexto(d, QStringLiteral("Continuar")))
        b->click();
    else if (auto* ok = botaoComTexto(d, QStringLiteral("OK")))
        ok->click();
}

} // namespace

// ---- "&Calcula" ----

TEST(UiCalcula, ClickShowsInEveryBoxWhatTheCalculationLeftThere)
{
    Janela j;
    j.w.show();
    j.digita("Text3", "4");
    j.clica("Command1");
    ASSERT_EQ(j.texto("Text30"), "Ok");
    EXPECT_EQ(fundo(j.caixa("Text30")), QColor(Qt::white));

    // The same input through the program alone gives the same boxes: the window
    // neither loses nor alters a value on the way in or out.
    PolicyDialogs d;
    Program sozinho(d);
    sozinho.Form1.Text3.Text = "4";
    sozinho.Command1_Click();
    for (const auto& [nome, box] : textBoxesOf(sozinho.Form1)) {
        EXPECT_EQ(j.texto(nome.c_str()), box->Text) << nome;
        EXPECT_FALSE(box->Text.empty() && nome != "Text31" && nome != "Text32" && nome != "Text15") << nome;
    }
    // The chosen bar is the one box of the list on dark blue.
    int destacadas = 0;
    for (int i = 0; i < 8; ++i) {
        auto* e = j.caixa(QStringLiteral("Text7(%1)").arg(i).toUtf8().constData());
        const bool escolhida = sozinho.Form1.Text7[static_cast<std::size_t>(i)].BackColor == kDarkBlue;
        EXPECT_EQ(fundo(e) == QColor(0, 0, 192), escolhida) << i;
        destacadas += escolhida;
        if (escolhida) {
            EXPECT_GT(e->palette().color(QPalette::Active, QPalette::Text).lightness(), 150) << "readable on blue";
        }
    }
    EXPECT_EQ(destacadas, 1);
}

TEST(UiCalcula, TypedValuesReachTheCalculationAndItsCorrectionsComeBack)
{
    Janela j;
    j.digita("Text3", "4");
    j.digita("Text1", "8");    // below the 12 cm least side
    j.digita("Text4", "9");    // more bars than fit on 12 cm
    j.digita("Text16", "-50"); // a tension, only the axial force takes a sign
    j.digita("Text18", "22,5"); // the Brazilian comma is the decimal point
    j.lista("Combo4")->setCurrentText(QStringLiteral("Tf"));
    j.clica("Command1");
    EXPECT_DOUBLE_EQ(j.p.Fck, 225) << "22,5 MPa, not 22";
    EXPECT_EQ(j.texto("Text1"), "12");
    EXPECT_EQ(j.texto("Text4"), "2");
    EXPECT_DOUBLE_EQ(j.p.Base, 12);
    EXPECT_DOUBLE_EQ(j.p.Nd, -50000);
}

TEST(UiCalcula, AnInputErrorEmptiesTheResultsAndPaintsErrosRed)
{
    Janela j;
    j.digita("Text3", "4");
    j.clica("Command1");
    ASSERT_EQ(j.texto("Text30"), "Ok");
    j.digita("Text18", "0");
    j.clica("Command1");
    ASSERT_FALSE(j.dialogs.records.empty());
    EXPECT_EQ(j.dialogs.records.back().mensagem, "Fck deve ser diferente de zero");
    EXPECT_EQ(j.texto("Text30"), "erro");
    EXPECT_EQ(fundo(j.caixa("Text30")), QColor(255, 0, 0));
    for (const char* nome : {"Text9", "Text10", "Text11", "Text12", "Text13", "Text14", "Text19", "Text25", "Text26",
                             "Text27", "Text28", "Text29"})
        EXPECT_EQ(j.texto(nome), "") << nome;
    EXPECT_EQ(j.texto("Text18"), "0") << "the user's input is kept";
    EXPECT_FALSE(j.w.desenho()->hasSection());
}

TEST(UiCalcula, StepButtonsChangeTheirBoxAndRecalculate)
{
    struct Row {
        const char* botao;
        const char* caixa;
        const char* antes;
        const char* depois;
    };
    const Row rows[] = {
        {"Command2", "Text4", "2", "3"},   {"Command3", "Text4", "3", "2"},   {"Command3", "Text4", "2", "2"},
        {"Command4", "Text5", "3", "4"},   {"Command5", "Text5", "4", "3"},   {"Command16", "Text1", "20", "25"},
        {"Command13", "Text1", "25", "20"}, {"Command15", "Text2", "50", "55"}, {"Command14", "Text2", "55", "50"},
    };
    for (const auto& r : rows) {
        Janela j;
        j.digita("Text3", "4");
        j.digita("Text31", "5");
        j.digita("Text32", "5");
        j.digita(r.caixa, r.antes);
        j.clica(r.botao);
        EXPECT_EQ(j.texto(r.caixa), r.depois) << r.botao;
        EXPECT_FALSE(j.texto("Text30").empty()) << r.botao << " recalculates";
    }
}

// ---- the questions of a calculation, in the real dialogs ----

TEST(UiDialogosReais, CoverQuestionIsAnsweredInTheCoverDialog)
{
    struct Row {
        const char* nome;
        bool porTecla; // the number key alone answers
        const char* botao;
        const char* erros;
    };
    const Row rows[] = {
        {"first button corrects d'", false, "Command2", "Ok"},
        {"ignore marks the run failed", false, "Command1", "erro"},
        {"key 2 ignores", true, "Command1", "erro"},
    };
    for (const auto& r : rows) {
        ui::MainWindow w; // real dialogs
        w.show();
        int perguntas = 0;
        std::string mensagem, clausula, titulo, botao2;
        Respondedor resp([&](QWidget* d) {
                if (d->objectName() != QLatin1String("Form4")) {
                respondePadrao(d);
                return;
            }
            if (++perguntas == 1) {
                titulo = d->windowTitle().toStdString();
                mensagem = d->findChild<QLabel*>(QStringLiteral("Label2"))->text().toStdString();
                clausula = d->findChild<QLabel*>(QStringLiteral("Label3"))->text().toStdString();
                botao2 = d->findChild<QAbstractButton*>(QStringLiteral("Command1"))->text().toStdString();
            }
            if (r.porTecla)
                QTest::keyClick(d, Qt::Key_2);
            else
                d->findChild<QAbstractButton*>(QString::fromUtf8(r.botao))->click();
        });
        // d' left empty: the bars would stand in the cover, so the cover is questioned.
        w.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        EXPECT_GE(perguntas, 1) << r.nome;
        EXPECT_EQ(titulo, "Cobrimento") << r.nome;
        EXPECT_EQ(mensagem.rfind("Cobrimento efetivo = ", 0), 0u) << mensagem;
        EXPECT_EQ(clausula, "Item 7.4.7 ") << r.nome;
        EXPECT_EQ(botao2, "&2 - Ignorar");
        EXPECT_EQ(w.findChild<QLineEdit*>(QStringLiteral("Text30"))->text().toStdString(), r.erros) << r.nome;
        if (std::string(r.erros) == "Ok") {
            EXPECT_GT(Val(w.findChild<QLineEdit*>(QStringLiteral("Text3"))->text().toStdString()), 3.0)
                << "the corrected d' is written back into its box";
        }
    }
}

TEST(UiDialogosReais, StirrupChoiceDialogDecidesTheStirrup)
{
    struct Row {
        int opcao;
        double diametro;
        const char* texto27;
    };
    // Bars of 32 mm ask for an 8 mm stirrup; with the same steel 6.3 and 5 mm serve
    // at their own spacings; the least steel per metre is the 5 mm one. A d' of
    // 6 cm leaves the cover unquestioned, so the choice is the pass's last word.
    const Row rows[] = {
        {0, 0.8, "φ8 c/20"},
        {1, 0.63, "φ6.3 c/20"},
        {2, 0.5, "φ5 c/14"},
        {4, 0.5, "φ5 c/14"},
    };
    for (const auto& r : rows) {
        ui::MainWindow w;
        w.show();
        auto* manual = w.findChild<QRadioButton*>(QStringLiteral("Option6"));
        QTest::mouseClick(manual, Qt::LeftButton, {}, QPoint(5, manual->height() / 2));
        auto* nd = w.findChild<QLineEdit*>(QStringLiteral("Text16"));
        // 20 x 80 under 3500 kN: 32 mm bars, within the 4 % a section may hold.
        nd->setText(QStringLiteral("3500"));
        w.findChild<QLineEdit*>(QStringLiteral("Text2"))->setText(QStringLiteral("80"));
        w.findChild<QLineEdit*>(QStringLiteral("Text3"))->setText(QStringLiteral("6"));
        std::vector<std::string> opcoes;
        std::string label1;
        Respondedor resp([&](QWidget* d) {
            if (d->objectName() != QLatin1String("Form7")) {
                respondePadrao(d);
                return;
            }
            label1 = d->findChild<QLabel*>(QStringLiteral("Label1"))->text().toStdString();
            for (int i = 0; i < 5; ++i) {
                auto* o = d->findChild<QRadioButton*>(QStringLiteral("Option1(%1)").arg(i));
                if (o->isVisibleTo(d))
                    opcoes.push_back(o->text().toStdString());
            }
            d->findChild<QRadioButton*>(QStringLiteral("Option1(%1)").arg(r.opcao))->click();
            d->findChild<QAbstractButton*>(QStringLiteral("Command1"))->click();
        });
        w.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
        EXPECT_EQ(label1, "A bitola do estribo deverá ser de 8mm2 com espaçamento de 20cm");
        ASSERT_EQ(opcoes.size(), 4u) << "three diameters and the least steel";
        EXPECT_EQ(opcoes[0], "fi de 0.8mm a cada 20cm. (independe do tipo de aço do estribo).");
        EXPECT_EQ(opcoes[3], "Utilizar a solução que proporcione menos quantidade de aço por metro");
        EXPECT_DOUBLE_EQ(w.program().metodo().DiamEstribo, r.diametro) << r.opcao;
        EXPECT_EQ(w.findChild<QLineEdit*>(QStringLiteral("Text27"))->text().toStdString(), r.texto27) << r.opcao;
    }
}

// ---- the best-solution search and its list ----

TEST(UiSolucoes, SearchThenStepThroughTheSolutionsAndChooseFromTheList)
{
    Janela j;
    j.w.show();
    EXPECT_FALSE(j.botao("Command9")->isVisible());
    j.clica("Command8");
    ASSERT_GT(j.p.NSolucoes, 5);
    EXPECT_TRUE(j.botao("Command9")->isVisible());
    EXPECT_TRUE(j.botao("Command10")->isVisible());
    EXPECT_TRUE(j.botao("Command11")->isVisible());
    auto linha = [&](int i) { return j.p.Form11.Rows[static_cast<std::size_t>(i - 1)]; };
    EXPECT_EQ(j.texto("Text4"), linha(1).nBase);
    EXPECT_EQ(j.texto("Text5"), linha(1).nAltura);

    j.clica("Command9"); // next
    EXPECT_EQ(j.p.SolucaoAtual, 2);
    EXPECT_EQ(j.texto("Text4"), linha(2).nBase);
    j.clica("Command10"); // previous
    j.clica("Command10"); // already the first: stays
    EXPECT_EQ(j.p.SolucaoAtual, 1);

    // "&Outras soluções": the list, lightest first; a row chosen there goes into the
    // window at once.
    std::string titulo, peso1, escolhidoNaJanela;
    int linhasVisiveis = 0;
    Respondedor resp([&](QWidget* d) {
        if (d->objectName() != QLatin1String("Form11")) {
            respondePadrao(d);
            return;
        }
        titulo = d->windowTitle().toStdString();
        for (auto* r : d->findChildren<QRadioButton*>())
            linhasVisiveis += r->isVisibleTo(d);
        peso1 = static_cast<ui::SolutionsDialog*>(d)->caixa(0, ui::SolutionsDialog::kPesoLongitudinal)->text().toStdString();
        d->findChild<QRadioButton*>(QStringLiteral("Option1(4)"))->click();
        escolhidoNaJanela = j.texto("Text4") + "x" + j.texto("Text5");
        botaoComTexto(d, QStringLiteral("&Voltar"))->click();
    });
    j.clica("Command11");
    EXPECT_EQ(titulo, "Soluções");
    EXPECT_EQ(linhasVisiveis, std::min(40, static_cast<int>(j.p.NSolucoes)));
    EXPECT_EQ(peso1, linha(1).Peso);
    EXPECT_EQ(j.p.SolucaoAtual, 5);
    EXPECT_EQ(escolhidoNaJanela, linha(5).nBase + "x" + linha(5).nAltura);
}

// ---- files through the menus ----

TEST(UiArquivos, SaveAsThenOpenGivesBackEveryChangedControl)
{
    PastaTemporaria pasta;
    PolicyDialogs d;
    ui::MainWindow w(&d);
    auto caixa = [&](const char* n) { return w.findChild<QLineEdit*>(QString::fromUtf8(n)); };
    caixa("Text3")->setText(QStringLiteral("4"));
    caixa("Text23")->setText(QStringLiteral("450"));
    w.findChild<QComboBox*>(QStringLiteral("Combo1"))->setCurrentText(QStringLiteral("Aço CA-60A"));
    w.findChild<QRadioButton*>(QStringLiteral("Option5"))->setChecked(true);
    w.findChild<QCheckBox*>(QStringLiteral("Check1"))->setChecked(true);
    d.saveFileName = pasta.caminho("projeto.TXT");
    w.findChild<QAction*>(QStringLiteral("mnuItemSave"))->trigger();
    ASSERT_TRUE(std::filesystem::exists(d.saveFileName));

    caixa("Text23")->setText(QStringLiteral("300"));
    w.findChild<QComboBox*>(QStringLiteral("Combo1"))->setCurrentText(QStringLiteral("Aço CA-50A"));
    w.findChild<QRadioButton*>(QStringLiteral("Option3"))->setChecked(true);
    w.findChild<QCheckBox*>(QStringLiteral("Check1"))->setChecked(false);

    // The changes since the save are asked about before the file replaces them.
    d.openFileName = d.saveFileName;
    d.saveChangesAnswer = 2;
    w.findChild<QAction*>(QStringLiteral("mnuItemload"))->trigger();
    ASSERT_EQ(d.saveChangesQuestions.size(), 1u);
    EXPECT_NE(d.saveChangesQuestions[0].find("\"projeto.TXT\""), std::string::npos) << d.saveChangesQuestions[0];
    EXPECT_EQ(caixa("Text23")->text(), QStringLiteral("450"));
    EXPECT_EQ(w.findChild<QComboBox*>(QStringLiteral("Combo1"))->currentText(), QStringLiteral("Aço CA-60A"));
    EXPECT_TRUE(w.findChild<QRadioButton*>(QStringLiteral("Option5"))->isChecked());
    EXPECT_FALSE(w.findChild<QRadioButton*>(QStringLiteral("Option3"))->isChecked());
    EXPECT_TRUE(w.findChild<QCheckBox*>(QStringLiteral("Check1"))->isChecked());
    EXPECT_FALSE(caixa("Text30")->text().isEmpty()) << "opening a file recalculates";
}

TEST(UiArquivos, CancelledOpenStillRecalculatesTheWindowAsItStands)
{
    PastaTemporaria pasta;
    PolicyDialogs d; // both dialogs cancelled
    d.saveChangesAnswer = 2;
    ui::MainWindow w(&d);
    w.findChild<QLineEdit*>(QStringLiteral("Text3"))->setText(QStringLiteral("4"));
    w.findChild<QLineEdit*>(QStringLiteral("Text23"))->setText(QStringLiteral("450"));
    w.findChild<QAction*>(QStringLiteral("mnuItemload"))->trigger();
    EXPECT_EQ(w.findChild<QLineEdit*>(QStringLiteral("Text23"))->text(), QStringLiteral("450"));
    EXPECT_EQ(w.findChild<QLineEdit*>(QStringLiteral("Text30"))->text(), QStringLiteral("Ok"));
    w.findChild<QAction*>(QStringLiteral("mnuItemSave"))->trigger();
    EXPECT_TRUE(QDir(pasta.dir.path()).entryList(QDir::Files).isEmpty()) << "a cancelled save writes nothing";
}

TEST(UiArquivos, DefaultValuesAreSavedAndLoadedBack)
{
    struct Row {
        const char* nome;
        bool peloBotao; // "Valores &padrão" or the menu's "Carre&gar valores padrões"
    };
    for (const Row r : {Row{"button", true}, Row{"menu", false}}) {
        PastaTemporaria pasta;
        Janela j;
        j.w.inicia(); // creates "Padrão.txt" from the built-in defaults
        ASSERT_TRUE(std::filesystem::exists(std::filesystem::u8path(pasta.caminho("Padrão.txt")))) << r.nome;
        j.caixa("Text16")->setText(QStringLiteral("750"));
        j.acao("mnuItemSaveDefault")->trigger();
        j.caixa("Text16")->setText(QStringLiteral("1"));
        if (r.peloBotao)
            j.clica("Command7");
        else
            j.acao("mnuItemCarregpadr")->trigger();
        EXPECT_EQ(j.texto("Text16"), "750") << r.nome;
    }
}

// ---- the auxiliary dialogs ----

TEST(UiDialogosReais, OtherValuesAreKeptAndSetTheLargestDiameters)
{
    ui::MainWindow w;
    std::string titulo;
    {
    Respondedor resp([&](QWidget* d) {
        titulo = d->windowTitle().toStdString();
        d->findChild<QComboBox*>(QStringLiteral("Combo3"))->setCurrentText(QStringLiteral("16 mm (5/8'')"));
        d->findChild<QComboBox*>(QStringLiteral("Combo1"))->setCurrentText(QStringLiteral("6.3 mm (1/4'')"));
        d->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("0.001"));
        d->findChild<QLineEdit*>(QStringLiteral("Text2"))->setText(QStringLiteral("1.9"));
        botaoComTexto(d, QStringLiteral("&Voltar"))->click();
    });
    w.findChild<QAction*>(QStringLiteral("mnuItemPrecisao"))->trigger();
    EXPECT_EQ(titulo, "Outros valores");
    EXPECT_EQ(w.program().IndiceBitolaMax, 6);
    EXPECT_FLOAT_EQ(w.program().IndiceEstriboMax, 2);
    EXPECT_EQ(w.program().Form8.Text1.Text, "0.001");
    EXPECT_EQ(w.program().Form8.Text2.Text, "1.9");
    }

    // Reopened, it shows what was left in it; Esc and the close button cancel.
    for (const bool porEsc : {true, false}) {
        std::string precisao;
        Respondedor outra([&](QWidget* d) {
            precisao = d->findChild<QLineEdit*>(QStringLiteral("Text1"))->text().toStdString();
            d->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("0.01"));
            d->findChild<QComboBox*>(QStringLiteral("Combo3"))->setCurrentText(QStringLiteral("40 mm"));
            if (porEsc)
                QTest::keyClick(d, Qt::Key_Escape);
            else
                d->close();
        });
        w.findChild<QAction*>(QStringLiteral("mnuItemPrecisao"))->trigger();
        EXPECT_EQ(precisao, "0.001");
        EXPECT_EQ(w.program().Form8.Text1.Text, "0.001") << porEsc;
        EXPECT_EQ(w.program().Form8.Combo3.Text, "16 mm (5/8'')") << porEsc;
    }
}

TEST(UiDialogosReais, DEstimateIsAcceptedIntoTheDBox)
{
    ui::MainWindow w;
    std::string estimativa, titulo;
    Respondedor resp([&](QWidget* d) {
        titulo = d->windowTitle().toStdString();
        auto* estribo = d->findChild<QComboBox*>(QStringLiteral("Combo1"));
        auto* barra = d->findChild<QComboBox*>(QStringLiteral("Combo2"));
        estribo->setCurrentText(QStringLiteral("6,3 mm (1/4'')"));
        barra->setCurrentText(QStringLiteral("20 mm (3/4'')"));
        d->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QStringLiteral("2.5")); // cm, as the window
        d->findChild<QAbstractButton*>(QStringLiteral("Command4"))->click(); // "&Calcula"
        estimativa = d->findChild<QLineEdit*>(QStringLiteral("Text2"))->text().toStdString();
        d->findChild<QAbstractButton*>(QStringLiteral("Command2"))->click(); // "Calcula e &aceita"
    });
    w.findChild<QPushButton*>(QStringLiteral("Command17"))->click();
    EXPECT_EQ(titulo, "Estimativa de d'");
    EXPECT_EQ(estimativa, "4.13");
    EXPECT_NEAR(Val(w.findChild<QLineEdit*>(QStringLiteral("Text3"))->text().toStdString()), 4.13, 1e-9);
}

TEST(UiJanela, TickingAutomaticDTakesTheDBoxAndItsEstimateOutOfUse)
{
    Janela j;
    auto* c3 = j.w.findChild<QCheckBox*>(QStringLiteral("Check3"));
    c3->click();
    EXPECT_FALSE(j.caixa("Text3")->isEnabled());
    EXPECT_FALSE(j.botao("Command17")->isEnabled());
    c3->click();
    EXPECT_TRUE(j.caixa("Text3")->isEnabled());
    EXPECT_TRUE(j.botao("Command17")->isEnabled());
}

TEST(UiJanela, AutomaticDCalculatesFromTheCoverAndShowsEverything)
{
    // d' typed as 1 cm would put the bars inside the cover; ticked, the box is not
    // read: d' comes from the cover and the pass shows its results and messages.
    Janela j;
    j.digita("Text3", "1");
    j.w.findChild<QCheckBox*>(QStringLiteral("Check3"))->click();
    j.clica("Command1");
    EXPECT_EQ(j.p.passeDoCalculo(), Program::Passe::Interativo);
    EXPECT_EQ(j.texto("Text30"), "Ok");
    EXPECT_EQ(j.texto("Text27"), "φ5 c/15");
    EXPECT_GT(Val(j.texto("Text3")), 3.0) << "the d' found is shown in its box";
    EXPECT_TRUE(j.w.desenho()->hasSection());
    EXPECT_FALSE(j.texto("TextUtilizacao").empty());
}

// ---- the window itself ----

TEST(UiJanela, MenusHoldTheProgramsItemsInTheirOrder)
{
    Janela j;
    const auto menus = j.w.menuBar()->actions();
    ASSERT_GE(menus.size(), 2);
    // The program's own menus and items keep their order; newer ones may stand
    // between them.
    auto naOrdem = [](const QList<QAction*>& acoes, const QStringList& esperados) {
        int k = 0;
        for (auto* a : acoes)
            if (k < esperados.size() && a->text() == esperados[k])
                ++k;
        return k == esperados.size();
    };
    EXPECT_EQ(menus[0]->text(), QStringLiteral("&Arquivo"));
    EXPECT_TRUE(naOrdem(menus, {QStringLiteral("&Arquivo"), QStringLiteral("&Valores")}));
    QAction* valores = nullptr;
    for (auto* m : menus)
        if (m->text() == QStringLiteral("&Valores"))
            valores = m;
    ASSERT_NE(valores, nullptr);
    EXPECT_TRUE(naOrdem(menus[0]->menu()->actions(), {QStringLiteral("&Abrir arquivo..."), QStringLiteral("Carre&gar valores padrões"),
                                           QStringLiteral("&Salvar como..."), QStringLiteral("Salvar valores como &padrão"),
                                           QStringLiteral("Sai&r")}));
    // "Sobre" is where a desktop program has it: under "Ajuda", after the help.
    EXPECT_TRUE(naOrdem(menus.last()->menu()->actions(),
                        {QStringLiteral("&Ajuda do Pilarix"), QStringLiteral("S&obre o Pilarix")}));
    EXPECT_TRUE(naOrdem(valores->menu()->actions(), {QStringLiteral("Outros")}));
}

TEST(UiJanela, AccessKeysReachTheirControls)
{
    struct Row {
        Qt::Key tecla;
        const char* efeito;
    };
    // Alt+A is shared by "&Arquivo" and "Definir m&anualmente": the menu opens.
    const Row rows[] = {
        {Qt::Key_C, "calculates"}, {Qt::Key_M, "searches"},       {Qt::Key_D, "Form5"},
        {Qt::Key_A, "&Arquivo"},   {Qt::Key_V, "&Valores"},
    };
    for (const auto& r : rows) {
        Janela j;
        j.w.show();
        j.w.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&j.w));
        j.caixa("Text3")->setText(QStringLiteral("4"));
        std::string dialogo;
        Respondedor resp([&](QWidget* d) {
            dialogo = d->objectName().toStdString();
            static_cast<QDialog*>(d)->reject();
        });
        QTest::keyClick(&j.w, r.tecla, Qt::AltModifier);
        // A button pressed by its access key shows itself pressed for a moment first.
        QTest::qWait(200);
        std::string efeito;
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            efeito = menu->title().toStdString();
            menu->close();
        } else if (!dialogo.empty()) {
            efeito = dialogo;
        } else if (j.botao("Command9")->isVisible()) {
            efeito = "searches";
        } else if (j.texto("Text30") == "Ok") {
            efeito = "calculates";
        }
        EXPECT_EQ(efeito, r.efeito) << QKeySequence(r.tecla).toString().toStdString();
    }
}

TEST(UiJanela, FitsA1366By768Screen)
{
    Janela j;
    j.w.show();
    j.w.adjustSize();
    // Room is left for the title bar and a task bar.
    EXPECT_LE(j.w.width(), 1366);
    EXPECT_LE(j.w.height(), 768 - 70);
    // At 150 % the same screen is 910 x 512 of the window's own units: the frames
    // scroll rather than push the window past it.
    EXPECT_LE(j.w.minimumSizeHint().width(), 1366 * 2 / 3);
    EXPECT_LE(j.w.minimumSizeHint().height(), (768 - 70) * 2 / 3);
}

// ---- the drawing ----

namespace {
// Counts the pixels of the rendered drawing by colour.
struct Pixels {
    int escuros = 0, vermelhos = 0;
};
Pixels conta(QWidget* v)
{
    const QImage img = v->grab().toImage();
    Pixels n;
    for (int y = 0; y < img.height(); ++y)
        for (int x = 0; x < img.width(); ++x) {
            const QColor c = img.pixelColor(x, y);
            n.escuros += c.lightness() < 60;
            n.vermelhos += c.red() - c.green() > 60 && c.red() - c.blue() > 60;
        }
    return n;
}
} // namespace

TEST(UiDesenho, TheSectionIsDrawnAfterACalculationAndClearedByAnError)
{
    Janela j;
    j.w.show();
    EXPECT_FALSE(j.w.desenho()->hasSection());
    j.digita("Text3", "4");
    j.clica("Command1");
    ASSERT_EQ(j.texto("Text30"), "Ok");
    ASSERT_TRUE(j.w.desenho()->hasSection());
    const Pixels desenhado = conta(j.w.desenho());
    EXPECT_GT(desenhado.vermelhos, 200) << "the stirrup";
    EXPECT_GT(desenhado.escuros, 300) << "outline, bars and labels";

    // A zoom is kept while nothing is calculated, and "Ajustar" brings the whole back.
    j.w.desenho()->zoomAt(2, QPointF(50, 50));
    j.w.atualiza();
    EXPECT_FALSE(j.w.desenho()->isFitted());
    j.clica("AjustarDesenho");
    EXPECT_TRUE(j.w.desenho()->isFitted());

    j.digita("Text18", "0");
    j.clica("Command1");
    EXPECT_FALSE(j.w.desenho()->hasSection());
    const Pixels apagado = conta(j.w.desenho());
    EXPECT_EQ(apagado.vermelhos, 0);
}

TEST(UiDesenho, ExportsTheDrawingInTheFormatOfItsName)
{
    PastaTemporaria pasta;
    Janela j;
    j.digita("Text3", "4");
    j.clica("Command1");
    for (const char* nome : {"secao.dxf", "secao.svg", "secao.png"}) {
        j.dialogs.drawingFileName = nome;
        j.acao("mnuItemExportar")->trigger();
        EXPECT_TRUE(std::filesystem::exists(nome)) << nome;
    }
    const auto avisos = j.dialogs.records.size();
    j.dialogs.drawingFileName = "secao.bmp";
    j.acao("mnuItemExportar")->trigger();
    ASSERT_EQ(j.dialogs.records.size(), avisos + 1) << "an unknown format is a message";
}

// ---- the check by strain compatibility ----

TEST(UiVerificacao, UtilisationShowsAtEveryCalculationAndWarnsWhereTheSectionDoesNotCarry)
{
    Janela j;
    j.digita("Text3", "4");
    j.clica("Command1");
    EXPECT_EQ(j.texto("TextUtilizacao"), "83.5 %");
    auto* aviso = j.w.findChild<QLabel*>(QStringLiteral("lblAvisoVerificacao"));
    EXPECT_TRUE(aviso->text().isEmpty());

    // Pure bending right after a compressed column: the method carries μ0 and λ and
    // finds zone O with the minimum steel, which does not carry the moment.
    j.digita("Text16", "0");
    j.digita("Text17", "6300");
    j.clica("Command1");
    ASSERT_EQ(j.texto("Text8"), "4");
    EXPECT_GT(j.p.Verificacao->utilisation, 1);
    EXPECT_TRUE(aviso->text().contains(QStringLiteral("NÃO resiste"))) << aviso->text().toStdString();

    j.clica("cmdDiagrama");
    auto* dialogo = j.w.findChild<QDialog*>(QStringLiteral("frmDiagrama"));
    ASSERT_NE(dialogo, nullptr);
    EXPECT_TRUE(dialogo->isVisible());
    j.digita("Text18", "0");
    j.clica("Command1");
    EXPECT_EQ(j.texto("TextUtilizacao"), "") << "no detailed section, no utilisation";
}
