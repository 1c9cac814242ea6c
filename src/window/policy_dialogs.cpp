#include "window/policy_dialogs.h"

namespace pilarix {

void PolicyDialogs::showError(const Form2Model& form)
{
    records.push_back({DialogRecord::Kind::Error, form.Caption, form.Label1.Caption, form.Label2.Caption, {}, {}, 0, {}, {}});
}

int PolicyDialogs::askCover(const Form4Model& form)
{
    records.push_back({DialogRecord::Kind::Cover, form.Caption, form.Label2.Caption, form.Label3.Caption,
                       form.Command2.Caption, {}, coverAnswer, {}, {}});
    return coverAnswer;
}

void PolicyDialogs::chooseStirrup(Form7Model& form)
{
    DialogRecord r{DialogRecord::Kind::Stirrup, form.Caption, form.Label1.Caption + form.Label2.Caption, {}, {}, {},
                   stirrupOption, {}, {}};
    for (const auto& o : form.Option1)
        r.opcoes.push_back(o.Caption);
    for (auto& o : form.Option1)
        o.Value = false;
    const auto k = static_cast<std::size_t>(stirrupOption);
    form.Option1[k < form.Option1.size() ? k : 4].Value = true;
    records.push_back(std::move(r));
}

void PolicyDialogs::notice(const std::string& text)
{
    records.push_back({DialogRecord::Kind::Notice, "aviso", text, {}, {}, {}, 0, {}, {}});
}

} // namespace pilarix
