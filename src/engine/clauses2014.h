#pragma once
// The checks of the calculation cite the clauses of the rule set the project is
// calculated by. The stages are shared by both rule sets; under ABNT NBR 6118:2014
// their checks cite its clauses ("Item 18.4.2.2 da ABNT NBR 6118:2014").
//
//   clauseOf2014(id)          the 2014 clause of a check of the stages
//   with2014Clause(check)     the same check citing it
//   Questions2014(inner)      the questions and messages of a calculation passed on
//                             to `inner` with the 2014 clauses
//   fromCheck2014(check)      a rule of 2014's own as a check of the calculation

#include "engine/checks2014.h"
#include "engine/questions.h"

namespace pilarix::engine {

std::string_view clauseOf2014(CheckId id);
Check with2014Clause(Check check);
Check fromCheck2014(const Check2014& check);

class Questions2014 : public Questions {
public:
    explicit Questions2014(Questions& inner) : inner_(inner) {}
    CoverAnswer askCover(const CoverQuestion& question) override;
    int chooseStirrup(const StirrupQuestion& question) override { return inner_.chooseStirrup(question); }
    void tell(const Check& check) override { inner_.tell(with2014Clause(check)); }

private:
    Questions& inner_;
};

} // namespace pilarix::engine
