// The window's command line: a project given alone is opened (what a double click in
// the file manager sends, through the desktop entry's "Exec=pilarix %f"), and
// "--screenshot" keeps its own arguments.

#include "ui/arguments.h"

#include <gtest/gtest.h>

using pilarix::ui::leArgumentos;

TEST(UiArguments, NothingOpensTheWindowAlone)
{
    const auto a = leArgumentos({});
    EXPECT_TRUE(a.valido);
    EXPECT_TRUE(a.projeto.isEmpty());
    EXPECT_TRUE(a.imagem.isEmpty());
}

TEST(UiArguments, AProjectAloneIsOpenedInTheWindow)
{
    // A file manager passes the whole path, blanks and accents included.
    const auto a = leArgumentos({QStringLiteral("/home/ana/Pilares do prédio/P1 térreo.txt")});
    EXPECT_TRUE(a.valido);
    EXPECT_EQ(a.projeto, QStringLiteral("/home/ana/Pilares do prédio/P1 térreo.txt"));
    EXPECT_TRUE(a.imagem.isEmpty()) << "a project alone opens the window, it takes no picture";
}

TEST(UiArguments, ScreenshotKeepsItsPictureProjectAndScreen)
{
    const auto a = leArgumentos({QStringLiteral("--screenshot"), QStringLiteral("janela.png"),
                                 QStringLiteral("projeto.txt"), QStringLiteral("--tela"), QStringLiteral("1366x768")});
    ASSERT_TRUE(a.valido);
    EXPECT_EQ(a.imagem, QStringLiteral("janela.png"));
    EXPECT_EQ(a.projeto, QStringLiteral("projeto.txt"));
    EXPECT_EQ(a.tela, QSize(1366, 768));

    // --tela may come before the project, and both may be left out.
    const auto b = leArgumentos({QStringLiteral("--screenshot"), QStringLiteral("janela.png"), QStringLiteral("--tela"),
                                 QStringLiteral("800x600"), QStringLiteral("projeto.txt")});
    ASSERT_TRUE(b.valido);
    EXPECT_EQ(b.projeto, QStringLiteral("projeto.txt"));
    EXPECT_EQ(b.tela, QSize(800, 600));
    // --dialogo: a picture of one of the two dialogs a calculation fills.
    for (const char* dialogo : {"diagrama", "casos"}) {
        const auto d = leArgumentos({QStringLiteral("--screenshot"), QStringLiteral("d.png"), QStringLiteral("--dialogo"),
                                     QString::fromLatin1(dialogo), QStringLiteral("projeto.txt")});
        ASSERT_TRUE(d.valido) << dialogo;
        EXPECT_EQ(d.dialogo, QString::fromLatin1(dialogo));
        EXPECT_EQ(d.projeto, QStringLiteral("projeto.txt"));
    }
    const auto c = leArgumentos({QStringLiteral("--screenshot"), QStringLiteral("janela.png")});
    ASSERT_TRUE(c.valido);
    EXPECT_TRUE(c.projeto.isEmpty());
    EXPECT_FALSE(c.tela.isValid());
}

TEST(UiArguments, WhatTheWindowCannotDoIsRefused)
{
    const QList<QStringList> recusados{
        {QStringLiteral("a.txt"), QStringLiteral("b.txt")},         // one window, one project
        {QStringLiteral("--json")},                                 // pilarix-cli's, not the window's
        {QStringLiteral("--tela"), QStringLiteral("800x600")},      // a screen only for a picture
        {QStringLiteral("--screenshot")},                           // a picture needs its file
        {QStringLiteral("--screenshot"), QStringLiteral("a.png"), QStringLiteral("p.txt"), QStringLiteral("q.txt")},
        {QStringLiteral("--screenshot"), QStringLiteral("a.png"), QStringLiteral("--tela"), QStringLiteral("grande")},
        {QStringLiteral("--screenshot"), QStringLiteral("a.png"), QStringLiteral("--tela")},
        {QStringLiteral("--screenshot"), QStringLiteral("a.png"), QStringLiteral("--dialogo"), QStringLiteral("sobre")},
        {QStringLiteral("--screenshot"), QStringLiteral("a.png"), QStringLiteral("--dialogo")},
    };
    for (const auto& args : recusados)
        EXPECT_FALSE(leArgumentos(args).valido) << args.join(QLatin1Char(' ')).toStdString();
}
