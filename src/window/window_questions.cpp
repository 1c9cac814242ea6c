#include "window/window_questions.h"

#include "window/program.h"

namespace pilarix {

engine::CoverAnswer PerguntasDaJanela::askCover(const engine::CoverQuestion& q)
{
    auto& f = p_.Form4;
    f.Label2.Caption = q.message;
    f.Label3.Caption = std::string(q.clause);
    // The first button's caption stays as it was last set where the question names none.
    if (q.correctCaption)
        f.Command2.Caption = std::string(*q.correctCaption);
    const int resposta = p_.dialogs().askCover(f);
    p_.MensagensDoCalculo.push_back({DialogRecord::Kind::Cover, f.Caption, f.Label2.Caption, f.Label3.Caption,
                                     f.Command2.Caption, {}, resposta,
                                     resposta == 1 ? f.Command2.Caption : f.Command1.Caption, {}});
    return resposta == 1 ? engine::CoverAnswer::Correct : engine::CoverAnswer::Ignore;
}

int PerguntasDaJanela::chooseStirrup(const engine::StirrupQuestion& q)
{
    auto& f = p_.Form7;
    f.Label1.Caption = q.heading;
    f.Label2.Caption = q.explanation;
    for (int i = 0; i < q.count && i < 4; ++i) {
        f.Option1[static_cast<std::size_t>(i)].Caption = q.options[static_cast<std::size_t>(i)];
        f.Option1[static_cast<std::size_t>(i)].Enabled = true;
    }
    for (auto& o : f.Option1)
        o.Value = false;
    p_.dialogs().chooseStirrup(f);
    // An option chosen while disabled counts as the last one, the least steel.
    int escolhida = engine::kLeastSteelOption;
    for (int i = 0; i < q.count && i < 4; ++i) {
        const auto& o = f.Option1[static_cast<std::size_t>(i)];
        if (o.Value && o.Enabled) {
            escolhida = i;
            break;
        }
    }
    // The record keeps the five options as the dialog had them, an unused one empty,
    // so that the answer is the place of the option selected; the text is that of
    // the option taken.
    int selecionada = escolhida;
    for (std::size_t i = 0; i < f.Option1.size(); ++i)
        if (f.Option1[i].Value) {
            selecionada = static_cast<int>(i);
            break;
        }
    DialogRecord r{DialogRecord::Kind::Stirrup, f.Caption, f.Label1.Caption + f.Label2.Caption, {}, {}, {},
                   selecionada, f.Option1[static_cast<std::size_t>(escolhida)].Caption, {}};
    for (const auto& o : f.Option1)
        r.opcoes.push_back(o.Caption);
    p_.MensagensDoCalculo.push_back(std::move(r));
    // The dialog is cleared for its next use.
    for (std::size_t i = 0; i < 4; ++i) {
        f.Option1[i].Caption.clear();
        f.Option1[i].Enabled = false;
    }
    return escolhida;
}

// The error state already holds the check when the calculation tells it; a check
// of the load cases is put there too, so that the dialog shows its own words.
void PerguntasDaJanela::tell(const engine::Check& c)
{
    // The checks of the verdict (the detailed section, the final arrangement) and the
    // note on a negative moment are not the method's: its variables keep what it
    // computed, and only the dialog shows them.
    switch (c.id) {
    case engine::CheckId::SectionNotCarried:
    case engine::CheckId::FinalCoverBelowNominal:
    case engine::CheckId::FinalCoverBelowBar:
    case engine::CheckId::FinalBarAboveEighthOfSide:
    case engine::CheckId::FinalStirrupTooThin:
    case engine::CheckId::FinalStirrupSpacing:
    case engine::CheckId::MomentAsMagnitude:
        p_.MostraMensagem(c.text, c.namesClause ? std::string(c.clause) : p_.Form2.Label2.Caption);
        p_.MensagensDoCalculo.back().check = c.id;
        return;
    default:
        break;
    }
    p_.metodo().MensagemErro = c.text;
    if (c.namesClause)
        p_.metodo().ItemNorma = std::string(c.clause);
    p_.MostraErro();
    p_.MensagensDoCalculo.back().check = c.id;
}

} // namespace pilarix
