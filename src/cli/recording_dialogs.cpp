#include "cli/recording_dialogs.h"

namespace pilarix {

void RecordingDialogs::showError(const Form2Model& form)
{
    messages.push_back({{"janela", form.Caption}, {"mensagem", form.Label1.Caption}, {"item", form.Label2.Caption}});
}

int RecordingDialogs::askCover(const Form4Model& form)
{
    messages.push_back({{"janela", form.Caption},
                        {"mensagem", form.Label2.Caption},
                        {"item", form.Label3.Caption},
                        {"botao1", form.Command2.Caption},
                        {"resposta", coverAnswer}});
    return coverAnswer;
}

void RecordingDialogs::chooseStirrup(Form7Model& form)
{
    nlohmann::ordered_json opcoes = nlohmann::ordered_json::array();
    for (const auto& o : form.Option1)
        opcoes.push_back(o.Caption);
    for (auto& o : form.Option1)
        o.Value = false;
    const auto k = static_cast<std::size_t>(stirrupOption);
    form.Option1[k < form.Option1.size() ? k : 4].Value = true;
    messages.push_back({{"janela", form.Caption},
                        {"mensagem", form.Label1.Caption + form.Label2.Caption},
                        {"opcoes", opcoes},
                        {"resposta", stirrupOption}});
}

void RecordingDialogs::notice(const std::string& text)
{
    messages.push_back({{"janela", "aviso"}, {"mensagem", text}});
}

} // namespace pilarix
