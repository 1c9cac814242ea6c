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

TEST(UiKeyFilterRules, ACommaIsTheDecimalPointWhereTheBoxTakesDecimals)
{
    const struct {
        const char* nome;
        Teclas regra;
        const char* inserido;
        bool colado;
        const char *insere, *motivo; // nothing inserted: refused, for that reason
    } rows[] = {
        {"comma typed in a decimal box", Teclas::Decimal, ",", false, ".", ""},
        {"comma typed in a whole box stays a comma", Teclas::Inteiro, ",", false, ",", ""},
        {"a letter goes in, to be refused whole", Teclas::Decimal, "e", false, "e", ""},
        {"a minus sign goes in anywhere", Teclas::Decimal, "-", false, "-", ""},
        {"paste trimmed, decimal comma", Teclas::Decimal, " 40,5 ", true, "40.5", ""},
        {"paste with thousands points", Teclas::DecimalComSinal, "-1.350,0", true, "-1350.0", ""},
        {"paste of points only is the program's reading", Teclas::Decimal, "1.234", true, "1.234", ""},
        {"paste of a broken grouping kept as it is", Teclas::Decimal, "1.35,0", true, "1.35,0", ""},
        {"paste into a whole box only trimmed", Teclas::Inteiro, " 22,5", true, "22,5", ""},
        {"the bar list takes no typing", Teclas::Bitola, "5", false, nullptr, "não se digita"},
        {"a result box takes no typing", Teclas::Nenhuma, "5", false, nullptr, "não se digita"},
    };
    for (const auto& r : rows) {
        const auto i = ui::insercao(r.regra, QString::fromUtf8(r.inserido), r.colado);
        if (r.insere) {
            EXPECT_TRUE(i.motivo.isEmpty()) << r.nome << ": " << i.motivo.toStdString();
            EXPECT_EQ(i.texto.toStdString(), r.insere) << r.nome;
        } else {
            EXPECT_TRUE(i.motivo.startsWith(QString::fromUtf8(r.motivo))) << r.nome << ": " << i.motivo.toStdString();
        }
    }
}

using pilarix::test::Janela;

TEST(UiKeyFilterWidgets, WhatIsTypedStaysWholeAndATextTheBoxCannotReadIsMarked)
{
    const struct {
        const char *controle, *digitado, *fica;
        bool recusada;
    } rows[] = {
        {"Text1", "22,5", "22,5", true},     // a base of whole centimetres
        {"Text1", "25", "25", false},
        {"Text4", "3.5", "3.5", true},
        {"Text16", "1e9", "1e9", false},     // the program's reading: the range check names it
        {"Text16", "-1,5", "-1.5", false},
        {"Text18", "-30", "-30", true},      // fck has no sign
        {"Text18", "22,5", "22.5", false},
        {"Text18", "1.350,0", "1.350.0", true},
        {"Text17", "12a", "12a", true},
        {"Text3", "", "", false},            // empty d': the cover sets it
        {"Text23", "3,", "3.", false},
    };
    for (const auto& r : rows) {
        Janela j;
        QLineEdit* e = j.caixa(r.controle);
        ASSERT_NE(e, nullptr) << r.controle;
        e->clear();
        QTest::keyClicks(e, QString::fromUtf8(r.digitado));
        EXPECT_EQ(e->text().toStdString(), r.fica) << r.controle << " " << r.digitado;
        EXPECT_EQ(e->property("recusada").toBool(), r.recusada) << r.controle << " " << r.digitado;
        EXPECT_EQ(j.dialogs.beeps, 0) << "nothing typed into an input is thrown away";
        if (r.recusada) {
            EXPECT_TRUE(e->toolTip().contains(QStringLiteral("não serve"))) << e->toolTip().toStdString();
            EXPECT_FALSE(j.barra().empty()) << "the status bar says why";
        }
    }
}

TEST(UiKeyFilterWidgets, ARefusedKeyOfABoxThatTakesNoTypingBeepsAndSaysWhy)
{
    const struct {
        const char *controle, *tecla, *barra;
    } rows[] = {
        {"Text7(2)", "5", "Bitola 16 mm: não se digita; com \"Automático\" desmarcado, um clique fixa a bitola"},
        {"Text10", "5", "Resultado: não se digita"},
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
        bool recusada;
    } rows[] = {
        {"Text18", "", "40,5", "40.5", false},
        {"Text3", "4", " 22,5", "422.5", false},
        {"Text16", "", "1.350,0", "1350.0", false},
        {"Text1", "", "40,5", "40,5", true},
    };
    for (const auto& r : rows) {
        Janela j;
        QApplication::clipboard()->setText(QString::fromUtf8(r.colado));
        QLineEdit* e = j.caixa(r.controle);
        e->setText(QString::fromUtf8(r.antes));
        e->end(false);
        QTest::keySequence(e, QKeySequence::Paste);
        EXPECT_EQ(e->text().toStdString(), r.depois) << r.controle << " " << r.colado;
        EXPECT_EQ(e->property("recusada").toBool(), r.recusada) << r.controle << " " << r.colado;
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
