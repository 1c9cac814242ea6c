// Keystroke filters of the main window, per group of controls: what a user can type
// into each box, what is thrown away, and the beep of the bar list.

#include "ui_support.h"

#include "window/policy_dialogs.h"
#include "ui/key_filters.h"
#include "ui/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace pilarix;
using pilarix::ui::Teclas;

TEST(UiKeyFilterRules, EachGroupAcceptsItsOwnCharacters)
{
    struct Row {
        const char* nome;
        Teclas regra;
        const char* aceitas;
        const char* rejeitadas;
    };
    // The comma belongs wherever the point does: it is the Brazilian decimal point.
    const Row rows[] = {
        {"sides and counts", Teclas::Inteiro, "0123456789\b", ".-,+eE a"},
        {"decimals", Teclas::Decimal, "0123456789.,\b", "-+eE a"},
        {"axial force", Teclas::DecimalComSinal, "0123456789.,-\b", "+eE a"},
        {"bar list, chosen by a click", Teclas::Bitola, "", "0123456789.-,\b a"},
        {"results and lists", Teclas::Nenhuma, "", "0123456789.-,\b a"},
    };
    for (const auto& r : rows) {
        for (const char* c = r.aceitas; *c; ++c)
            EXPECT_TRUE(ui::teclaAceita(r.regra, QLatin1Char(*c))) << r.nome << " '" << *c << "'";
        for (const char* c = r.rejeitadas; *c; ++c)
            EXPECT_FALSE(ui::teclaAceita(r.regra, QLatin1Char(*c))) << r.nome << " '" << *c << "'";
    }
}

TEST(UiKeyFilterRules, ACommaIsTheDecimalPointAndANumberKeepsOneOfIt)
{
    const struct {
        Teclas regra;
        const char* texto;
        int inicio, fim;
        const char* inserido;
        bool colado;
        const char *insere, *motivo; // nothing inserted: refused, for that reason
    } rows[] = {
        {Teclas::Decimal, "22", 2, 2, ",", false, ".", ""},
        {Teclas::Decimal, "22.5", 4, 4, ",", false, nullptr, "um só ponto decimal"},
        {Teclas::Decimal, "", 0, 0, " 40,5 ", true, "40.5", ""},
        {Teclas::Decimal, "", 0, 0, "1.234,5", true, nullptr, "um só ponto decimal"},
        {Teclas::DecimalComSinal, "50", 0, 0, "-", false, "-", ""},
        {Teclas::DecimalComSinal, "50", 1, 1, "-", false, nullptr, "o sinal de menos só no início"},
        {Teclas::Inteiro, "20", 2, 2, ",", false, nullptr, "só algarismos"},
    };
    for (const auto& r : rows) {
        const auto i = ui::insercao(r.regra, QString::fromUtf8(r.texto), r.inicio, r.fim,
                                    QString::fromUtf8(r.inserido), r.colado);
        const std::string caso = std::string(r.texto) + " + " + r.inserido;
        if (r.insere) {
            EXPECT_TRUE(i.motivo.isEmpty()) << caso << ": " << i.motivo.toStdString();
            EXPECT_EQ(i.texto.toStdString(), r.insere) << caso;
        } else {
            EXPECT_TRUE(i.motivo.startsWith(QString::fromUtf8(r.motivo))) << caso << ": " << i.motivo.toStdString();
        }
    }
}

using pilarix::test::Janela;

TEST(UiKeyFilterWidgets, TypingIntoEachBoxKeepsOnlyItsCharacters)
{
    struct Row {
        const char* controle;
        const char* digitado;
        const char* fica; // the box's text afterwards, typed into an empty box
        int beeps;
    };
    // The same keystrokes into every group: letters, point, comma, sign.
    const Row rows[] = {
        {"Text1", "1a2.,-3", "123", 4},  {"Text2", "1a2.,-3", "123", 4},  {"Text4", "1a2.,-3", "123", 4},
        {"Text5", "1a2.,-3", "123", 4},  {"Text31", "1a2.,-3", "123", 4}, {"Text32", "1a2.,-3", "123", 4},
        {"Text3", "1a2.,-3", "12.3", 3}, {"Text6", "1a2.,-3", "12.3", 3}, {"Text17", "1a2.,-3", "12.3", 3},
        {"Text18", "1a2.,-3", "12.3", 3}, {"Text20", "1a2.,-3", "12.3", 3}, {"Text21", "1a2.,-3", "12.3", 3},
        {"Text22", "1a2.,-3", "12.3", 3}, {"Text23", "1a2.,-3", "12.3", 3},
        {"Text16", "1a2.,-3", "12.3", 3}, {"Text16", "-1,5", "-1.5", 0}, {"Text18", "22,5", "22.5", 0},
    };
    for (const auto& r : rows) {
        Janela j;
        QLineEdit* e = j.caixa(r.controle);
        ASSERT_NE(e, nullptr) << r.controle;
        e->clear();
        QTest::keyClicks(e, QString::fromUtf8(r.digitado));
        EXPECT_EQ(e->text().toStdString(), r.fica) << r.controle << " " << r.digitado;
        EXPECT_EQ(j.dialogs.beeps, r.beeps) << r.controle << " " << r.digitado;
    }
}

TEST(UiKeyFilterWidgets, ARefusedKeyBeepsAndTheStatusBarSaysWhatTheBoxAccepts)
{
    const struct {
        const char *controle, *tecla, *barra;
    } rows[] = {
        {"Text1", "a", "Base (cm): só algarismos"},
        {"Text1", ",", "Base (cm): só algarismos"},
        {"Text18", "x", "Fck: algarismos e um ponto decimal (a vírgula vale como ponto)"},
        {"Text16", "+", "Nd: algarismos, um ponto decimal (a vírgula vale como ponto) e o sinal de menos no início"},
        {"Text7(2)", "5", "Bitola 16 mm: não se digita; com \"Automático\" desmarcado, um clique fixa a bitola"},
    };
    for (const auto& r : rows) {
        Janela j;
        QTest::keyClicks(j.caixa(r.controle), QString::fromUtf8(r.tecla));
        EXPECT_EQ(j.dialogs.beeps, 1) << r.controle;
        EXPECT_EQ(j.w.statusBar()->currentMessage().toStdString(), r.barra) << r.controle;
    }
}

TEST(UiKeyFilterWidgets, ResultBoxesTakeNoKeysAndBackspaceEditsInputs)
{
    Janela j;
    for (const char* nome : {"Text8", "Text9", "Text10", "Text11", "Text12", "Text13", "Text14", "Text19", "Text25",
                             "Text26", "Text27", "Text28", "Text29", "Text30"}) {
        QLineEdit* e = j.caixa(nome);
        ASSERT_NE(e, nullptr) << nome;
        e->setText(QStringLiteral("1.00"));
        QTest::keyClicks(e, QStringLiteral("9"));
        QTest::keyClick(e, Qt::Key_Backspace);
        EXPECT_EQ(e->text(), QStringLiteral("1.00")) << nome;
        EXPECT_TRUE(e->isReadOnly()) << nome;
    }
    QLineEdit* base = j.caixa("Text1");
    base->setText(QStringLiteral("205"));
    base->end(false);
    QTest::keyClick(base, Qt::Key_Backspace);
    EXPECT_EQ(base->text(), QStringLiteral("20"));
}

TEST(UiKeyFilterWidgets, APasteGoesThroughTheRuleOfTheBox)
{
    const struct {
        const char *controle, *antes, *colado, *depois;
        int beeps;
    } rows[] = {
        {"Text18", "", "40,5", "40.5", 0},
        {"Text3", "4", " 22,5", "422.5", 0},
        {"Text18", "", "1.234,5", "", 1},
        {"Text1", "", "40,5", "", 1},
    };
    for (const auto& r : rows) {
        Janela j;
        QApplication::clipboard()->setText(QString::fromUtf8(r.colado));
        QLineEdit* e = j.caixa(r.controle);
        e->setText(QString::fromUtf8(r.antes));
        e->end(false);
        QTest::keySequence(e, QKeySequence::Paste);
        EXPECT_EQ(e->text().toStdString(), r.depois) << r.controle << " " << r.colado;
        EXPECT_EQ(j.dialogs.beeps, r.beeps) << r.controle << " " << r.colado;
    }
}

TEST(UiKeyFilterWidgets, ListsCannotBeTypedInto)
{
    Janela j;
    for (const char* nome : {"Combo1", "Combo2", "Combo3", "Combo4", "Combo5", "Combo6", "Combo7"}) {
        auto* c = j.w.findChild<QComboBox*>(QString::fromUtf8(nome));
        ASSERT_NE(c, nullptr) << nome;
        EXPECT_FALSE(c->isEditable()) << nome;
        const QString antes = c->currentText();
        // Without the filter a letter jumps to the first entry that starts with it.
        QTest::keyClicks(c, QStringLiteral("TKNI1"));
        EXPECT_EQ(c->currentText(), antes) << nome;
    }
}
