// The window as an engineer works in it: a result never shown as current once its
// input changed, the list of the search cleared with the section it was found for,
// an empty box named instead of calculated, messages kept, the fixed bar, unsaved
// changes asked about, undo.

#include "ui_support.h"

#include "ui/error_dialog.h"
#include "ui/section_canvas.h"

#include <QCheckBox>
#include <QLabel>
#include <QScreen>
#include <QTextBrowser>
#include <QUndoStack>

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace pilarix;
using pilarix::test::botaoComTexto;
using pilarix::test::PastaTemporaria;
using pilarix::test::Respondedor;

namespace {

// The window calculated with d' = 4 cm: the cover question is asked once and d'
// corrected.
struct Calculada : pilarix::test::Janela {
    Calculada()
    {
        poe("Text3", "4");
        clica("Command1");
    }
    std::string mensagens() { return w.mensagens()->toPlainText().toStdString(); }
    bool cinza(const char* nome) { return caixa(nome)->palette().color(QPalette::Text) == QColor(140, 140, 140); }
};

} // namespace

TEST(UiDesatualizado, AnInputTheResultDependsOnGreysTheResultUntilTheNextCalculation)
{
    const struct {
        const char *caixa, *lista; // a box changed to "7", or a list to its first entry
        bool desatualiza;
    } rows[] = {
        {"Text16", nullptr, true}, {"Text18", nullptr, true}, {"Text3", nullptr, true}, {nullptr, "Combo1", true},
        {nullptr, "Combo5", true}, {"Text31", nullptr, false}, {"Text6", nullptr, false},
    };
    for (const auto& r : rows) {
        Calculada j;
        const std::string nome = r.caixa ? r.caixa : r.lista;
        if (r.caixa)
            j.poe(r.caixa, "7");
        else
            j.w.findChild<QComboBox*>(QString::fromUtf8(r.lista))->setCurrentIndex(0);
        EXPECT_EQ(j.w.desatualizado(), r.desatualiza) << nome;
        EXPECT_EQ(j.w.desenho()->isStale(), r.desatualiza) << nome;
        EXPECT_EQ(j.cinza("Text10"), r.desatualiza) << nome;
        EXPECT_EQ(j.cinza("TextUtilizacao"), r.desatualiza) << nome;
        EXPECT_EQ(j.w.findChild<QLabel*>(QStringLiteral("lblDesatualizado"))->isVisibleTo(&j.w), r.desatualiza);
        EXPECT_EQ(j.texto("Text10"), "6.57") << "the figures stay, greyed";
        j.clica("Command1");
        EXPECT_FALSE(j.w.desatualizado()) << nome;
        EXPECT_FALSE(j.cinza("Text10")) << nome;
    }
    // Typing the value back makes the result current again.
    Calculada j;
    j.poe("Text16", "401");
    j.poe("Text16", "400");
    EXPECT_FALSE(j.w.desatualizado());
}

TEST(UiDesatualizado, TheSearchListGoesWhenTheSectionForcesOrMaterialsChange)
{
    const struct {
        const char *caixa, *valor;
        bool limpa;
    } rows[] = {{"Text1", "25", true}, {"Text17", "9000", true}, {"Text20", "20000", true},
                        {"Text4", "3", false}, {"Text3", "5", false}};
    for (const auto& r : rows) {
        Calculada j;
        j.w.show();
        j.clica("Command8");
        ASSERT_GT(j.p.NSolucoes, 1);
        j.clica("Command9"); // stepping through the list keeps it
        ASSERT_GT(j.p.NSolucoes, 1) << r.caixa;
        j.poe(r.caixa, r.valor);
        EXPECT_EQ(j.p.NSolucoes == 0, r.limpa) << r.caixa;
        EXPECT_EQ(j.w.findChild<QPushButton*>(QStringLiteral("Command9"))->isVisible(), !r.limpa) << r.caixa;
        EXPECT_EQ(j.w.findChild<QPushButton*>(QStringLiteral("Command11"))->isVisible(), !r.limpa) << r.caixa;
    }
}

TEST(UiDesatualizado, DefaultValuesClearResultsDrawingListAndMessagesAndAreUndone)
{
    PastaTemporaria pasta;
    Calculada j;
    j.w.show();
    j.w.inicia();
    j.poe("Text3", "4");
    j.poe("Text16", "800");
    j.clica("Command8");
    ASSERT_GT(j.p.NSolucoes, 0);
    j.clica("Command7");
    EXPECT_EQ(j.texto("Text16"), "400");
    EXPECT_EQ(j.texto("Text30"), "");
    EXPECT_EQ(j.texto("Text10"), "");
    EXPECT_FALSE(j.w.desenho()->hasSection());
    EXPECT_EQ(j.p.NSolucoes, 0);
    EXPECT_FALSE(j.w.findChild<QPushButton*>(QStringLiteral("Command11"))->isVisible());
    EXPECT_EQ(j.mensagens().find("Cobrimento"), std::string::npos);
    j.w.pilhaDesfazer()->undo();
    EXPECT_EQ(j.texto("Text16"), "800");
}

TEST(UiEntrada, AnEmptyOrWrongBoxIsNamedAndNothingIsCalculated)
{
    const struct {
        const char *caixa, *valor, *mensagem;
    } rows[] = {
        {"Text1", "", "A caixa \"Base (cm)\" está vazia"},
        {"Text2", "", "A caixa \"Altura (cm)\" está vazia"},
        {"Text23", "", "A caixa \"Comprimento (cm)\" está vazia"},
        {"Text4", "", "A caixa \"Barras nas faces da base\" está vazia"},
        {"Text16", "", "A caixa \"Nd\" está vazia"},
        {"Text17", "", "A caixa \"Md\" está vazia"},
        {"Text18", "", "A caixa \"Fck\" está vazia"},
        {"Text20", "", "A caixa \"Es\" está vazia"},
        {"Text21", "", "A caixa \"γc (coef. do concreto)\" está vazia"},
        {"Text22", "", "A caixa \"γs (coef. do aço)\" está vazia"},
        {"Text4", "1", "A caixa \"Barras nas faces da base\" tem 1: cada face precisa de pelo menos 2 barras"},
        {"Text5", "0", "A caixa \"Barras nas faces da altura\" tem 0: cada face precisa de pelo menos 2 barras"},
        {"Text16", "-", "A caixa \"Nd\" tem \"-\": Nd é um número"},
        {"Text18", ".", "A caixa \"Fck\" tem \".\": fck é um número positivo"},
        // Refused whole, as typed: never read as "225", "19" or "30".
        {"Text1", "22,5", "A caixa \"Base (cm)\" tem \"22,5\": a base é um número inteiro de centímetros"},
        {"Text18", "-30", "A caixa \"Fck\" tem \"-30\": fck é um número positivo"},
        {"Text16", "1e9", "A caixa \"Nd\" tem 1e9 KN, fora do que o programa aceita"},
        {"Text6", "0", "Escala = 0: digite a escala"},
        {"Text6", "", "A caixa \"Escala\" está vazia"},
    };
    for (const auto& r : rows) {
        Calculada j;
        const unsigned calculos = j.p.CalculosFeitos;
        const auto registros = j.dialogs.records.size();
        j.poe(r.caixa, r.valor);
        j.clica("Command1");
        EXPECT_EQ(j.p.CalculosFeitos, calculos) << r.caixa;
        ASSERT_EQ(j.dialogs.records.size(), registros + 1) << r.caixa;
        EXPECT_EQ(j.dialogs.lastMessage().rfind(r.mensagem, 0), 0u) << j.dialogs.lastMessage();
        EXPECT_EQ(j.barra(), j.dialogs.lastMessage()) << "the status bar says it once, as the dialog did";
        EXPECT_EQ(j.texto(r.caixa), r.valor) << "the box is not corrected behind the user's back";
        EXPECT_EQ(j.texto("Text10"), "6.57") << "the last result stays, out of date";
        EXPECT_EQ(j.w.desatualizado(), std::string(r.caixa) != "Text6") << "the scale is the export's alone";
    }
}

TEST(UiEntrada, TheCorrectionsOfTheCalculationAreSaidInTheStatusBar)
{
    const struct {
        const char *caixa, *valor, *barra;
    } rows[] = {
        {"Text1", "8", "Base corrigida para 12 cm (mínimo)."},
        {"Text2", "10", "Altura corrigida para 12 cm (mínimo); Barras nas faces da altura corrigidas para 2"},
        {"Text4", "9", "Barras nas faces da base corrigidas para 3 (o máximo que cabe na base)."},
    };
    for (const auto& r : rows) {
        Calculada j;
        j.poe(r.caixa, r.valor);
        j.clica("Command1");
        EXPECT_EQ(j.barra().rfind(r.barra, 0), 0u) << j.barra();
    }
}

TEST(UiEntrada, OutrosValoresRefusesAPrecisionOrAggregateOutOfRange)
{
    const struct {
        const char *precisao, *agregado, *mensagem; // no message: accepted
    } rows[] = {
        {"0.05", "", "Precisão = 0.05 está fora do intervalo aceito: maior que 0 e no máximo 0.01"},
        {"0.001", "0", "Diâmetro máximo do agregado graúdo = 0 cm: deve ser maior que zero"},
        {"0.01", "", nullptr},
        {"0.001", "1.9", nullptr},
    };
    for (const auto& r : rows) {
        Calculada j;
        bool ficouAberto = false;
        Respondedor resp([&](QWidget* d) { // the refusal is told through the recording port
            d->findChild<QLineEdit*>(QStringLiteral("Text1"))->setText(QString::fromUtf8(r.precisao));
            d->findChild<QLineEdit*>(QStringLiteral("Text2"))->setText(QString::fromUtf8(r.agregado));
            botaoComTexto(d, QStringLiteral("&Voltar"))->click();
            ficouAberto = d->isVisible();
            static_cast<QDialog*>(d)->reject();
        });
        const auto registros = j.dialogs.records.size();
        j.aciona("mnuItemPrecisao");
        EXPECT_EQ(ficouAberto, r.mensagem != nullptr) << r.precisao << " " << r.agregado;
        if (r.mensagem) {
            EXPECT_EQ(j.dialogs.lastMessage().rfind(r.mensagem, 0), 0u) << j.dialogs.lastMessage();
            EXPECT_EQ(j.p.Form8.Text1.Text, "0.0001") << "refused, then cancelled: nothing changed";
        } else {
            EXPECT_EQ(j.dialogs.records.size(), registros);
            EXPECT_EQ(j.p.Form8.Text1.Text, r.precisao);
        }
    }
}

TEST(UiBitola, WithAutomaticClearAClickFixesTheBarForTheCalculation)
{
    Calculada j;
    auto clicaBitola = [&](int i) {
        auto* e = j.caixa(QStringLiteral("Text7(%1)").arg(i).toUtf8().constData());
        QTest::mouseClick(e, Qt::LeftButton, {}, e->rect().center());
    };
    clicaBitola(3); // "Automático" ticked: the calculation chooses
    EXPECT_EQ(j.p.BitolaFixa, 0);
    EXPECT_NE(j.barra().find("desmarque-o para fixar 20 mm"), std::string::npos) << j.barra();

    j.w.findChild<QCheckBox*>(QStringLiteral("Check2"))->setChecked(false);
    clicaBitola(3);
    EXPECT_EQ(j.p.BitolaFixa, 7);
    EXPECT_TRUE(j.caixa("Text7(3)")->font().bold()) << "the fixed bar shows as chosen";
    EXPECT_TRUE(j.w.desatualizado());
    j.clica("Command1");
    EXPECT_EQ(j.texto("Text14"), "3.15") << "8 bars of 20 mm";
    EXPECT_EQ(j.caixa("Text7(3)")->palette().color(QPalette::Base), QColor(0, 0, 192));

    // A bar that breaks a rule is used all the same and the rule says why.
    clicaBitola(7);
    j.clica("Command1");
    EXPECT_EQ(j.texto("Text30"), "erro");
    EXPECT_NE(j.mensagens().find("excede o máximo permitido = 1/8 da menor dimensão"), std::string::npos);
}

TEST(UiMensagens, ThePanelKeepsEveryMessageWithItsClauseAndAnswer)
{
    Calculada j; // d' of 4 cm leaves a cover below the nominal: the question was asked
    const std::string m = j.mensagens();
    EXPECT_NE(m.find("Cobrimento: Cobrimento efetivo = 2.875 cm menor que o combrimento nominal = 3 cm."),
              std::string::npos) << m;
    EXPECT_NE(m.find("Item 7.4.7"), std::string::npos) << m;
    EXPECT_NE(m.find("Resposta: 1 - Utilizar cobrimento mínimo"), std::string::npos) << m;
    j.poe("Text16", "401");
    EXPECT_NE(j.mensagens().find("Do cálculo anterior"), std::string::npos);
    j.clica("Command1"); // d' corrected: nothing more to say
    EXPECT_NE(j.mensagens().find("O último cálculo não deu mensagens."), std::string::npos) << j.mensagens();
}

TEST(UiMensagens, TheErrorDialogShowsALongMessageWhole)
{
    const std::string mensagens[] = {
        "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso 2cm > 1.5cm",
        std::string(4000, 'x') + " fim",
    };
    for (const auto& texto : mensagens) {
        ui::ErrorDialog d;
        Form2Model f;
        f.Label1.Caption = texto;
        f.Label2.Caption = "Item 18.4.2.1 do Projeto de revisão da NB1 / 2001";
        d.preenche(f);
        d.show();
        auto* l = d.findChild<QLabel*>(QStringLiteral("Label1"));
        EXPECT_GE(l->height(), l->heightForWidth(l->width())) << texto.substr(0, 40);
        EXPECT_LE(d.width(), d.screen()->availableGeometry().width());
        EXPECT_LE(d.height(), d.screen()->availableGeometry().height());
    }
}

TEST(UiArquivo, TheTitleNamesTheProjectAndMarksItsUnsavedChanges)
{
    PastaTemporaria pasta;
    Calculada j;
    j.w.inicia();
    EXPECT_EQ(j.w.windowTitle(), QStringLiteral("Pilarix Normal"));
    j.poe("Text16", "500");
    EXPECT_EQ(j.w.windowTitle(), QStringLiteral("Pilarix Normal *"));
    j.dialogs.saveFileName = "pilar1.txt";
    j.aciona("mnuItemSalvar"); // the first save asks a name
    EXPECT_EQ(j.w.windowTitle(), QStringLiteral("Pilarix Normal — pilar1.txt"));
    EXPECT_EQ(QFileInfo(j.w.arquivosRecentes().value(0)).fileName(), QStringLiteral("pilar1.txt"));
    j.poe("Text16", "600");
    EXPECT_EQ(j.w.windowTitle(), QStringLiteral("Pilarix Normal — pilar1.txt *"));
    j.dialogs.saveFileName.clear();
    j.aciona("mnuItemSalvar"); // then saves where it is, without asking
    EXPECT_EQ(j.w.windowTitle(), QStringLiteral("Pilarix Normal — pilar1.txt"));
}

TEST(UiArquivo, ClosingOrStartingAnewOverUnsavedChangesAsksFirst)
{
    const struct {
        int resposta; // 1 save, 2 discard, 0 cancel
        bool fecha, salvo;
    } rows[] = {{0, false, false}, {2, true, false}, {1, true, true}};
    for (const auto& r : rows) {
        PastaTemporaria pasta;
        pilarix::test::Janela limpa;
        limpa.w.inicia();
        EXPECT_TRUE(limpa.w.close()) << "nothing to save: closes at once";
        EXPECT_TRUE(limpa.dialogs.saveChangesQuestions.empty());
        Calculada j;
        j.w.show();
        j.poe("Text16", "500");
        j.dialogs.saveChangesAnswer = r.resposta;
        j.dialogs.saveFileName = "pilar.txt";
        EXPECT_EQ(j.w.close(), r.fecha) << r.resposta;
        ASSERT_EQ(j.dialogs.saveChangesQuestions.size(), 1u);
        EXPECT_EQ(j.dialogs.saveChangesQuestions[0],
                  "O projeto sem nome tem alterações não salvas. Salvar antes de fechar?");
        EXPECT_EQ(QFileInfo::exists(QStringLiteral("pilar.txt")), r.salvo) << r.resposta;
        j.w.show();
        j.aciona("mnuItemNovo");
        EXPECT_EQ(j.texto("Text16"), r.resposta == 0 ? "500" : "400") << "Ctrl+N after " << r.resposta;
    }
}

TEST(UiDesfazer, EditsAreUndoneAndRedoneAsTheUserMadeThem)
{
    Calculada j;
    QUndoStack* pilha = j.w.pilhaDesfazer();
    const int antes = pilha->count();
    j.caixa("Text16")->end(false);
    QTest::keyClicks(j.caixa("Text16"), QStringLiteral("5,")); // typing into one box is one edit
    j.w.findChild<QComboBox*>(QStringLiteral("Combo1"))->setCurrentIndex(0);
    j.poe("Text31", "5");
    j.clica("Command16"); // a step: the base 20 + 5, and a calculation
    ASSERT_EQ(j.texto("Text1"), "25");
    ASSERT_EQ(pilha->count(), antes + 4);
    EXPECT_EQ(pilha->undoText(), QStringLiteral("passo"));

    pilha->undo();
    EXPECT_EQ(j.texto("Text1"), "20");
    EXPECT_TRUE(j.w.desatualizado()) << "the result on show is of the base undone";
    pilha->undo();
    EXPECT_EQ(j.texto("Text31"), "");
    pilha->undo();
    EXPECT_EQ(j.w.findChild<QComboBox*>(QStringLiteral("Combo1"))->currentText(), QStringLiteral("Aço CA-50A"));
    pilha->undo();
    EXPECT_EQ(j.texto("Text16"), "400");
    pilha->redo();
    EXPECT_EQ(j.texto("Text16"), "4005.");

    // Ctrl+Z in a box is the window's undo, not the box's own.
    j.w.show();
    j.w.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&j.w));
    j.caixa("Text1")->setFocus();
    QTest::keyClick(j.caixa("Text1"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(j.texto("Text16"), "400");
}

TEST(UiJanela, TabGoesFromBoxToBoxEnterCalculatesF1AndCtrlPAnswer)
{
    Calculada j;
    j.w.show();
    j.w.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&j.w));
    j.caixa("Text1")->setFocus();
    for (const char* proxima : {"Text31", "Text2", "Text32", "Text23", "Text4", "Text5", "Text3"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), proxima);
    }
    j.poe("Text16", "500");
    QTest::keyClick(j.caixa("Text16"), Qt::Key_Return);
    EXPECT_FALSE(j.w.desatualizado());
    EXPECT_DOUBLE_EQ(j.p.Nd, 50000);
    // The report of results that no longer match the input: calculated again first.
    QTemporaryDir pasta;
    j.dialogs.reportFileName = pasta.filePath(QStringLiteral("pilar.pdf")).toStdString();
    j.poe("Text16", "600");
    ASSERT_TRUE(j.w.desatualizado());
    j.aciona("mnuItemMemorial");
    EXPECT_FALSE(j.w.desatualizado());
    EXPECT_DOUBLE_EQ(j.p.Nd, 60000);
    EXPECT_TRUE(QFileInfo::exists(pasta.filePath(QStringLiteral("pilar.pdf"))));
    j.aciona("mnuItemAjuda");
    auto* ajuda = j.w.findChild<QDialog*>(QStringLiteral("frmAjuda"));
    ASSERT_NE(ajuda, nullptr);
    EXPECT_TRUE(ajuda->isVisible());
}
