// What the engineer reads and what the window never changes unasked: the wheel over
// a list, the defaults and "d' automático", every input of a result (the load cases
// and the fixed bar too) greying it, the governing case named, a failed design
// neither green nor drawn as valid, and a drawing exported from it marked so.

#include "ui_support.h"

#include "base/number_text.h"

#include "ui/about_dialog.h"
#include "ui/cases_dialog.h"
#include "ui/section_canvas.h"

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QTableWidget>
#include <QWheelEvent>

#include <gtest/gtest.h>

using namespace pilarix;
using pilarix::test::PastaTemporaria;

namespace {

struct Calculada : pilarix::test::Janela {
    Calculada()
    {
        poe("Text3", "4");
        clica("Command1");
    }
};

void roda(QWidget* w)
{
    QWheelEvent e(QPointF(5, 5), w->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                  Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(w, &e);
}

} // namespace

TEST(UiRoda, TheWheelChangesAListOnlyOnceTheListHasTheFocus)
{
    const struct {
        const char* lista;
        bool focada, muda;
    } rows[] = {
        {"Combo1", false, false}, {"Combo3", false, false}, {"Combo4", false, false},
        {"Combo2", false, false}, {"Combo3", true, true},
    };
    for (const auto& r : rows) {
        pilarix::test::Janela j;
        j.w.show();
        j.w.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&j.w));
        QComboBox* c = j.lista(r.lista);
        EXPECT_EQ(c->focusPolicy(), Qt::StrongFocus) << r.lista;
        c->setCurrentIndex(0);
        if (r.focada)
            c->setFocus();
        else
            j.caixa("Text1")->setFocus();
        roda(c);
        EXPECT_EQ(c->currentIndex() != 0, r.muda) << r.lista << (r.focada ? " focused" : "");
    }
}

TEST(UiPadrao, TheDefaultsClearDLinhaAutomaticoAndTheBoxFollowsTheTick)
{
    PastaTemporaria pasta;
    pilarix::test::Janela j;
    j.w.inicia();
    auto* marca = j.w.findChild<QCheckBox*>(QStringLiteral("Check3"));
    marca->click();
    ASSERT_TRUE(marca->isChecked());
    ASSERT_FALSE(j.caixa("Text3")->isEnabled());
    j.clica("Command7");
    EXPECT_FALSE(marca->isChecked());
    EXPECT_TRUE(j.caixa("Text3")->isEnabled());
    EXPECT_TRUE(j.botao("Command17")->isEnabled());
}

TEST(UiDesatualizado, EveryInputOfTheResultGreysItTheLoadCasesAndTheFixedBarToo)
{
    const struct {
        const char* nome;
        std::function<void(Calculada&)> muda;
    } rows[] = {
        {"a case added", [](Calculada& j) {
             j.aciona("mnuItemCasos");
             j.w.findChild<ui::CasesDialog*>()->adiciona();
         }},
        {"a case pasted", [](Calculada& j) {
             j.aciona("mnuItemCasos");
             j.w.findChild<ui::CasesDialog*>()->cola(QStringLiteral("vento\t200\t15000"));
         }},
        {"a bar fixed", [](Calculada& j) {
             j.w.findChild<QCheckBox*>(QStringLiteral("Check2"))->setChecked(false);
             auto* e = j.caixa("Text7(3)");
             QTest::mouseClick(e, Qt::LeftButton, {}, e->rect().center());
         }},
    };
    for (const auto& r : rows) {
        Calculada j;
        ASSERT_FALSE(j.w.desatualizado());
        r.muda(j);
        EXPECT_TRUE(j.w.desatualizado()) << r.nome;
        EXPECT_TRUE(j.w.desenho()->isStale()) << r.nome;
        EXPECT_EQ(j.caixa("Text10")->palette().color(QPalette::Text), QColor(140, 140, 140)) << r.nome;
    }
}

TEST(UiCasos, TheGoverningCaseIsNamedBesideTheResultsAndAnEditGreysTheTable)
{
    Calculada j;
    auto* rotulo = j.w.findChild<QLabel*>(QStringLiteral("lblCasoDeterminante"));
    EXPECT_FALSE(rotulo->isVisibleTo(&j.w)) << "one case: nothing to name";
    j.aciona("mnuItemCasos");
    auto* casos = j.w.findChild<ui::CasesDialog*>();
    ASSERT_TRUE(casos->cola(QStringLiteral("vento\t200\t15000\nbase\t600\t4000")));
    j.clica("Command1");
    EXPECT_TRUE(rotulo->isVisibleTo(&j.w));
    EXPECT_TRUE(rotulo->text().startsWith(QStringLiteral("Caso determinante: vento."))) << rotulo->text().toStdString();
    // An edited case keeps the old results on show, greyed.
    casos->tabela()->item(2, 1)->setText(QStringLiteral("650"));
    EXPECT_TRUE(j.w.desatualizado());
    EXPECT_FALSE(casos->tabela()->item(1, 6)->text().isEmpty());
    EXPECT_EQ(casos->tabela()->item(1, 6)->foreground().color(), QColor(150, 150, 150));
}

TEST(UiVeredito, AFailedDesignIsNeitherGreenNorDrawnNorExportedAsValid)
{
    const struct {
        const char* nome;
        int bitola; // the bar fixed (0: automatic)
        bool erro;
    } rows[] = {{"a design that holds", 0, false}, {"a 40 mm bar in a 20 cm side", 7, true}};
    for (const auto& r : rows) {
        PastaTemporaria pasta;
        Calculada j;
        if (r.bitola) {
            j.w.findChild<QCheckBox*>(QStringLiteral("Check2"))->setChecked(false);
            auto* e = j.caixa(QStringLiteral("Text7(%1)").arg(r.bitola).toUtf8().constData());
            QTest::mouseClick(e, Qt::LeftButton, {}, e->rect().center());
            j.clica("Command1");
        }
        ASSERT_EQ(j.texto("Text30"), r.erro ? "erro" : "Ok") << r.nome;
        EXPECT_NE(j.caixa("TextUtilizacao")->palette().color(QPalette::Text).green() > 120
                      && j.caixa("TextUtilizacao")->palette().color(QPalette::Text).red() < 100,
                  r.erro)
            << r.nome << ": green only where it holds";
        EXPECT_EQ(j.w.desenho()->isUnverified(), r.erro) << r.nome;
        for (const char* arquivo : {"secao.dxf", "secao.svg"}) {
            j.dialogs.drawingFileName = pasta.caminho(arquivo);
            j.aciona("mnuItemExportar");
            QFile f(QString::fromStdString(j.dialogs.drawingFileName));
            ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << arquivo;
            EXPECT_EQ(f.readAll().contains("VERIFICADO"), r.erro) << r.nome << " " << arquivo;
            EXPECT_NE(j.barra().find("gravado em " + j.dialogs.drawingFileName), std::string::npos) << j.barra();
        }
    }
}

TEST(UiBarra, ACalculationClearsWhatTheStatusBarSaidBefore)
{
    Calculada j;
    j.w.statusBar()->showMessage(QStringLiteral("Bitola fixada em 20 mm"));
    j.clica("Command1");
    EXPECT_EQ(j.barra(), "");
}

TEST(UiSobre, TheAboutBoxStatesTheVersion)
{
    ui::AboutDialog d;
    auto* versao = d.findChild<QLabel*>(QStringLiteral("lblVersao"));
    ASSERT_NE(versao, nullptr);
    EXPECT_TRUE(versao->text().startsWith(QStringLiteral("Versão "))) << versao->text().toStdString();
    EXPECT_NE(versao->text(), QStringLiteral("Versão ?"));
}

#include "ui/solutions_dialog.h"
#include "window/solution_details.h"

TEST(UiSolucoes, EachRowShowsItsBarCountAreaUtilisationStirrupAndTotalSteel)
{
    Calculada j;
    j.w.show();
    j.clica("Command8");
    ASSERT_GT(j.p.NSolucoes, 3);
    auto* posicao = j.w.findChild<QLabel*>(QStringLiteral("lblSolucaoAtual"));
    EXPECT_TRUE(posicao->isVisibleTo(&j.w));
    j.clica("Command9");
    EXPECT_EQ(posicao->text(), QStringLiteral("2 de %1").arg(j.p.Form11.RowsShown));

    const auto detalhes = detalhaSolucoes(j.p);
    ui::SolutionsDialog d(j.p.Form11, {});
    d.poeDetalhes(detalhes);
    for (std::size_t i = 0; i < 3; ++i) {
        const auto& x = detalhes[i];
        const int linha = static_cast<int>(i);
        ASSERT_TRUE(x.calculado) << i;
        EXPECT_NEAR(x.pesoLongitudinal, Val(j.p.Form11.Rows[i].Peso), 0.01) << "the row recalculated is the row listed";
        EXPECT_GT(x.pesoTotal, x.pesoLongitudinal) << "the stirrups weigh something";
        EXPECT_LE(x.utilizacao, 1) << "the search keeps only what carries the forces";
        EXPECT_EQ(x.barras, 2 * (Val(j.p.Form11.Rows[i].nBase) + Val(j.p.Form11.Rows[i].nAltura)) - 4);
        EXPECT_TRUE(d.caixa(linha, ui::SolutionsDialog::kEstribo)->text().contains(QStringLiteral(" c/")));
        EXPECT_TRUE(d.caixa(linha, ui::SolutionsDialog::kUtilizacao)->text().endsWith(QStringLiteral("%")));
        EXPECT_FALSE(d.caixa(linha, ui::SolutionsDialog::kBarra)->text().isEmpty());
    }
}
