#pragma once
// "--screenshot": start as a user would, load the defaults (or a project),
// calculate, and save a picture of the whole window or of one of its dialogs. The questions of the
// calculation get the first answer, and its messages go to standard error.

#include <QSize>
#include <QString>

namespace pilarix::ui {

// Returns the exit status: 0 saved, 1 the picture could not be written, 2 the
// project could not be read. With a valid `tela` (pixels of the screen, e.g.
// 1366 x 768) the window fills that screen, at the scaling the platform is given
// (QT_SCALE_FACTOR); without it the window has the size it opens at on the
// platform's screen.
// With `dialogo` ("diagrama", "casos") the dialog is opened from its menu, as a user
// opens it, and the picture is of that dialog alone.
int salvaImagemDaJanela(const QString& arquivoPng, const QString& projeto, QSize tela = {},
                        const QString& dialogo = {});

} // namespace pilarix::ui
