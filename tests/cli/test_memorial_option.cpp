// pilarix-cli --memorial: the report goes through the writer main hands in; without
// one (a build without Qt Gui) it says so and ends with status 2.

#include "cli/cli.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace pilarix;

TEST(CliMemorial, WithoutTheQtWriterSaysSoInOneLine)
{
    std::ostringstream out, err;
    const int status = runCli({"--sem-padrao", "--memorial", "pilar.pdf"}, out, err);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(err.str(), "pilarix-cli: \"pilar.pdf\": o memorial de cálculo em PDF precisa do pilarix-cli feito com o "
                         "Qt (Qt Gui)\n");
    // The run itself still reports.
    EXPECT_NE(out.str().find("Erros: Ok"), std::string::npos);
}

TEST(CliMemorial, TheWriterGetsTheRunAndItsFailureEndsWithStatus2)
{
    std::string seenVerdict, seenPath;
    const ReportWriter writer = [&](const Program& p, const std::string& path, std::string& error) {
        seenVerdict = p.Form1.Text30.Text;
        seenPath = path;
        error = "Não foi possível gravar o arquivo \"" + path + "\": motivo.";
        return false;
    };
    std::ostringstream out, err;
    const int status = runCli({"--sem-padrao", "--set", "Text1=15", "--set", "Text2=90", "--memorial", "m.pdf"}, out,
                              err, {}, writer);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(seenVerdict, "erro");
    EXPECT_EQ(seenPath, "m.pdf");
    EXPECT_EQ(err.str(), "pilarix-cli: Não foi possível gravar o arquivo \"m.pdf\": motivo.\n");

    std::ostringstream out2, err2;
    EXPECT_EQ(runCli({"--sem-padrao", "--memorial"}, out2, err2, {}, writer), 2);
    EXPECT_NE(err2.str().find("--memorial precisa de um valor"), std::string::npos) << err2.str();
}
