// The calculation report of the default column, as "Memorial de cálculo (PDF)..."
// makes it from the window's last calculation: its contents, then the laid-out PDF
// (in memory, and written to a file). Target: the whole report within 300 ms.

#include "render/report_pdf.h"
#include "report/report_data.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <QDir>
#include <QFile>

#include <benchmark/benchmark.h>

namespace {

using namespace pilarix;

const report::ReportStamp kStamp{"01/02/2025 08:30", std::string(report::programVersion())};

void BM_Memorial_Dados(benchmark::State& state)
{
    PolicyDialogs dialogs;
    Program p(dialogs);
    p.Command1_Click();
    for (auto _ : state) {
        report::ReportData r;
        std::string error;
        benchmark::DoNotOptimize(report::buildReport(p.registroDoCalculo(), kStamp, r, error));
        benchmark::DoNotOptimize(r.messages.data());
    }
}
BENCHMARK(BM_Memorial_Dados)->Unit(benchmark::kMicrosecond);

void BM_Memorial_Pdf(benchmark::State& state)
{
    PolicyDialogs dialogs;
    Program p(dialogs);
    p.Command1_Click();
    std::size_t bytes = 0;
    for (auto _ : state) {
        report::ReportData r;
        std::string error;
        report::buildReport(p.registroDoCalculo(), kStamp, r, error);
        const QByteArray pdf = render::reportPdf(r, error);
        bytes = static_cast<std::size_t>(pdf.size());
        benchmark::DoNotOptimize(pdf.data());
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_Memorial_Pdf)->Unit(benchmark::kMillisecond);

// After "Calcula melhor solução": the report lists the 40 lightest arrangements.
// Target: within 300 ms as the report without them.
void BM_Memorial_PdfComBusca(benchmark::State& state)
{
    PolicyDialogs dialogs;
    Program p(dialogs);
    p.Command8_Click();
    for (auto _ : state) {
        report::ReportData r;
        std::string error;
        report::buildReport(p.registroDoCalculo(), kStamp, r, error);
        if (r.solutions.empty())
            state.SkipWithError("the search put no list in the report");
        const QByteArray pdf = render::reportPdf(r, error);
        benchmark::DoNotOptimize(pdf.data());
    }
}
BENCHMARK(BM_Memorial_PdfComBusca)->Unit(benchmark::kMillisecond);

void BM_Memorial_Arquivo(benchmark::State& state)
{
    PolicyDialogs dialogs;
    Program p(dialogs);
    p.Command1_Click();
    const std::string path = QDir::temp().filePath(QStringLiteral("pilarix_bench_memorial.pdf")).toStdString();
    for (auto _ : state) {
        std::string error;
        if (!render::writeReport(p.registroDoCalculo(), path, kStamp, error))
            state.SkipWithError(error.c_str());
    }
    QFile::remove(QString::fromStdString(path));
}
BENCHMARK(BM_Memorial_Arquivo)->Unit(benchmark::kMillisecond);

} // namespace
