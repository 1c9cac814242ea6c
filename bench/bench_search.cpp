// "Calcula &melhor solução": the whole search, from reading the window to the
// best solution calculated in the window, on three sections of growing size.

#include "window/program.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

void busca(benchmark::State& state, const char* base, const char* altura)
{
    pilarix::SilentDialogs dialogos;
    pilarix::Program p(dialogos);
    p.Form1.Text1.Text = base;
    p.Form1.Text2.Text = altura;
    pilarix::Program leitura = p;
    leitura.Ler02();
    const double candidatos =
        (leitura.nMaxAltura - 1) * (leitura.nMaxBase - 1) * static_cast<double>(leitura.IndiceEstriboMax);
    for (auto _ : state) {
        p.Command8_Click();
        benchmark::DoNotOptimize(p.Ordenadas.data());
    }
    state.counters["solucoes"] = p.NSolucoes;
    state.counters["candidatos"] = candidatos;
    state.SetLabel(p.Form1.Text30.Text + ", melhor " + p.Form1.Text4.Text + " x " + p.Form1.Text5.Text + ", "
                   + p.Form1.Text19.Text + " kg");
}

void BM_Busca_Padrao(benchmark::State& state) { busca(state, "20", "50"); }
BENCHMARK(BM_Busca_Padrao)->Unit(benchmark::kMillisecond);

void BM_Busca_40x120(benchmark::State& state) { busca(state, "40", "120"); }
BENCHMARK(BM_Busca_40x120)->Unit(benchmark::kMillisecond);

void BM_Busca_100x500(benchmark::State& state) { busca(state, "100", "500"); }
BENCHMARK(BM_Busca_100x500)->Unit(benchmark::kMillisecond);

} // namespace
