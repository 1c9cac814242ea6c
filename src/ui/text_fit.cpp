#include "ui/text_fit.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace pilarix::ui {

void ajustaAoTexto(QLabel* rotulo, int larguraMinima, QScrollArea* rolagem)
{
    const QScreen* tela = rotulo->screen() ? rotulo->screen() : QGuiApplication::primaryScreen();
    const QRect livre = tela ? tela->availableGeometry() : QRect(0, 0, 1024, 768);
    const QFontMetrics fm(rotulo->font());
    // A line of about 75 characters reads best; a short text keeps its own width,
    // and nothing is wider than most of the screen.
    int natural = 0;
    for (const QString& linha : rotulo->text().split(QLatin1Char('\n')))
        natural = std::max(natural, fm.horizontalAdvance(linha));
    const int medida = std::max(larguraMinima, fm.averageCharWidth() * 75);
    const int maxima = std::max(larguraMinima, livre.width() * 3 / 4 - 80);
    const int largura = std::clamp(std::min(natural + fm.averageCharWidth(), medida), larguraMinima, maxima);
    const int altura = rotulo->heightForWidth(largura);
    rotulo->setFixedSize(largura, std::max(altura, fm.height()));
    if (!rolagem)
        return;
    const int maximaAltura = std::max(fm.height() * 3, livre.height() / 2);
    const int barra = rolagem->verticalScrollBar()->sizeHint().width();
    const bool rola = altura > maximaAltura;
    rolagem->setFixedSize(largura + (rola ? barra : 0) + 2 * rolagem->frameWidth(),
                          std::min(altura, maximaAltura) + 2 * rolagem->frameWidth());
}

} // namespace pilarix::ui
