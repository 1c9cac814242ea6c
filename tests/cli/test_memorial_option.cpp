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
    // The run itself still reports; a --memorial without a name is refused.
    EXPECT_NE(out.str().find("Erros: Ok"), std::string::npos);
    std::ostringstream out2, err2;
    EXPECT_EQ(runCli({"--sem-padrao", "--memorial"}, out2, err2), 2);
    EXPECT_NE(err2.str().find("--memorial precisa de um valor"), std::string::npos) << err2.str();
}
