// The d' box rewritten by a calculation, remembering what it held before.

#include "window/program.h"

namespace pilarix {

void Program::reescreveDLinha(const std::string& texto)
{
    // Zera31, at the start of every calculation, forgot the d' of the one before:
    // what the box holds now is what this calculation started from.
    if (!DLinhaDigitado)
        DLinhaDigitado = Form1.Text3.Text;
    DLinhaReescrito = texto;
    Form1.Text3.Text = texto;
}

} // namespace pilarix
