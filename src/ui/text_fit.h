#pragma once
// A dialog sized to its text: a word-wrapped label is given the width its text
// reads best at on the screen it shows on, and the whole height the text takes at
// that width, so that no line is cut whatever the message's length and the
// screen's scaling. A text taller than the screen allows scrolls in its own area.

class QLabel;
class QScrollArea;

namespace pilarix::ui {

// Sizes `rotulo` (word-wrapped) to its text, at least `larguraMinima` wide. With
// `rolagem` (the area that holds the label), a text taller than half the screen
// scrolls there; without it the label takes its whole height.
void ajustaAoTexto(QLabel* rotulo, int larguraMinima, QScrollArea* rolagem = nullptr);

} // namespace pilarix::ui
