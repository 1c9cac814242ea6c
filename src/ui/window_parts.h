#pragma once
// Small helpers shared by the main window's files (main_window*.cpp): texts from the
// model, the colours of a box, a frame or a label made in one line, the settings' keys.

#include "window/program.h"

#include <QColor>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QString>

#include <string>

namespace pilarix::ui::window_parts {

inline QString qs(const std::string& s) { return QString::fromStdString(s); }

inline QColor corDoModelo(const Color& c)
{
    // System colour 19, the inactive caption text: the bars not chosen are shown
    // greyed, so that the chosen one stands out.
    if (c.system >= 0)
        return QColor(128, 128, 128);
    return QColor(c.r, c.g, c.b);
}

inline bool escura(const QColor& c) { return 0.299 * c.red() + 0.587 * c.green() + 0.114 * c.blue() < 110; }

// A result out of date keeps its figures, faded towards the window's grey.
inline QColor esmaecida(const QColor& c)
{
    const QColor cinza(214, 214, 214);
    return QColor((c.red() + 2 * cinza.red()) / 3, (c.green() + 2 * cinza.green()) / 3,
                  (c.blue() + 2 * cinza.blue()) / 3);
}
inline const QColor kLetraDesatualizada(140, 140, 140);

inline void pintaCaixa(QLineEdit* e, const TextBox& m, bool desatualizada)
{
    QColor fundo = corDoModelo(m.BackColor);
    QColor letra = corDoModelo(m.ForeColor);
    // The highlighted bar is dark blue: its number must stay readable on it.
    if (escura(fundo) && escura(letra))
        letra = Qt::white;
    if (desatualizada) {
        fundo = esmaecida(fundo);
        letra = kLetraDesatualizada;
    }
    QPalette pal = e->palette();
    if (pal.color(QPalette::Active, QPalette::Base) == fundo && pal.color(QPalette::Active, QPalette::Text) == letra)
        return;
    for (auto grupo : {QPalette::Active, QPalette::Inactive}) {
        pal.setColor(grupo, QPalette::Base, fundo);
        pal.setColor(grupo, QPalette::Text, letra);
    }
    e->setPalette(pal);
}

inline QLabel* rotulo(const QString& texto, QWidget* buddy = nullptr)
{
    auto* l = new QLabel(texto);
    if (buddy)
        l->setBuddy(buddy);
    return l;
}

inline QGroupBox* quadro(const char* titulo, const char* nome)
{
    auto* q = new QGroupBox(QString::fromUtf8(titulo));
    q->setObjectName(QString::fromUtf8(nome));
    return q;
}

// With d' found from the cover, the d' box and its estimate are out of use; a
// project or the defaults loaded set the tick, and the box follows it.
inline void dLinhaSegueAMarca(Form1Model& f)
{
    const bool automatico = f.Check3.ticked();
    f.Text3.Enabled = !automatico;
    f.Command17.Enabled = !automatico;
}

inline QString semAtalho(const std::string& s) { return qs(s).remove(QLatin1Char('&')); }

inline QString html(const std::string& s) { return qs(s).toHtmlEscaped(); }

inline constexpr const char* kOrganizacao = "Pilarix";
inline constexpr const char* kAplicacao = "Pilarix Normal";
inline constexpr const char* kChaveRecentes = "arquivosRecentes";
inline constexpr const char* kChaveGeometria = "geometriaDaJanela";
inline constexpr int kMaximoRecentes = 8;

} // namespace pilarix::ui::window_parts
