#include "cli/batch.h"

#include "base/number_text.h"
#include "files/safe_write.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <ostream>
#include <thread>

namespace pilarix {

namespace {
const std::vector<std::string> kColunas{"arquivo", "b (cm)",  "h (cm)",  "barras",  "bitola (mm)", "AsNec (cm2)",
                                        "AsReal (cm2)", "aço (kg)", "estribo", "utilização", "caso", "resultado"};
} // namespace

BatchRow batchRow(const app::CalculationRecord& record, const std::string& file)
{
    BatchRow r;
    r.arquivo = file.empty() ? "(padrão)" : file;
    const auto& m = record.method;
    const WindowReading& p = record.reading;
    const auto& resultado = record.result;
    const bool detalhado = resultado && resultado->detailed;
    std::string caso;
    for (const auto& c : record.cases)
        if (c.governing)
            caso = c.name;
    r.valores = {Str(p.Base), Str(p.Altura), Str(p.nBase) + " x " + Str(p.nAltura),
                 detalhado ? Str(m.DiamLong * 10) : "",
                 resultado && resultado->designed ? Format(m.AsNec, "##0.00") : "",
                 detalhado ? Format(m.AsReal, "##0.00") : "",
                 detalhado ? Format(m.PesoLong, "##0.00") : "",
                 detalhado ? m.TextoEstribo : "",
                 record.verification && std::isfinite(record.verification->utilisation)
                     ? Format(100 * record.verification->utilisation, "##0.0") + " %"
                     : "",
                 caso};
    r.resultado = record.verdict.empty() ? "erro" : record.verdict;
    return r;
}

void runInParallel(std::size_t n, const std::function<void(std::size_t)>& job)
{
    const std::size_t workers = std::max<std::size_t>(1, std::min<std::size_t>(n, std::thread::hardware_concurrency()));
    std::atomic<std::size_t> next{0};
    std::vector<std::thread> pool;
    for (std::size_t w = 0; w < workers; ++w)
        pool.emplace_back([&] {
            for (std::size_t i = next++; i < n; i = next++)
                job(i);
        });
    for (auto& t : pool)
        t.join();
}

void writeBatchTable(const std::vector<BatchRow>& rows, std::ostream& out)
{
    std::vector<std::vector<std::string>> linhas{kColunas};
    for (const auto& r : rows) {
        std::vector<std::string> l{r.arquivo};
        l.insert(l.end(), r.valores.begin(), r.valores.end());
        l.resize(kColunas.size() - 1);
        l.push_back(r.resultado);
        linhas.push_back(l);
    }
    // Columns as wide as their widest text (counted in characters, not bytes).
    auto largura = [](const std::string& s) {
        return static_cast<std::size_t>(std::count_if(s.begin(), s.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    };
    std::vector<std::size_t> w(kColunas.size(), 0);
    for (const auto& l : linhas)
        for (std::size_t k = 0; k < l.size(); ++k)
            w[k] = std::max(w[k], largura(l[k]));
    for (const auto& l : linhas) {
        for (std::size_t k = 0; k < l.size(); ++k)
            out << l[k] << (k + 1 < l.size() ? std::string(w[k] - largura(l[k]) + 2, ' ') : "\n");
    }
}

bool writeBatchCsv(const std::string& path, const std::vector<BatchRow>& rows, std::ostream& err)
{
    auto campo = [](std::string s) {
        // A field holding the separator or a quote goes in quotes.
        if (s.find_first_of(";\"\n") == std::string::npos)
            return s;
        std::string q = "\"";
        for (const char c : s)
            q += c == '"' ? std::string("\"\"") : std::string(1, c);
        return q + "\"";
    };
    std::string f;
    for (std::size_t k = 0; k < kColunas.size(); ++k)
        f += kColunas[k] + (k + 1 < kColunas.size() ? ";" : "\r\n");
    for (const auto& r : rows) {
        std::vector<std::string> l{r.arquivo};
        l.insert(l.end(), r.valores.begin(), r.valores.end());
        l.resize(kColunas.size() - 1);
        l.push_back(r.resultado);
        for (std::size_t k = 0; k < l.size(); ++k)
            f += campo(l[k]) + (k + 1 < l.size() ? ";" : "\r\n");
    }
    std::string error;
    if (!files::writeFileWhole(path, f, error)) {
        err << "pilarix-cli: " << error << "\n";
        return false;
    }
    return true;
}

} // namespace pilarix
