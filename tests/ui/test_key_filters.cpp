// Keystroke filters of the main window, per group of controls: what a user can type
// into each box, what is thrown away, and the beep of the bar list.

#include "window/policy_dialogs.h"
#include "ui/key_filters.h"
#include "ui/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
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
    const Row rows[] = {
        {"sides and counts", Teclas::Inteiro, "0123456789\b", ".-,+eE a"},
        {"decimals", Teclas::Decimal, "0123456789.\b", "-,+eE a"},
        {"axial force", Teclas::DecimalComSinal, "0123456789.-\b", ",+eE a"},
        {"bar list", Teclas::Bitola, "0123456789.\b", "-,+eE a"},
        {"results and lists", Teclas::Nenhuma, "", "0123456789.-,\b a"},
    };
    for (const auto& r : rows) {
        for (const char* c = r.aceitas; *c; ++c)
            EXPECT_TRUE(ui::teclaAceita(r.regra, QLatin1Char(*c))) << r.nome << " '" << *c << "'";
        for (const char* c = r.rejeitadas; *c; ++c)
            EXPECT_FALSE(ui::teclaAceita(r.regra, QLatin1Char(*c))) << r.nome << " '" << *c << "'";
    }
}

namespace {
struct Janela {
    PolicyDialogs dialogs;
    ui::MainWindow w{&dialogs};
    QLineEdit* caixa(const char* nome) { return w.findChild<QLineEdit*>(QString::fromUtf8(nome)); }
};
} // namespace

TEST(UiKeyFilterWidgets, TypingIntoEachBoxKeepsOnlyItsCharacters)
{
    struct Row {
        const char* controle;
        const char* digitado;
        const char* fica; // the box's text afterwards, typed into an empty box
        int beeps;
    };
    // The same keystrokes into every group: letters, comma, sign and point.
    const Row rows[] = {
        {"Text1", "1a2.,-3", "123", 0},  {"Text2", "1a2.,-3", "123", 0},  {"Text4", "1a2.,-3", "123", 0},
        {"Text5", "1a2.,-3", "123", 0},  {"Text31", "1a2.,-3", "123", 0}, {"Text32", "1a2.,-3", "123", 0},
        {"Text3", "1a2.,-3", "12.3", 0}, {"Text6", "1a2.,-3", "12.3", 0}, {"Text17", "1a2.,-3", "12.3", 0},
        {"Text18", "1a2.,-3", "12.3", 0}, {"Text20", "1a2.,-3", "12.3", 0}, {"Text21", "1a2.,-3", "12.3", 0},
        {"Text22", "1a2.,-3", "12.3", 0}, {"Text23", "1a2.,-3", "12.3", 0},
        {"Text16", "1a2.,-3", "12.-3", 0},
        {"Text7(0)", "1a2.,-3", "12.3", 3}, {"Text7(7)", "x", "", 1},
    };
    for (const auto& r : rows) {
        Janela j;
        QLineEdit* e = j.caixa(r.controle);
        ASSERT_NE(e, nullptr) << r.controle;
        e->clear();
        QTest::keyClicks(e, QString::fromUtf8(r.digitado));
        EXPECT_EQ(e->text().toStdString(), r.fica) << r.controle;
        EXPECT_EQ(j.dialogs.beeps, r.beeps) << r.controle;
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

TEST(UiKeyFilterWidgets, PasteCannotBringACommaIntoABox)
{
    Janela j;
    QApplication::clipboard()->setText(QStringLiteral("22,5"));
    QLineEdit* e = j.caixa("Text3");
    e->setText(QStringLiteral("4"));
    QTest::keySequence(e, QKeySequence::Paste);
    EXPECT_EQ(e->text(), QStringLiteral("4"));
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
