#pragma once
// "--screenshot": start as a user would, load the defaults (or a project),
// calculate, and save a picture of the whole window. The questions of the
// calculation get the first answer, and its messages go to standard error.

#include <QString>

namespace pilarix::ui {

// Returns the exit status: 0 saved, 1 the picture could not be written, 2 the
// project could not be read.
int salvaImagemDaJanela(const QString& arquivoPng, const QString& projeto);

} // namespace pilarix::ui
