// The main window's layout by width: the two input columns side by side while the
// drawing keeps a useful width beside them, one above the other when it would not.

#include "ui/main_window.h"
#include "ui/window_parts.h"

#include "base/number_text.h"
#include "engine/catalogue.h"
#include "render/drawing_export.h"
#include "render/report_pdf.h"
#include "ui/cases_dialog.h"
#include "ui/about_dialog.h"
#include "ui/d_estimate_dialog.h"
#include "ui/help_dialog.h"
#include "ui/box_check.h"
#include "ui/input_edit.h"
#include "ui/input_tips.h"
#include "ui/interaction_dialog.h"
#include "ui/norma2014_panel.h"
#include "ui/other_values_dialog.h"
#include "ui/project_data_dialog.h"
#include "ui/qt_dialogs.h"
#include "ui/section_canvas.h"
#include "ui/solutions_dialog.h"
#include "ui/verdict_text.h"
#include "ui/wheel_guard.h"
#include "window/solution_details.h"
#include "window/units.h"
#include "window/window_input.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QShortcutEvent>
#include <QSplitter>
#include <QStatusBar>
#include <QTextBrowser>
#include <QUndoCommand>
#include <QUndoStack>
#include <QVBoxLayout>

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
