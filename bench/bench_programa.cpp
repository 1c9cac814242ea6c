// One whole "&Calcula" pass: reading, the section design and the detailing, as the
// window runs it, with the dialogs answered by policy.

#include "window/program.h"

#include <benchmark/benchmark.h>

namespace {

void passeCompleto(benchmark::State& state, pilarix::Program& p)
{
    p.Command1_Click(); // the first call settles d' through the cover dialog
    for (auto _ : state) {
        p.Command1_Click();
        benchmark::DoNotOptimize(p.AsNec);
        benchmark::DoNotOptimize(p.Rho);
    }
    state.counters["AsNec"] = p.AsNec;
    state.SetLabel(p.Form1.Text30.Text + ", zona " + p.Zona);
}

void BM_Programa0_Padrao(benchmark::State& state)
{
    pilarix::SilentDialogs dialogos;
    pilarix::Program p(dialogos);
    passeCompleto(state, p);
}
BENCHMARK(BM_Programa0_Padrao);

// A wall-like section with many layers: the strain field of every step of the
// searches runs over 20 layers.
void secaoParede(pilarix::Program& p)
{
    p.Form1.Text1.Text = "40";
    p.Form1.Text2.Text = "120";
    p.Form1.Text3.Text = "4";
    p.Form1.Text5.Text = "20";
}

void BM_Programa0_40x120_20Barras(benchmark::State& state)
{
    pilarix::SilentDialogs dialogos;
    pilarix::Program p(dialogos);
    secaoParede(p);
    passeCompleto(state, p);
}
BENCHMARK(BM_Programa0_40x120_20Barras);

// The same section under a force and a moment that call for steel (zone C): the
// searches run their marches over the 20 layers.
void BM_Programa0_40x120_20Barras_ZonaC(benchmark::State& state)
{
    pilarix::SilentDialogs dialogos;
    pilarix::Program p(dialogos);
    secaoParede(p);
    p.Form1.Text16.Text = "3000";
    p.Form1.Text17.Text = "90000";
    passeCompleto(state, p);
}
BENCHMARK(BM_Programa0_40x120_20Barras_ZonaC);

// The section design alone (the zone stages and the ratio), on the defaults.
void BM_Dimensionamento_Padrao(benchmark::State& state)
{
    pilarix::SilentDialogs dialogos;
    pilarix::Program p(dialogos);
    p.Command1_Click();
    for (auto _ : state) {
        p.SNiCrit06();
        p.SConstZ10();
        p.SMiACEC13();
        p.SMiZero14();
        p.Szona15();
        p.SRO16();
        benchmark::DoNotOptimize(p.Rho);
    }
}
BENCHMARK(BM_Dimensionamento_Padrao);

} // namespace
