#pragma once
// The questions a calculation asks in its middle, and the messages it tells as they
// happen. Each front answers: the window with its modal dialogs, the command line by
// the policy chosen on it (--cobrimento, --estribo), the tests with fixed answers.

#include "engine/checks.h"

#include <array>
#include <optional>
#include <string>

namespace pilarix::engine {

// The cover of the arrangement breaks a rule of NBR 6118, 7.4.7: correct it (the
// cover and d' follow, and the pass runs again where d' changed) or keep the
// arrangement and mark the calculation as failed.
enum class CoverRule {
    AggregateSize,     // the largest aggregate exceeds 1.2 times the nominal cover (7.4.7.6)
    BelowNominal,      // the effective cover is below the nominal cover (7.4.7)
    BelowBarDiameter,  // the cover of the longitudinal bar is below its diameter (7.4.7.5)
};

struct CoverQuestion {
    CoverRule rule;
    std::string message;
    std::string_view clause;
    // The caption of the first button where the question names one; otherwise the
    // dialog keeps the caption it had.
    std::optional<std::string_view> correctCaption;
};

enum class CoverAnswer { Correct, Ignore };

// "Escolha dos estribos": the stirrup the standard asks for, and, for stirrups of the
// bars' own steel, thinner stirrups at a closer spacing. Options 0 to `count` − 1
// are offered (the thickest first); option 4 is always "the least steel per metre".
struct StirrupQuestion {
    std::string heading;     // "A bitola do estribo deverá ser de ..."
    std::string explanation; // " Porém, se os estribos ..."
    std::array<std::string, 5> options;
    int count = 0;
};

inline constexpr int kLeastSteelOption = 4;

class Questions {
public:
    virtual ~Questions() = default;
    virtual CoverAnswer askCover(const CoverQuestion& question) = 0;
    // The option chosen, 0 to 4; an option that was not offered counts as option 4.
    virtual int chooseStirrup(const StirrupQuestion& question) = 0;
    // A check of the standard that failed, told when it fails.
    virtual void tell(const Check&) {}
};

// Answers every question the same way and keeps nothing: for the search, the tests
// and the benchmarks.
class FixedAnswers : public Questions {
public:
    explicit FixedAnswers(CoverAnswer cover = CoverAnswer::Correct, int stirrupOption = kLeastSteelOption)
        : cover_(cover), stirrup_(stirrupOption)
    {
    }
    CoverAnswer askCover(const CoverQuestion&) override { return cover_; }
    int chooseStirrup(const StirrupQuestion&) override { return stirrup_; }

private:
    CoverAnswer cover_;
    int stirrup_;
};

} // namespace pilarix::engine
