// The benchmarks' entry point where the report is measured: its PDF needs a Qt
// application, and that application must outlive every benchmark and be gone
// before Qt's own statics are, so it lives on main's stack rather than in a static.

#include <QGuiApplication>

#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
