#pragma once
// What each input of the main window says in its tooltip: what it is, its unit and
// its limits, by its control on the form (the buttons by their names).

#include "window/forms.h"

#include <array>

class QLineEdit;
class QWidget;

namespace pilarix::ui {

// Sets the tip of every input of `f` and every button under `centro`, and of the
// eight bar boxes.
void aplicaDicas(QWidget* centro, Form1Model& f, const std::array<QLineEdit*, 8>& bitolas);

} // namespace pilarix::ui
