#pragma once
// The bench of the detailing tests: a program with the bar catalogue loaded and its
// dialogs recorded, and the dialogs as one text each.

#include "cli/recording_dialogs.h"
#include "driver/program.h"

#include <string>
#include <vector>

namespace pilarix::test {

using Textos = std::vector<std::string>;

inline std::string texto(const nlohmann::ordered_json& x) { return x.is_string() ? x.get<std::string>() : x.dump(); }

// Recorded dialogs, in order, each as its fields joined by " | " (the stirrup list left out).
inline Textos juntos(const nlohmann::ordered_json& dialogos)
{
    Textos v;
    for (const auto& m : dialogos) {
        std::string s;
        for (const auto& [campo, x] : m.items())
            if (campo != "opcoes")
                s += (s.empty() ? "" : " | ") + texto(x);
        v.push_back(s);
    }
    return v;
}

struct Bancada {
    RecordingDialogs dialogos;
    Program p{dialogos};
    Bancada()
    {
        p.Bitolas22();
        p.FlagErro = "n";
        p.Recalcula = "n";
    }
    // One field ("janela", "mensagem", ...) of every dialog shown, in order.
    Textos mostrado(const char* campo) const
    {
        Textos v;
        for (const auto& m : dialogos.messages)
            v.push_back(m.contains(campo) ? texto(m[campo]) : "");
        return v;
    }
    Textos mostrados() const { return juntos(dialogos.messages); }
};

inline std::string erro(const std::string& mensagem, const std::string& item)
{
    return "Mensagem de erro | " + mensagem + " | " + item;
}

inline std::string cobrimento(const std::string& mensagem, const std::string& item, const std::string& botao1,
                              int resposta)
{
    return "Cobrimento | " + mensagem + " | " + item + " | " + botao1 + " | " + std::to_string(resposta);
}

} // namespace pilarix::test
