// The calculation report as a reader of the PDF finds it: poppler's pdftotext,
// pdfinfo, pdffonts and pdftoppm read the file back, not what the painter meant.

#include "base/number_text.h"
#include "cli/cli.h"
#include "cli/controls_by_name.h"
#include "render/report_pdf.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace pilarix;

namespace {

const report::ReportStamp kStamp{"01/02/2025 08:30", std::string(report::programVersion())};

using Sets = std::vector<std::pair<std::string, std::string>>;

struct Column {
    explicit Column(const Sets& sets = {})
    {
        for (const auto& [name, value] : sets) {
            std::string error;
            EXPECT_TRUE(setControlByName(program, name, value, error)) << name << ": " << error;
        }
        program.Command1_Click();
    }
    PolicyDialogs dialogs;
    Program program{dialogs};
};

// What a poppler tool prints; the test fails if it cannot run.
std::string poppler(const QString& tool, const QStringList& args)
{
    QProcess p;
    p.start(tool, args);
    if (!p.waitForFinished(20000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        ADD_FAILURE() << tool.toStdString() << " did not run (poppler-utils installed?): "
                      << p.readAllStandardError().toStdString();
        return {};
    }
    return p.readAllStandardOutput().toStdString();
}

std::string pdfText(const QString& path) { return poppler("pdftotext", {"-layout", path, "-"}); }

// Runs of blanks and line ends as one space: -layout breaks long lines and spreads
// columns apart.
std::string flat(const std::string& text)
{
    return QString::fromStdString(text).simplified().toStdString();
}

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t n = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size()))
        ++n;
    return n;
}

// Each part in the order given; with `once`, each only once (no text written twice).
void expectInOrder(const std::string& text, const std::vector<std::string>& parts, bool once = true)
{
    std::size_t from = 0;
    for (const auto& raw : parts) {
        const std::string part = flat(raw);
        if (once) {
            EXPECT_EQ(count(text, part), 1u) << part;
        }
        const auto at = text.find(part, from);
        ASSERT_NE(at, std::string::npos) << "missing or out of order: " << part;
        from = at + part.size();
    }
}

struct Written {
    QString path;
    std::string text; // flattened
    std::string pages; // as pdftotext -layout gives them, form feeds between pages
};

Written write(const Program& program, const QTemporaryDir& dir, const char* name,
              const report::ReportStamp& stamp = kStamp)
{
    Written w;
    w.path = dir.filePath(QString::fromUtf8(name));
    std::string error;
    EXPECT_TRUE(render::writeReport(program.registroDoCalculo(), w.path.toStdString(), stamp, error)) << error;
    w.pages = pdfText(w.path);
    w.text = flat(w.pages);
    return w;
}

} // namespace

TEST(ReportPdf, DefaultColumnHasEveryNumberAndEveryMessageInOrder)
{
    QTemporaryDir dir;
    const Column c;
    const auto& f = c.program.Form1;
    const Written w = write(c.program, dir, "padrao.pdf");
    std::vector<std::string> parts{
        "Projeto: sem título",
        "Data e hora: " + kStamp.dateTime,
        "Programa: Pilarix " + kStamp.version,
        "Seção b × h: 20 × 50 cm",
        "caixa d′ vazia (0 cm); reescrito pela correção do cobrimento para " + f.Text3.Text + " cm",
        "Nd: 400 KN (400.0 kN) Md: 10000 KN.cm (100.00 kN·m)",
        "σcd = 0.85 fcd: 11.333 MPa",
        "Aço da armadura: Aço CA-50A",
        "Zona de solicitação: 2 (C)",
        "βx = x / h: " + f.Text28.Text,
        "As,nec: " + f.Text10.Text + " cm² — As,compat = 6.57 cm²",
        "Barras longitudinais: 8 φ 12.5 mm (1/2'')",
        "As,ef (efetiva): " + f.Text11.Text + " cm²",
        "Estribo: " + f.Text27.Text,
        "Peso do aço longitudinal: " + f.Text19.Text + " kg",
    };
    expectInOrder(w.text, parts);
    parts.clear();
    for (const auto& m : c.program.MensagensDoCalculo) {
        parts.push_back(m.mensagem);
        parts.push_back("Resposta: 1 - Utilizar cobrimento mínimo");
    }
    for (const char* p : {"Resultado: Ok", "M_Rd em N_Sd: 11845 KN.cm (118.45 kN·m)", "Utilização: 83.5 %",
                          "N (KN)", "Sd: 83.5 %", "M (KN.cm)", "N3= 8 ø 12.5 (2 x 4)", "Seção transversal na escala 1:5"})
        parts.emplace_back(p);
    expectInOrder(w.text.substr(w.text.find("3. Detalhamento")), parts, false);
    for (const auto& m : c.program.MensagensDoCalculo)
        EXPECT_EQ(count(w.text, m.mensagem), 1u) << m.mensagem;
    EXPECT_EQ(count(w.text, "Item 7.4.7"), c.program.MensagensDoCalculo.size());
    EXPECT_EQ(count(w.text, "erro"), 0u);
}

TEST(ReportPdf, IsA4WithItsNumberAndHeadingOnEveryPageAndEmbeddedFonts)
{
    QTemporaryDir dir;
    const Column c;
    const Written w = write(c.program, dir, "paginas.pdf");
    const QString info = QString::fromStdString(poppler("pdfinfo", {w.path}));
    const QRegularExpression a4(QStringLiteral("Page size:\\s+595(\\.\\d+)? x 84[12](\\.\\d+)? pts \\(A4\\)"));
    EXPECT_TRUE(info.contains(a4)) << info.toStdString();
    const auto pagesMatch = QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(info);
    ASSERT_TRUE(pagesMatch.hasMatch());
    const int pages = pagesMatch.captured(1).toInt();
    EXPECT_GE(pages, 2);

    const QStringList sheets = QString::fromStdString(w.pages).split(QChar('\f'), Qt::SkipEmptyParts);
    ASSERT_GE(sheets.size(), pages);
    for (int i = 0; i < pages; ++i) {
        const QString sheet = sheets[i].simplified();
        SCOPED_TRACE(i + 1);
        // -layout may close up "1 / 3" into "1/3".
        EXPECT_TRUE(sheet.contains(QRegularExpression(QStringLiteral("\\b%1 ?/ ?%2$").arg(i + 1).arg(pages))))
            << sheet.right(40).toStdString();
        EXPECT_TRUE(sheet.startsWith(QStringLiteral("Memorial de cálculo: sem título")));
        EXPECT_TRUE(sheet.contains(QString::fromStdString("Pilarix " + kStamp.version)));
        EXPECT_TRUE(sheet.contains(QString::fromStdString(kStamp.dateTime)));
    }

    // Real text in fonts carried by the file.
    const QStringList fonts = QString::fromStdString(poppler("pdffonts", {w.path})).split('\n', Qt::SkipEmptyParts);
    ASSERT_GT(fonts.size(), 2);
    for (int i = 2; i < fonts.size(); ++i)
        EXPECT_TRUE(fonts[i].contains(QRegularExpression(QStringLiteral("\\byes\\s+\\w+\\s+yes\\b"))))
            << fonts[i].toStdString();
}

TEST(ReportPdf, FailedRunsAreReportedWithEveryMessageInOrder)
{
    const std::vector<std::pair<const char*, Sets>> cases{
        {"pilar-parede 15 x 90", {{"Text1", "15"}, {"Text2", "90"}}},
        {"espaçamento", {{"Text2", "70"}, {"Text4", "2"}, {"Text5", "2"}, {"Text16", "100"}}},
        {"fck zero", {{"Text18", "0"}}},
    };
    QTemporaryDir dir;
    for (const auto& [name, sets] : cases) {
        SCOPED_TRACE(name);
        const Column c(sets);
        ASSERT_EQ(c.program.Form1.Text30.Text, "erro");
        const Written w = write(c.program, dir, "falha.pdf");
        std::vector<std::string> parts{"1. Dados"};
        for (const auto& m : c.program.MensagensDoCalculo) {
            EXPECT_EQ(count(w.text, m.mensagem), 1u) << m.mensagem;
            parts.push_back(m.mensagem);
            if (!m.item.empty())
                parts.push_back(m.item);
        }
        parts.emplace_back("Resultado: erro");
        expectInOrder(w.text, parts, false);
        // Each clause as often as the messages name it: none written twice.
        std::string clauses;
        for (const auto& m : c.program.MensagensDoCalculo)
            clauses += flat(m.item) + " | ";
        for (const auto& m : c.program.MensagensDoCalculo)
            if (!m.item.empty()) {
                EXPECT_EQ(count(w.text, flat(m.item)), count(clauses, flat(m.item))) << m.item;
            }
        EXPECT_EQ(count(w.text, "Resultado: Ok"), 0u);
    }
}

TEST(ReportPdf, FailedChecksStandOutInRed)
{
    // Pixels of the text's red, (190, 0, 0) softened by anti-aliasing.
    const auto reds = [](const QString& pdf, const QString& stem) {
        poppler("pdftoppm", {"-r", "40", "-png", "-f", "1", "-l", "1", pdf, stem});
        QDir d(QFileInfo(stem).absolutePath());
        const QStringList pngs = d.entryList({QFileInfo(stem).fileName() + "*.png"});
        EXPECT_EQ(pngs.size(), 1);
        const QImage image(d.filePath(pngs.value(0)));
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor c = image.pixelColor(x, y);
                n += c.red() > 120 && c.green() < 90 && c.blue() < 90;
            }
        return n;
    };
    report::ReportData r;
    r.project = "teste";
    r.stamp = kStamp;
    r.verdict = "Ok";
    r.messages.push_back({report::Message::Kind::Error, "Mensagem de erro", "Uma verificação que falhou",
                          "Item 18.4.2.2", {}, {}, false});
    QTemporaryDir dir;
    std::string error;
    ASSERT_TRUE(render::writeReportPdf(r, dir.filePath("ok.pdf").toStdString(), error)) << error;
    EXPECT_EQ(reds(dir.filePath("ok.pdf"), dir.filePath("ok")), 0);

    r.verdict = "erro";
    r.messages.back().failed = true;
    ASSERT_TRUE(render::writeReportPdf(r, dir.filePath("erro.pdf").toStdString(), error)) << error;
    EXPECT_GT(reds(dir.filePath("erro.pdf"), dir.filePath("erro")), 50);
}

TEST(ReportPdf, SameProjectGivesTheSameReportButForTheStamp)
{
    QTemporaryDir dir;
    const Sets sets{{"Text16", "650"}, {"Text4", "3"}, {"Option2", "True"}};
    const Column first(sets), second(sets);
    const Written a = write(first.program, dir, "a.pdf");
    const Written b = write(second.program, dir, "b.pdf");
    EXPECT_EQ(a.pages, b.pages);

    const report::ReportStamp later{"28/12/2026 17:45", kStamp.version};
    const Written c = write(second.program, dir, "c.pdf", later);
    EXPECT_NE(c.pages, a.pages);
    QString restamped = QString::fromStdString(c.pages);
    restamped.replace(QString::fromStdString(later.dateTime), QString::fromStdString(kStamp.dateTime));
    EXPECT_EQ(restamped.toStdString(), a.pages);
}

TEST(ReportPdf, RefusedWithTheFileAndTheReason)
{
    QTemporaryDir dir;
    std::string error;
    {
        PolicyDialogs dialogs;
        const Program none(dialogs);
        const QString path = dir.filePath("nada.pdf");
        EXPECT_FALSE(render::writeReport(none.registroDoCalculo(), path.toStdString(), kStamp, error));
        EXPECT_NE(error.find(path.toStdString()), std::string::npos) << error;
        EXPECT_NE(error.find("não há cálculo"), std::string::npos) << error;
        EXPECT_FALSE(QFile::exists(path));
    }
    const Column c;
    const std::vector<std::pair<std::string, std::string>> places{
        {dir.filePath("falta/pasta/m.pdf").toStdString(), "não existe"},
        {dir.path().toStdString(), "é uma pasta"},
        {"", "nome do arquivo do memorial"},
    };
    for (const auto& [path, reason] : places) {
        error.clear();
        EXPECT_FALSE(render::writeReport(c.program.registroDoCalculo(), path, kStamp, error)) << path;
        EXPECT_FALSE(error.empty());
        EXPECT_NE(error.find(path), std::string::npos) << error;
        EXPECT_NE(error.find(reason), std::string::npos) << error;
    }
}

TEST(ReportPdf, CommandLineWritesTheReportOfItsRunAndSearch)
{
    QTemporaryDir dir;
    const ReportWriter writer = [](const app::CalculationRecord& p, const std::string& path, std::string& error) {
        return render::writeReport(p, path, kStamp, error);
    };
    const std::string path = dir.filePath("melhor.pdf").toStdString();
    std::ostringstream out, err;
    ASSERT_EQ(runCli({"--sem-padrao", "--melhor", "--memorial", path}, out, err, {}, writer), 0) << err.str();
    const std::string text = flat(pdfText(QString::fromStdString(path)));
    expectInOrder(text, {"Barras por face: 3 nas faces de largura b, 3 nas faces de altura h",
                         "o da solução nº 1 da busca da melhor solução, que o achou pelo cobrimento", "Resultado: Ok",
                         "Soluções da busca da melhor solução", "1 15.12 3 3 5", "40 30.24 3 7 10"});
    // The table's heading is repeated on every page it runs over.
    EXPECT_GE(count(text, "Nº Peso (kg) Barras nas faces b Barras nas faces h Estribo (mm)"), 1u);

    std::ostringstream out2, err2;
    const std::string bad = dir.filePath("falta/m.pdf").toStdString();
    EXPECT_EQ(runCli({"--sem-padrao", "--memorial", bad}, out2, err2, {}, writer), 2);
    EXPECT_EQ(err2.str().rfind("pilarix-cli: Não foi possível gravar o arquivo \"" + bad + "\"", 0), 0u) << err2.str();
    EXPECT_EQ(count(err2.str(), "\n"), 1u);
}

TEST(ReportPdf, A2014ColumnHasItsRuleSetSlendernessObliqueCheckAndMxMyPicture)
{
    QTemporaryDir dir;
    const Column c({{"Norma", "2014"}, {"Text1", "50"}, {"Text2", "20"}, {"Text3", "4"}, {"Text4", "4"},
                    {"Text5", "2"}, {"Text16", "1400"}, {"Text17", "0"}, {"Text18", "30"}, {"Text21", "1.4"},
                    {"Text23", "280"}, {"MyTopo", "3000"}});
    ASSERT_TRUE(c.program.Resultado2014 && c.program.Resultado2014->oblique);
    const auto& o = *c.program.Resultado2014->oblique;
    const Written w = write(c.program, dir, "norma2014.pdf");
    expectInOrder(w.text, {"ABNT NBR 6118:2014: esbeltez e 2ª ordem", "Norma: ABNT NBR 6118:2014",
                           "Esbeltez e efeitos locais de 2ª ordem (ABNT NBR 6118:2014)", "item 13.2.3",
                           "Direção de h", "λ = 3.46 ℓe / h: 48.44", "M1d,mín = Nd (1.5 + 0.03 h): 2940 KN.cm",
                           "M2d: 2379 KN.cm", "Direção de b", "Flexão composta oblíqua (ABNT NBR 6118:2014)",
                           "Utilização (o ponto mais solicitado): " + Format(100 * o.utilisation, "##0.0") + " %",
                           "Margem da envoltória (contorno / elipse, a menor): " + Format(o.envelope.margin, "##0.000"),
                           "Contorno resistente Mx–My"},
                   false);
    EXPECT_EQ(w.text.find("Projeto de revisão da NB1 / 2001"), std::string::npos);
}

TEST(ReportPdf, A2001ReportHasNothingOf2014)
{
    QTemporaryDir dir;
    const Column c;
    const Written w = write(c.program, dir, "padrao2001.pdf");
    for (const char* part : {"Norma:", "ABNT NBR 6118:2014", "Mx–My", "Esbeltez", "oblíqua"})
        EXPECT_EQ(w.text.find(part), std::string::npos) << part;
    EXPECT_NE(w.text.find("NBR 6118 (Projeto de revisão da NB1 / 2001), método das zonas de solicitação."),
              std::string::npos);
}
