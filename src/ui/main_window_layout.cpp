// The main window's layout by width: the two input columns side by side while the
// drawing keeps a useful width beside them, one above the other when it would not.

#include "ui/main_window.h"
#include "ui/window_parts.h"

#include <QBoxLayout>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace pilarix::ui {

using namespace window_parts;

// ---- the layout on small screens ----

void MainWindow::dispoeColunas()
{
    // Side by side while the drawing keeps a useful width beside them, one above
    // the other on a narrow screen (or a large scaling).
    const int barra = rolagemEntradas_->verticalScrollBar()->sizeHint().width();
    const int duas = colunaEntradas_->minimumWidth() + colunaOpcoes_->minimumWidth() + colunasDeEntrada_->spacing();
    const int uma = std::max(colunaEntradas_->minimumWidth(), colunaOpcoes_->minimumWidth());
    const int resto = width() - rolagemResultados_->minimumWidth() - 40;
    const bool lado = resto - (duas + barra) >= 360;
    colunasDeEntrada_->setDirection(lado ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    rolagemEntradas_->setFixedWidth((lado ? duas : uma) + barra + 2);
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    dispoeColunas();
}

} // namespace pilarix::ui
