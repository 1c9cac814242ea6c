#include "golden/golden_runner.h"

#include "cli/cli.h"
#include "cli/controls_by_name.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace pilarix::golden {

namespace {

std::vector<std::string> split(const std::string& s, char sep)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (;;) {
        const auto end = s.find(sep, start);
        parts.push_back(s.substr(start, end - start));
        if (end == std::string::npos)
            return parts;
        start = end + 1;
    }
}

// What a user sees of a run: every part of the JSON but the method's own variables
// ("estado"), which follow the method step by step and may change while nothing
// shown does. Text that is not one JSON document is kept as it is.
std::string seen(const std::string& json)
{
    nlohmann::ordered_json doc = nlohmann::ordered_json::parse(json, nullptr, false);
    if (doc.is_discarded() || !doc.is_object())
        return json;
    doc.erase("estado");
    return doc.dump(1);
}

// Items "Control=Value" are --set assignments; "--option=value" is an option and its
// value. Every run is --sem-padrao --json.
std::string runCliLine(const std::string& payload)
{
    std::vector<std::string> args{"--sem-padrao"};
    for (const auto& item : split(payload, '\t')) {
        if (item.rfind("--", 0) == 0) {
            const auto eq = item.find('=');
            args.push_back(item.substr(0, eq));
            if (eq != std::string::npos)
                args.push_back(item.substr(eq + 1));
        } else {
            args.push_back("--set");
            args.push_back(item);
        }
    }
    args.push_back("--json");
    std::ostringstream out, err;
    const int status = runCli(args, out, err);
    return seen(out.str()) + "\nstatus " + std::to_string(status) + "\n" + err.str();
}

// One action of the window, by the name the corpus gives it.
void act(Program& p, const std::string& action)
{
    using Handler = void (Program::*)();
    static const std::map<std::string, Handler> handlers{
        {"Calcula", &Program::Command1_Click},   {"Melhor", &Program::Command8_Click},
        {"Command2", &Program::Command2_Click},  {"Command3", &Program::Command3_Click},
        {"Command4", &Program::Command4_Click},  {"Command5", &Program::Command5_Click},
        {"Command13", &Program::Command13_Click}, {"Command14", &Program::Command14_Click},
        {"Command15", &Program::Command15_Click}, {"Command16", &Program::Command16_Click},
        {"SomaNd", &Program::SomaNd},            {"Proxima", &Program::Command9_Click},
        {"Anterior", &Program::Command10_Click}, {"Outras", &Program::Command11_Click},
        {"Voltar8", &Program::Form8Command1_Click}, {"Abrir", &Program::mnuItemload_Click},
    };
    if (auto it = handlers.find(action); it != handlers.end()) {
        (p.*(it->second))();
        return;
    }
    if (action.rfind("Escolhe:", 0) == 0) {
        // A click on row k of "Soluções", as the list does it.
        const int row = std::stoi(action.substr(8));
        for (int i = 0; i < Form11Model::kRows; ++i)
            p.Form11.Rows[static_cast<std::size_t>(i)].Option.Value = i + 1 == row;
        p.Form11Escolhe();
        return;
    }
    throw std::runtime_error("unknown action in the golden corpus: " + action);
}

std::string runSession(const std::string& payload)
{
    PolicyDialogs dialogs;
    Program p(dialogs);
    std::string shown;
    for (const auto& step : split(payload, '\t')) {
        const auto parts = split(step, ';');
        for (std::size_t i = 1; i < parts.size(); ++i) {
            const auto eq = parts[i].find('=');
            std::string error;
            if (eq == std::string::npos
                || !setControlByName(p, parts[i].substr(0, eq), parts[i].substr(eq + 1), error))
                throw std::runtime_error("bad assignment in the golden corpus: " + parts[i] + " " + error);
        }
        act(p, parts[0]);
        nlohmann::ordered_json doc = documentJson(p.registroDoCalculo(), true);
        doc.erase("estado");
        // In a session a step shows the dialogs it opened, not those of the
        // calculation on show from an earlier step.
        doc["mensagens"] = mensagensJson(dialogs.records);
        shown += doc.dump(1) + "\n";
        dialogs.records.clear();
    }
    return shown;
}

} // namespace

bool parseLine(const std::string& line, CorpusLine& out)
{
    if (line.size() < 4 || (line[0] != 'C' && line[0] != 'S') || line[1] != '\t')
        return false;
    const auto tab = line.find('\t', 2);
    if (tab == std::string::npos)
        return false;
    out.kind = line[0];
    out.hash = line.substr(2, tab - 2);
    out.payload = line.substr(tab + 1);
    return true;
}

std::string runLine(const CorpusLine& line)
{
    return line.kind == 'C' ? runCliLine(line.payload) : runSession(line.payload);
}

namespace {
// One line a value, by its path; long arrays of numbers (curves, contours) by their
// size and ends, so that a readable text stays short.
void flatten(const nlohmann::ordered_json& j, const std::string& path, std::string& out)
{
    constexpr std::size_t kLongArray = 12;
    if (j.is_object()) {
        for (const auto& [key, value] : j.items())
            flatten(value, path.empty() ? key : path + "." + key, out);
    } else if (j.is_array()) {
        if (j.size() > kLongArray && !j.front().is_object()) {
            out += path + ": " + std::to_string(j.size()) + " valores, de " + j.front().dump() + " a " + j.back().dump()
                   + "\n";
            return;
        }
        for (std::size_t i = 0; i < j.size(); ++i)
            flatten(j[i], path + "[" + std::to_string(i) + "]", out);
    } else {
        out += path + ": " + j.dump() + "\n";
    }
}
} // namespace

std::string readable(const std::string& shown)
{
    std::string out;
    // The documents one after another (a session shows one a step), then the rest.
    nlohmann::ordered_json::parser_callback_t none = nullptr;
    const std::string& all = shown;
    std::size_t at = 0;
    int step = 0;
    while (at < all.size() && all[at] == '{') {
        // Each document ends at the first line that is exactly "}".
        const auto end = all.find("\n}", at);
        const std::size_t stop = end == std::string::npos ? all.size() : end + 2;
        const auto doc = nlohmann::ordered_json::parse(all.substr(at, stop - at), none, false);
        if (doc.is_discarded())
            break;
        out += "== " + std::to_string(++step) + "\n";
        flatten(doc, "", out);
        at = stop;
        while (at < all.size() && all[at] == '\n')
            ++at;
    }
    return out + all.substr(at);
}

std::string digest(std::string_view bytes)
{
    std::uint64_t h = 14695981039346656037ull;
    for (const unsigned char c : bytes) {
        h ^= c;
        h *= 1099511628211ull;
    }
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(h));
    return text;
}

} // namespace pilarix::golden
