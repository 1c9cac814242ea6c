// The binding of the main window's widgets to the form model: made in the window's
// panels, copied into the model before a handler runs and painted from it after.

#include "ui/form_binding.h"

#include "ui/box_check.h"
#include "ui/window_parts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace pilarix::ui {

using namespace window_parts;

FormBinding::FormBinding(Form1Model& form, Callbacks callbacks, QObject* parent)
    : QObject(parent), form_(form), callbacks_(std::move(callbacks))
{
    auto recusa = [this](QWidget* w, const QString& motivo) { callbacks_.recusou(w, motivo); };
    filtroInteiro_ = new KeyFilter(Teclas::Inteiro, recusa, this);
    filtroDecimal_ = new KeyFilter(Teclas::Decimal, recusa, this);
    filtroComSinal_ = new KeyFilter(Teclas::DecimalComSinal, recusa, this);
    filtroBitola_ = new KeyFilter(Teclas::Bitola, recusa, this);
    filtroNenhum_ = new KeyFilter(Teclas::Nenhuma, recusa, this);
    conferidas_ = new BoxCheck([this](const QString& motivo) { callbacks_.avisa(motivo); }, this);
}

namespace {
QString texto(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }
} // namespace

QString nomeDoWidget(const Form1Model& f, Controle::Alvo controle) { return texto(nomeDoControle(f, controle)); }

QString nomeDoWidget(const Form8Model& f, Controle::Alvo controle)
{
    return texto(nomeNoForm(nomeDoControle(f, controle)));
}

QLineEdit* FormBinding::caixa(TextBox& m, Teclas regra, int largura, const QString& rotuloCaixa)
{
    auto* e = new QLineEdit;
    e->setObjectName(nomeDoWidget(form_, &m));
    e->setFixedWidth(largura);
    e->setAlignment(Qt::AlignRight);
    KeyFilter* f = regra == Teclas::Inteiro           ? filtroInteiro_
                   : regra == Teclas::Decimal         ? filtroDecimal_
                   : regra == Teclas::DecimalComSinal ? filtroComSinal_
                   : regra == Teclas::Bitola          ? filtroBitola_
                                                      : filtroNenhum_;
    if (regra == Teclas::Bitola)
        e->setReadOnly(true);
    f->instala(e);
    if (digitavel(regra))
        conferidas_->vigia(e, regra, rotuloCaixa, oQueACaixaToma(form_, m, regra));
    caixas_.emplace_back(&m, e);
    rotulos_[e] = rotuloCaixa;
    if (!e->isReadOnly()) {
        connect(e, &QLineEdit::textChanged, this, [this] { callbacks_.editou(true); });
        // Enter in a box calculates.
        connect(e, &QLineEdit::returnPressed, this, [this] { callbacks_.enter(); });
    }
    return e;
}

QLineEdit* FormBinding::resultado(TextBox& m, int largura)
{
    auto* e = new QLineEdit;
    e->setObjectName(nomeDoWidget(form_, &m));
    e->setReadOnly(true);
    e->setFocusPolicy(Qt::ClickFocus);
    e->setAlignment(Qt::AlignRight);
    if (largura > 0)
        e->setFixedWidth(largura);
    filtroNenhum_->instala(e);
    caixas_.emplace_back(&m, e);
    rotulos_[e] = QStringLiteral("Resultado");
    return e;
}

QComboBox* FormBinding::lista(ComboBox& m, const QString& rotuloLista)
{
    auto* c = new QComboBox;
    c->setObjectName(nomeDoWidget(form_, &m));
    c->setEditable(false);
    // The model's text is the item's data: a list may word its entries for the
    // engineer ("rigidez κ") and still keep the program's text.
    for (const auto& s : m.List)
        c->addItem(qs(s), qs(s));
    filtroNenhum_->instala(c);
    listas_.emplace_back(&m, c);
    rotulos_[c] = rotuloLista;
    connect(c, &QComboBox::currentIndexChanged, this, [this] { callbacks_.editou(false); });
    return c;
}

QCheckBox* FormBinding::marca(CheckBox& m, const QString& texto)
{
    auto* c = new QCheckBox(texto);
    c->setObjectName(nomeDoWidget(form_, &m));
    marcas_.emplace_back(&m, c);
    connect(c, &QCheckBox::stateChanged, this, [this] { callbacks_.editou(false); });
    return c;
}

QRadioButton* FormBinding::opcao(OptionButton& m)
{
    auto* r = new QRadioButton(qs(m.Caption));
    r->setObjectName(nomeDoWidget(form_, &m));
    opcoes_.emplace_back(&m, r);
    connect(r, &QRadioButton::toggled, this, [this] { callbacks_.editou(false); });
    return r;
}

QPushButton* FormBinding::botao(CommandButton& m, const QString& nome, std::function<void()> acao)
{
    auto* b = new QPushButton(qs(m.Caption));
    b->setObjectName(nome);
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, [acao = std::move(acao)] { acao(); });
    botoes_.emplace_back(&m, b);
    return b;
}

void FormBinding::copiaParaModelo()
{
    for (auto& [m, e] : caixas_)
        if (!e->isReadOnly())
            m->Text = e->text().toStdString();
    // A list showing nothing (a text from a file that is not in the list) keeps the
    // model's text instead of blanking it.
    for (auto& [m, c] : listas_)
        if (c->currentIndex() >= 0)
            m->Text = c->currentData().toString().toStdString();
    for (auto& [m, c] : marcas_)
        m->Value = c->checkState() == Qt::Checked ? 1 : c->checkState() == Qt::PartiallyChecked ? 2 : 0;
    for (auto& [m, r] : opcoes_)
        m->Value = r->isChecked();
}

void FormBinding::pintaCaixas(bool desatualizado, const app::CalculationRecord& registro)
{
    std::map<QString, const std::string*> doRegistro;
    for (const auto& b : registro.boxes)
        doRegistro[qs(b.name)] = &b.text;
    for (auto& [m, e] : caixas_) {
        const auto r = e->isReadOnly() ? doRegistro.find(e->objectName()) : doRegistro.end();
        const QString t = qs(r != doRegistro.end() ? *r->second : m->Text);
        if (e->text() != t) {
            e->setText(t);
            e->setCursorPosition(0);
        }
        e->setEnabled(m->Enabled);
        e->setVisible(m->Visible);
        const bool deResultado = e->isReadOnly();
        pintaCaixa(e, *m, desatualizado && deResultado);
    }
}

void FormBinding::pintaOutros()
{
    for (auto& [m, c] : listas_) {
        c->setCurrentIndex(c->findData(qs(m->Text), Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
        c->setEnabled(m->Enabled);
    }
    for (auto& [m, c] : marcas_) {
        if (m->Value == 2) {
            c->setTristate(true);
            c->setCheckState(Qt::PartiallyChecked);
        } else {
            c->setTristate(false);
            c->setCheckState(m->Value == 1 ? Qt::Checked : Qt::Unchecked);
        }
        c->setEnabled(m->Enabled);
    }
    // A group may hold no selected button (a file may say so): the buttons are let
    // out of their group while they are set.
    for (auto& g : grupos_)
        for (auto* r : g)
            r->setAutoExclusive(false);
    for (auto& [m, r] : opcoes_) {
        r->setText(qs(m->Caption));
        r->setChecked(m->Value);
        r->setEnabled(m->Enabled);
        r->setVisible(m->Visible);
    }
    for (auto& g : grupos_)
        for (auto* r : g)
            r->setAutoExclusive(true);
    for (auto& [m, b] : botoes_) {
        b->setText(qs(m->Caption));
        b->setEnabled(m->Enabled);
        b->setVisible(m->Visible);
    }
}

void FormBinding::somenteLeitura(QLineEdit* e, const QString& rotulo)
{
    filtroNenhum_->instala(e);
    rotulos_[e] = rotulo;
}

const QString* FormBinding::rotuloDe(const QWidget* w) const
{
    const auto it = rotulos_.find(w);
    return it != rotulos_.end() ? &it->second : nullptr;
}

} // namespace pilarix::ui
