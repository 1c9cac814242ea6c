// "Combinações de esforços": cases typed and pasted as an engineer has them, and the
// results of a calculation with several cases.

#include "ui/cases_dialog.h"
#include "window/policy_dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

#include <functional>

#include <gtest/gtest.h>

using namespace pilarix;

namespace {
struct Casos {
    PolicyDialogs d;
    Program p{d};
    int alteracoes = 0;
    ui::CasesDialog dialogo{p, [this] { ++alteracoes; }};
    Casos() { dialogo.carrega(); }
};
} // namespace

TEST(UiCasos, PastedSpreadsheetRowsBecomeCasesWithAPointDecimal)
{
    Casos c;
    ASSERT_TRUE(c.dialogo.cola(QStringLiteral("topo\t400,5\t10000\r\nbase\t600\t4000,25\n\n")));
    ASSERT_EQ(c.p.OutrosCasos.size(), 2u);
    EXPECT_EQ(c.p.OutrosCasos[0].nome, "topo");
    EXPECT_EQ(c.p.OutrosCasos[0].nd, "400.5");
    EXPECT_EQ(c.p.OutrosCasos[1].md, "4000.25");
    EXPECT_EQ(c.dialogo.tabela()->rowCount(), 3) << "the main window's case and the two pasted";
    EXPECT_EQ(c.alteracoes, 1);

    // A line that is not a case pastes nothing, and says which.
    for (const char* ruim : {"vento\t1.23,5\t10", "vento\tmuito\t10", "um;dois\t1\t2", "só um campo"}) {
        EXPECT_FALSE(c.dialogo.cola(QString::fromUtf8(ruim))) << ruim;
        EXPECT_EQ(c.p.OutrosCasos.size(), 2u) << ruim;
        EXPECT_FALSE(c.dialogo.aviso()->text().isEmpty()) << ruim;
    }
}

TEST(UiCasos, ASpreadsheetBlockKeepsItsNumbersAndLosesItsHeadings)
{
    const struct {
        const char *nome, *colado, *nd, *md;
        std::size_t casos;
    } rows[] = {
        {"thousands point and decimal comma", "vento\t1.350,0\t-2.000,5", "1350.0", "-2000.5", 1},
        {"a header row is skipped", "Caso\tNd (KN)\tMd (KN.m)\nvento\t200\t150", "200", "150", 1},
        {"headings over forces alone", "Nd\tMd\n200\t150\n300\t100", "200", "150", 2},
        {"a point alone is the program's decimal point", "vento\t1.350\t10", "1.350", "10", 1},
    };
    for (const auto& r : rows) {
        Casos c;
        ASSERT_TRUE(c.dialogo.cola(QString::fromUtf8(r.colado))) << r.nome << c.dialogo.aviso()->text().toStdString();
        ASSERT_EQ(c.p.OutrosCasos.size(), r.casos) << r.nome;
        EXPECT_EQ(c.p.OutrosCasos[0].nd, r.nd) << r.nome;
        EXPECT_EQ(c.p.OutrosCasos[0].md, r.md) << r.nome;
    }
}

TEST(UiCasos, TheFirstRowIsTheMainWindowsForcesAndCannotBeRemoved)
{
    Casos c;
    c.dialogo.adiciona();
    ASSERT_EQ(c.p.OutrosCasos.size(), 1u);
    auto* t = c.dialogo.tabela();
    t->item(0, 1)->setText(QStringLiteral("750,5"));
    EXPECT_EQ(c.p.Form1.Text16.Text, "750.5");
    t->item(1, 2)->setText(QStringLiteral("abc"));
    EXPECT_EQ(c.p.OutrosCasos[0].md, c.p.Form1.Text17.Text) << "a value that is not a number is refused";
    t->setCurrentCell(0, 0);
    c.dialogo.remove();
    EXPECT_EQ(c.p.OutrosCasos.size(), 1u);
    t->setCurrentCell(1, 0);
    c.dialogo.remove();
    EXPECT_TRUE(c.p.OutrosCasos.empty());
}

TEST(UiCasos, AfterACalculationEachCaseShowsItsResultsAndTheGoverningOne)
{
    Casos c;
    c.p.Form1.Text3.Text = "4";
    ASSERT_TRUE(c.dialogo.cola(QStringLiteral("vento\t200\t15000\nbase\t600\t4000")));
    c.p.Command1_Click();
    ASSERT_EQ(c.p.ResultadosDosCasos.size(), 3u);
    c.dialogo.carrega();
    auto* t = c.dialogo.tabela();
    EXPECT_TRUE(t->item(1, 0)->font().bold()) << "the wind case needs the most steel";
    EXPECT_FALSE(t->item(0, 0)->font().bold());
    EXPECT_EQ(t->item(1, 6)->text(), QStringLiteral("2 (C)"));
    EXPECT_TRUE(t->item(2, 9)->text().endsWith(QStringLiteral("%")));
}

// ---- in the main window ----

#include "ui/interaction_dialog.h"
#include "ui/interaction_plot.h"
#include "ui/main_window.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

TEST(UiCasos, TheWindowCalculatesEveryCaseAndTheDiagramShowsThemAll)
{
    PolicyDialogs d;
    ui::MainWindow w(&d);
    w.show();
    w.findChild<QLineEdit*>(QStringLiteral("Text3"))->setText(QStringLiteral("4"));
    w.findChild<QAction*>(QStringLiteral("mnuItemCasos"))->trigger();
    auto* dialogo = w.findChild<ui::CasesDialog*>(QStringLiteral("frmCasos"));
    ASSERT_NE(dialogo, nullptr);
    ASSERT_TRUE(dialogo->cola(QStringLiteral("vento\t200\t15000\nbase\t600\t4000")));
    EXPECT_TRUE(w.windowTitle().endsWith(QStringLiteral("*"))) << "the cases are part of the project";

    w.findChild<QPushButton*>(QStringLiteral("Command1"))->click();
    EXPECT_EQ(w.findChild<QLineEdit*>(QStringLiteral("Text30"))->text(), QStringLiteral("Ok"));
    EXPECT_TRUE(dialogo->tabela()->item(1, 0)->font().bold()) << "the governing case, shown as the table reloads";

    w.findChild<QPushButton*>(QStringLiteral("cmdDiagrama"))->click();
    auto* diagrama = w.findChild<ui::InteractionDialog*>(QStringLiteral("frmDiagrama"));
    ASSERT_NE(diagrama, nullptr);
    ASSERT_EQ(diagrama->grafico()->data().points.size(), 3u);
    EXPECT_TRUE(diagrama->grafico()->data().points[1].governing);

    if (const char* png = std::getenv("PILARIX_CASOS_PNG")) {
        dialogo->raise();
        QApplication::processEvents();
        dialogo->grab().save(QString::fromUtf8(png));
        diagrama->grab().save(QString::fromUtf8(png) + QStringLiteral(".diagrama.png"));
    }
}

// The keys an engineer uses on the table: Ctrl+V over it pastes the clipboard's
// block, headings left aside and "1.350,0" read as 1350; Alt+A and the button add
// a case with the cursor in its name, so that typing names it at once.
namespace {
struct CasosNaTela : Casos {
    CasosNaTela()
    {
        dialogo.show();
        dialogo.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialogo));
    }
};
} // namespace

TEST(UiCasosTeclas, CtrlVOverTheTablePastesASpreadsheetBlock)
{
    CasosNaTela c;
    QApplication::clipboard()->setText(QStringLiteral("Caso\tNd (KN)\tMd (KN.cm)\nvento\t1.350,0\t-2.000,5\n"));
    c.dialogo.tabela()->setFocus();
    QTest::keyClick(c.dialogo.tabela(), Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(c.p.OutrosCasos.size(), 1u) << c.dialogo.aviso()->text().toStdString();
    EXPECT_EQ(c.p.OutrosCasos[0].nome, "vento");
    EXPECT_EQ(c.p.OutrosCasos[0].nd, "1350.0");
    EXPECT_EQ(c.p.OutrosCasos[0].md, "-2000.5");
    EXPECT_EQ(c.dialogo.tabela()->rowCount(), 2);
    EXPECT_EQ(c.dialogo.aviso()->text(), QStringLiteral("A primeira linha colada (títulos) foi deixada de lado."));
}

TEST(UiCasosTeclas, AddingPutsTheCursorInTheNewRowsName)
{
    const struct Row {
        const char* name;
        std::function<void(CasosNaTela&)> add;
    } rows[] = {
        {"Alt+A over the table",
         [](CasosNaTela& c) {
             c.dialogo.tabela()->setFocus();
             QTest::keyClick(c.dialogo.tabela(), Qt::Key_A, Qt::AltModifier);
         }},
        {"the button",
         [](CasosNaTela& c) {
             QTest::mouseClick(c.dialogo.findChild<QPushButton*>(QStringLiteral("cmdAdicionarCaso")), Qt::LeftButton);
         }},
    };
    for (const Row& r : rows) {
        CasosNaTela c;
        r.add(c);
        // A button pressed by its access key shows itself pressed for a moment first.
        QTest::qWait(200);
        ASSERT_EQ(c.p.OutrosCasos.size(), 1u) << r.name;
        auto* t = c.dialogo.tabela();
        EXPECT_EQ(t->currentRow(), 1) << r.name;
        EXPECT_EQ(t->currentColumn(), 0) << r.name;
        // Typed over at once: the name's editor has the keys.
        auto* editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr) << r.name;
        editor->selectAll();
        QTest::keyClicks(editor, QStringLiteral("vento"));
        QTest::keyClick(editor, Qt::Key_Return);
        QApplication::processEvents();
        EXPECT_EQ(c.p.OutrosCasos[0].nome, "vento") << r.name;
    }
}
