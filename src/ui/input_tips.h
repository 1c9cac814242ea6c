#pragma once
// What each input of the main window says in its tooltip: what it is, its unit and
// its limits, by the program's names of the controls.

#include <array>

class QLineEdit;
class QWidget;

namespace pilarix::ui {

// Sets the tip of every named input under `centro`, and of the eight bar boxes.
void aplicaDicas(QWidget* centro, const std::array<QLineEdit*, 8>& bitolas);

} // namespace pilarix::ui
