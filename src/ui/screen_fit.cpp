#include "ui/screen_fit.h"

#include <QDialog>
#include <QEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace pilarix::ui {

namespace {
constexpr const char* kRolado = "pilarix_rolado"; // the contents are in a scroll area already
}

void cabeNaTela(QDialog* d, const QRect& livre)
{
    const int maxima = std::max(200, livre.height() - kMolduraDaJanela);
    QLayout* layout = d->layout();
    if (layout && !d->property(kRolado).toBool()) {
        layout->activate();
        // What can shrink (a diagram, a list) shrinks to the screen; only what
        // cannot scrolls.
        const QSize quer = layout->totalMinimumSize();
        if (quer.height() > maxima) {
            // The layout moves whole, its widgets with it, into a scroll area that
            // becomes the dialog's only content.
            auto* conteudo = new QWidget;
            conteudo->setLayout(layout);
            auto* area = new QScrollArea;
            area->setObjectName(QStringLiteral("RolagemDoDialogo"));
            area->setFrameShape(QFrame::NoFrame);
            area->setWidgetResizable(true);
            area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
            area->setWidget(conteudo);
            const int barra = area->verticalScrollBar()->sizeHint().width();
            area->setMinimumWidth(std::min(quer.width() + barra, livre.width() - kMolduraDaJanela));
            auto* novo = new QVBoxLayout(d);
            novo->setContentsMargins(0, 0, 0, 0);
            novo->addWidget(area);
            d->setProperty(kRolado, true);
            d->setMinimumHeight(0);
            d->resize(std::min(quer.width() + barra, livre.width() - kMolduraDaJanela), maxima);
        }
    }
    d->setMaximumHeight(maxima);
    if (d->height() > maxima)
        d->resize(d->width(), maxima);
}

bool CabeNaTela::eventFilter(QObject* alvo, QEvent* evento)
{
    if (evento->type() == QEvent::Show && alvo->isWidgetType()) {
        if (auto* d = qobject_cast<QDialog*>(alvo)) {
            const QScreen* tela = d->screen() ? d->screen() : QGuiApplication::primaryScreen();
            if (tela)
                cabeNaTela(d, tela->availableGeometry());
        }
    }
    return QObject::eventFilter(alvo, evento);
}

} // namespace pilarix::ui
