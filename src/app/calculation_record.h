#pragma once
// One calculation, whole, as every front reads it: the window's result boxes and
// messages, the calculation report, the drawing, the JSON and the text of
// pilarix-cli. It holds the project the calculation was made from (as numbers, with
// the units and words the engineer chose), what the engine found (every case, both
// directions under 2014, the check by strain compatibility), the verdict, every
// dialog shown with its answer, and the list of the search it belongs to.
//
// The window's model makes it (Program::registroDoCalculo, window/record.cpp) from
// what the calculation left, at the moment a front asks: a front that reads it
// cannot show a figure the others do not, and cannot reach back into the window.
// No toolkit and no window here.

#include "app/dialog_record.h"
#include "app/project.h"
#include "engine/column.h"
#include "engine/column2014.h"
#include "engine/geometry.h"
#include "engine/method_state.h"
#include "engine/verification.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pilarix {

// What the window's reading found in its boxes, in the program's internal units (cm,
// kgf, kgf·cm, kgf/cm²), under the names the method gives them: the "estado" of the
// JSON shows them so.
struct WindowReading {
    double Base = 0, Altura = 0, Comprimento = 0;
    double nBase = 0;
    std::int16_t nAltura = 0;
    std::int16_t nMaxBase = 0;
    double nMaxAltura = 0;
    double Escala = 0;
    int MargemDesenho = 0;
    double OrigemX = 0, OrigemY = 0;
    double DiamAgregado = 0;
    double Nd = 0, Md = 0, Fck = 0, Es = 0, GamaC = 0, GamaS = 0;
    double Precisao = 0;
    int IndiceBitolaMax = 0;
    float IndiceEstriboMax = 0;
    std::string ErroEntrada;
    // units
    std::string UnidadeNome;
    double FatorUnidade = 0;
};

// One arrangement kept by the best-solution search.
struct SolutionRow {
    double peso = 0;          // PesoLong of the candidate, kg: the ordering key
    double nBase = 0;         // bars on each face of width b
    double nAltura = 0;       // bars on each face of depth h
    double IndiceEstribo = 0; // catalogue index of the stirrup, 1 to 4
    double DiamEstribo = 0;   // stirrup diameter, cm
    double dLinha = 0;        // the candidate's final d', cm, so that it recalculates exactly
    double LambdaC1 = 0;      // λ of the first reference field in the candidate's last pass
};

// What the calculation of several load cases found for each.
struct CaseOutcome {
    std::string name;
    double Nd = 0, Md = 0; // kgf, kgf·cm, before γn
    engine::Zone zone = engine::Zone::None;
    double betaX = 0, asNec = 0;
    double utilisation = 0; // on the detailed section; NaN where it could not be verified
    bool governing = false;
};

namespace app {

// The work a column belongs to, as "Dados da obra" holds it.
struct WorkHeading {
    std::string work, client, column, engineer, revision;
};

// A box of the window as the engineer typed it: its label, its text and the unit
// beside it. A calculation refused while reading keeps nothing else of its input.
struct TypedBox {
    std::string label, text, unit;
};

// A text box of the window as the calculation left it, by the name the program
// gives it; `highlighted` for the bar list's chosen bar.
struct Box {
    std::string name, text;
    bool highlighted = false;
};

// The words of the window's options, without their access-key marks, as the report
// names how a value was chosen.
struct OptionWords {
    std::string dLinhaFromCover;     // "d' automático f(cobrimento)"
    std::string tolerance10, tolerance5; // the two Δc options
    std::string stirrupPredefined, stirrupEconomic, stirrupManual;
    std::string stirrupsOfBarSteel;
};

// The project as the engineer wrote it, beside its numbers: the file, the heading,
// the name the list gives the rule set, d' as typed, the boxes as typed and the
// words of the options.
struct ProjectText {
    std::string file;       // the project file's name; empty before one was saved
    WorkHeading heading;
    std::string ruleSet;    // the rule set's name as the list spells it
    // d' as the box held it before the calculation rewrote it; none when it was not
    // rewritten.
    std::optional<std::string> dLinhaAsTyped;
    std::vector<TypedBox> asTyped;
    OptionWords words;
};

struct CalculationRecord {
    unsigned number = 0; // the window's count of calculations: 0 before the first
    Project project;     // what the calculation ran on
    ProjectText text;
    WindowReading reading;

    // What the calculation found.
    engine::MethodState method;
    std::optional<engine::ColumnResult> result;
    std::optional<engine::Verification> verification;
    std::optional<engine::Column2014Result> result2014;
    std::vector<CaseOutcome> cases; // every case of a calculation with several; empty with one
    std::optional<engine::SectionGeometry> drawing;
    std::vector<DialogRecord> transcript; // every dialog, in order, with its answer
    std::vector<std::string> corrections; // what the reading rewrote in the boxes
    std::string verdict;                  // the "Erros" box: "Ok", "erro", or empty before any
    std::vector<Box> boxes;               // every text box, in the order of their numbers

    // The search the window's arrangement came from: its list by weight, how many it
    // found, and which row is on show (1-based; 0 none).
    std::vector<SolutionRow> solutions;
    double solutionsFound = 0;
    int solutionShown = 0;

    bool calculated() const { return !verdict.empty(); }
    // The case the column was designed for, with several; none with one.
    const CaseOutcome* governingCase() const
    {
        if (cases.size() < 2)
            return nullptr;
        for (const auto& c : cases)
            if (c.governing)
                return &c;
        return nullptr;
    }
    // The row of the search's list the window's arrangement is, when it is still the
    // one the search put in (bars per face, stirrup and the candidate's d').
    const SolutionRow* solutionOnShow() const;
};

// A caption without its access-key mark, as the window shows it: "&1 - Ignorar" is
// "1 - Ignorar", "&&" an ampersand.
std::string withoutAccessKey(std::string_view caption);

} // namespace app
} // namespace pilarix
