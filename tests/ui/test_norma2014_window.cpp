// The ABNT NBR 6118:2014 rule set in the window: the frame of its inputs follows the
// list, choosing it proposes γc = 1.4 over the 2001 default as an edit that Ctrl+Z
// undoes, its inputs behave as every other (a comma read as the point, undo, the
// result greyed when they change), the results frame shows the engine's own figures,
// and the cases table carries both ends and both directions.

#include "base/number_text.h"
#include "render/interaction_painter.h"
#include "ui/cases_dialog.h"
#include "ui/moment_contour_dialog.h"
#include "ui/norma2014_results.h"
#include "ui_support.h"

#include <QGroupBox>
#include <QLabel>
#include <QTableWidget>
#include <QUndoStack>

#include <gtest/gtest.h>

using namespace pilarix;
using ui::Norma2014Results;

namespace {

// The textbook's 20 × 50 cm column under a rule set, calculated.
struct Coluna2014 : test::Janela {
    explicit Coluna2014(int norma = 1)
    {
        lista("Norma")->setCurrentIndex(norma);
        poe("Text1", "50");
        poe("Text2", "20");
        poe("Text3", "4");
        poe("Text4", "4");
        poe("Text5", "2");
        poe("Text16", "1400");
        poe("Text17", "0");
        poe("Text18", "30");
        poe("Text21", "1.4");
        poe("Text23", "280");
        poe("MyTopo", "3000");
        clica("Command1");
    }
    QWidget* quadro() { return w.findChild<QWidget*>(QStringLiteral("FrameNorma2014")); }
    Norma2014Results* resultados() { return w.findChild<Norma2014Results*>(); }
};

QString cor(const QLabel* l) { return l->styleSheet() + l->parentWidget()->styleSheet(); }

} // namespace

TEST(UiNorma2014, TheFrameOfItsInputsFollowsTheRuleSet)
{
    const struct {
        const char* nome;
        int indice;
        bool visivel;
        const char* titulo;
    } rows[] = {
        {"2001", 0, false, nullptr},
        {"2014", 1, true, "ABNT NBR 6118:2014"},
        {"2023", 2, true, "ABNT NBR 6118:2023"},
    };
    for (const auto& r : rows) {
        test::Janela j;
        j.lista("Norma")->setCurrentIndex(r.indice);
        auto* quadro = j.w.findChild<QGroupBox*>(QStringLiteral("FrameNorma2014"));
        ASSERT_NE(quadro, nullptr);
        EXPECT_EQ(quadro->isVisibleTo(&j.w), r.visivel) << r.nome;
        if (r.titulo) {
            EXPECT_EQ(quadro->title(), QString::fromUtf8(r.titulo)) << r.nome;
        }
        EXPECT_EQ(j.p.Form1.Norma.Text, lists::norma.at(static_cast<std::size_t>(r.indice))) << r.nome;
        // Back to 2001: the frame goes.
        j.lista("Norma")->setCurrentIndex(0);
        EXPECT_FALSE(quadro->isVisibleTo(&j.w)) << r.nome;
    }
}

TEST(UiNorma2014, ChoosingItProposesGammaC14OverThe2001DefaultOnly)
{
    const struct {
        const char* nome;
        const char* gamaC;
        int norma;
        const char* depois;
    } rows[] = {
        {"the 2001 default", "1.5", 1, "1.4"},
        {"2023 too", "1.5", 2, "1.4"},
        {"a γc the engineer typed", "1.6", 1, "1.6"},
        {"back to 2001", "1.5", 0, "1.5"},
    };
    for (const auto& r : rows) {
        test::Janela j;
        j.poe("Text21", r.gamaC);
        auto* norma = j.lista("Norma");
        norma->setCurrentIndex(r.norma);
        emit norma->activated(r.norma); // as a click on the list's entry
        EXPECT_EQ(j.texto("Text21"), r.depois) << r.nome;
        if (std::string(r.depois) != r.gamaC) {
            EXPECT_NE(j.barra().find("γc passou de 1.5 para 1.4"), std::string::npos) << r.nome << ": " << j.barra();
            j.w.pilhaDesfazer()->undo();
            EXPECT_EQ(j.texto("Text21"), "1.5") << r.nome << ": Ctrl+Z undoes the proposal alone";
            EXPECT_EQ(norma->currentIndex(), r.norma) << r.nome;
        }
    }
}

TEST(UiNorma2014, ItsInputsTakeACommaAreUndoneAndGreyTheResult)
{
    const struct {
        const char* nome;
        std::function<void(Coluna2014&)> muda;
    } rows[] = {
        {"ℓe of h typed", [](Coluna2014& j) { j.digita("LeH", "250,5"); }},
        {"My at the base typed", [](Coluna2014& j) { j.digita("MyBase", "-1500"); }},
        {"the method", [](Coluna2014& j) { j.lista("SegundaOrdem")->setCurrentIndex(1); }},
        {"the rule set", [](Coluna2014& j) { j.lista("Norma")->setCurrentIndex(2); }},
    };
    for (const auto& r : rows) {
        Coluna2014 j;
        ASSERT_FALSE(j.w.desatualizado()) << r.nome;
        ASSERT_TRUE(j.resultados()->isVisibleTo(&j.w)) << r.nome;
        r.muda(j);
        EXPECT_TRUE(j.w.desatualizado()) << r.nome;
        EXPECT_TRUE(j.resultados()->desatualizado()) << r.nome;
        EXPECT_TRUE(cor(j.resultados()->valor(Norma2014Results::Lambda, 'h')).contains(QStringLiteral("140, 140, 140")))
            << r.nome;
    }
    Coluna2014 j;
    j.digita("LeH", "250,5");
    EXPECT_EQ(j.texto("LeH"), "250.5") << "a comma is the decimal point";
    EXPECT_EQ(j.p.Form1.LeH.Text, "250.5");
    j.w.pilhaDesfazer()->undo();
    EXPECT_EQ(j.texto("LeH"), "");
    EXPECT_FALSE(j.w.desatualizado()) << "undone: the result is the input's again";
    EXPECT_EQ(j.lista("SegundaOrdem")->itemText(1), QStringLiteral("rigidez κ"));
    j.lista("SegundaOrdem")->setCurrentIndex(1);
    EXPECT_EQ(j.p.Form1.SegundaOrdem.Text, "rigidez") << "the list words it for the engineer, the model keeps the program's text";
}

TEST(UiNorma2014, TheResultsFrameShowsTheEnginesFigures)
{
    Coluna2014 j;
    ASSERT_TRUE(j.p.Resultado2014);
    const auto& r = *j.p.Resultado2014;
    const auto& g = r.cases.at(static_cast<std::size_t>(r.governingCase));
    const double kn = 100; // KN.cm
    const struct {
        const char* nome;
        Norma2014Results::Linha linha;
        char direcao;
        std::string texto;
    } rows[] = {
        {"λ h", Norma2014Results::Lambda, 'h', Format(g.h.slenderness.lambda, "##0.0")},
        {"λ1 h", Norma2014Results::Lambda1, 'h', Format(g.h.slenderness.lambda1, "##0.0")},
        {"αb b", Norma2014Results::AlfaB, 'b', Format(g.b.slenderness.alphaB, "0.00")},
        {"e1 b", Norma2014Results::E1, 'b', Format(g.b.slenderness.e1, "##0.00")},
        {"M1d,min h", Norma2014Results::M1dMin, 'h', Format(g.h.slenderness.minimumMoment / kn, "##0.00")},
        {"M2d h", Norma2014Results::M2d, 'h', Format(g.h.slenderness.secondOrderMoment / kn, "##0.00")},
        {"Md,tot h", Norma2014Results::MdTot, 'h', Format(g.h.slenderness.totalMoment / kn, "##0.00")},
        {"Md,tot b", Norma2014Results::MdTot, 'b', Format(g.b.slenderness.totalMoment / kn, "##0.00")},
        {"second order h", Norma2014Results::SegundaOrdem, 'h', g.h.slenderness.secondOrder ? "sim" : "não"},
        {"second order b", Norma2014Results::SegundaOrdem, 'b', g.b.slenderness.secondOrder ? "sim" : "não"},
        {"As h", Norma2014Results::As, 'h', Format(g.h.asNec, "##0.00")},
    };
    for (const auto& row : rows)
        EXPECT_EQ(j.resultados()->valor(row.linha, row.direcao)->text().toStdString(), row.texto) << row.nome;
    EXPECT_TRUE(j.resultados()->resumo()->text().contains(QStringLiteral("direção %1").arg(QLatin1Char(r.governingDirection))));
    EXPECT_TRUE(j.resultados()->resumo()->text().contains(QString::fromStdString(Format(r.gammaN, "0.000"))));
    ASSERT_TRUE(r.oblique);
    EXPECT_TRUE(j.resultados()->obliqua()->text().contains(QString::fromStdString(Format(r.oblique->envelope.margin, "0.00"))));
    // Under 2001 the frame is not shown.
    test::Janela d;
    d.clica("Command1");
    EXPECT_FALSE(d.w.findChild<Norma2014Results*>()->isVisibleTo(&d.w));
}

TEST(UiNorma2014, TheMxMyDiagramShowsTheCheckAndFollowsTheWindow)
{
    Coluna2014 j;
    j.aciona("mnuItemDiagramaMxMy");
    auto* dialogo = j.w.findChild<ui::MomentContourDialog*>();
    ASSERT_NE(dialogo, nullptr);
    const auto& c = dialogo->grafico()->contour();
    ASSERT_TRUE(c);
    EXPECT_EQ(c->points.size(), j.p.Resultado2014->oblique->points.size());
    EXPECT_TRUE(dialogo->utilizacao()->text().contains(render::utilisationText(j.p.Resultado2014->oblique->utilisation)));
    j.digita("MyTopo", "3500");
    EXPECT_TRUE(dialogo->windowTitle().contains(QStringLiteral("desatualizado")));
    j.lista("Norma")->setCurrentIndex(0);
    j.clica("Command1");
    EXPECT_FALSE(dialogo->grafico()->contour()) << "a 2001 calculation has no Mx–My check";
}

TEST(UiNorma2014, TheCasesTableCarriesBothEndsAndBothDirections)
{
    Coluna2014 j;
    j.aciona("mnuItemCasos");
    auto* casos = j.w.findChild<ui::CasesDialog*>();
    auto* t = casos->tabela();
    for (int c = 3; c <= 5; ++c)
        EXPECT_FALSE(t->isColumnHidden(c)) << c;
    EXPECT_EQ(t->item(0, 4)->text(), QStringLiteral("3000")) << "the first row is the main window's";
    ASSERT_TRUE(casos->cola(QStringLiteral("vento\t1000\t2500\t-1000,5\t4000\t2000")));
    ASSERT_EQ(j.p.OutrosCasos.size(), 1u);
    EXPECT_EQ(j.p.OutrosCasos[0].mdBase, "-1000.5");
    EXPECT_EQ(j.p.OutrosCasos[0].myBase, "2000");
    t->item(0, 3)->setText(QStringLiteral("500"));
    EXPECT_EQ(j.p.Form1.MdBase.Text, "500") << "Md at the base of the first row is the main window's box";
    EXPECT_EQ(j.texto("MdBase"), "500");
    t->item(1, 5)->setText(QString());
    EXPECT_EQ(j.p.OutrosCasos[0].myBase, "") << "an empty end moment is none";
    EXPECT_TRUE(j.w.desatualizado());
    j.lista("Norma")->setCurrentIndex(0);
    casos->carrega();
    for (int c = 3; c <= 5; ++c)
        EXPECT_TRUE(t->isColumnHidden(c)) << "2001: " << c;
}
