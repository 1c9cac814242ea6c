#pragma once
// pilarix-cli: the calculation of the main window without a screen, for scripts,
// tests and comparisons. It drives the same Program through the same form model.

#include "cli/memorial.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <nlohmann/json.hpp>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace pilarix {

// Writes the section's drawing to a file in the format of its name. The command
// line writes DXF itself; SVG and PNG need the Qt painter, which pilarix-cli's main
// hands in where it was built with it.
using DrawingWriter = std::function<bool(const engine::SectionGeometry& geometry, const std::string& path,
                                         double scale, std::string& error)>;

// Runs the command line; returns the exit status (0 ran, 2 bad arguments or file).
int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err,
           const DrawingWriter& writer = {}, const ReportWriter& reportWriter = {});

// Every JSON of a run is made from the record of its calculation.

// The calculation state, keyed by field name.
nlohmann::ordered_json estadoJson(const app::CalculationRecord& record);

// The object "verificacaoObliqua": both directions together, in the units of "estado".
nlohmann::ordered_json obliquaJson(const engine::ObliqueCheck& check);
// The object "norma2014" of a calculation by ABNT NBR 6118:2014.
nlohmann::ordered_json norma2014Json(const app::CalculationRecord& record, const engine::Column2014Result& r);

// The whole document of --json: "Erros", "caixas", "estado", the messages of the
// calculation and, after a search, "solucoes".
nlohmann::ordered_json documentJson(const app::CalculationRecord& record, bool melhor);

// The check of the detailed column by strain compatibility, as "verificacao" of --json.
nlohmann::ordered_json verificacaoJson(const engine::Verification& verification);

// Every dialog of the run, in order, as the "mensagens" of --json.
nlohmann::ordered_json mensagensJson(const std::vector<DialogRecord>& records);

// The text of every text box of the main window, keyed by control name.
nlohmann::ordered_json caixasJson(const app::CalculationRecord& record);

} // namespace pilarix
