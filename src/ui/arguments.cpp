#include "ui/arguments.h"

#include <algorithm>

namespace pilarix::ui {

const char* const kUsoDaJanela = "uso: pilarix [PROJETO] | pilarix --screenshot ARQUIVO.png [PROJETO] "
                                 "[--tela LARGURAxALTURA] [--dialogo diagrama|casos|mxmy]";

Argumentos leArgumentos(const QStringList& args)
{
    Argumentos a;
    if (!args.isEmpty() && args.at(0) == QStringLiteral("--screenshot")) {
        QStringList resto = args.mid(1);
        if (const auto i = resto.indexOf(QStringLiteral("--tela")); i >= 0 && i + 1 < resto.size()) {
            const QStringList lados = resto.at(i + 1).split(QLatin1Char('x'));
            if (lados.size() == 2)
                a.tela = QSize(lados[0].toInt(), lados[1].toInt());
            resto.remove(i, 2);
        }
        bool dialogoValido = true;
        if (const auto i = resto.indexOf(QStringLiteral("--dialogo")); i >= 0) {
            a.dialogo = i + 1 < resto.size() ? resto.at(i + 1) : QString();
            dialogoValido = a.dialogo == QStringLiteral("diagrama") || a.dialogo == QStringLiteral("casos")
                            || a.dialogo == QStringLiteral("mxmy");
            resto.remove(i, std::min<qsizetype>(2, resto.size() - i));
        }
        if (resto.isEmpty() || resto.size() > 2 || (args.contains(QStringLiteral("--tela")) && !a.tela.isValid())
            || !dialogoValido) {
            a.valido = false;
            return a;
        }
        a.imagem = resto.at(0);
        if (resto.size() == 2)
            a.projeto = resto.at(1);
        return a;
    }
    // The file manager's double click: one project, opened as "&Abrir arquivo..." opens it.
    if (args.size() > 1 || (args.size() == 1 && args.at(0).startsWith(QLatin1Char('-'))))
        a.valido = false;
    else if (args.size() == 1)
        a.projeto = args.at(0);
    return a;
}

} // namespace pilarix::ui
