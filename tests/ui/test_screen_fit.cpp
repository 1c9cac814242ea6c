// Every dialog of the window fits a small screen (1366 × 768 at 150 % leaves about
// 500 pixels): at most the screen's free height less the title bar, its contents
// scrolled where they are taller.

#include "ui/about_dialog.h"
#include "ui/cases_dialog.h"
#include "ui/cover_dialog.h"
#include "ui/d_estimate_dialog.h"
#include "ui/error_dialog.h"
#include "ui/help_dialog.h"
#include "ui/interaction_dialog.h"
#include "ui/moment_contour_dialog.h"
#include "ui/other_values_dialog.h"
#include "ui/project_data_dialog.h"
#include "ui/screen_fit.h"
#include "ui/solutions_dialog.h"
#include "ui/stirrup_choice_dialog.h"
#include "window/policy_dialogs.h"
#include "window/program.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace pilarix;

TEST(ScreenFit, NoDialogIsTallerThanASmallScreen)
{
    PolicyDialogs respostas;
    Program program(respostas);
    Forms forms;
    for (auto& row : forms.Form11.Rows)
        row.Peso = "1";
    forms.Form11.RowsShown = Form11Model::kRows;
    const struct Row {
        const char* name;
        std::function<std::unique_ptr<QDialog>()> make;
    } rows[] = {
        {"Sobre", [] { return std::make_unique<ui::AboutDialog>(); }},
        {"Casos de carga", [&] { return std::make_unique<ui::CasesDialog>(program, [] {}); }},
        {"Cobrimento", [] { return std::make_unique<ui::CoverDialog>(); }},
        {"Estimativa de d'", [&] { return std::make_unique<ui::DEstimateDialog>(forms.Form5, [] {}, [] {}); }},
        {"Mensagem de erro", [] { return std::make_unique<ui::ErrorDialog>(); }},
        {"Ajuda", [] { return std::make_unique<ui::HelpDialog>(); }},
        {"Diagrama de interação", [] { return std::make_unique<ui::InteractionDialog>(); }},
        {"Diagrama Mx-My", [] { return std::make_unique<ui::MomentContourDialog>(); }},
        {"Outros valores",
         [&] { return std::make_unique<ui::OtherValuesDialog>(forms.Form8, [] {}, [](const std::string&) {}); }},
        {"Dados da obra", [] { return std::make_unique<ui::ProjectDataDialog>(DadosDaObra{}); }},
        {"Soluções, 40 linhas", [&] { return std::make_unique<ui::SolutionsDialog>(forms.Form11, [] {}); }},
        {"Escolha dos estribos", [] { return std::make_unique<ui::StirrupChoiceDialog>(); }},
    };
    // 1366 × 768 at 150 %, less a panel; and a netbook's 1024 × 600 at 125 %.
    for (const QRect livre : {QRect(0, 0, 910, 480), QRect(0, 0, 819, 440)}) {
        for (const Row& r : rows) {
            auto d = r.make();
            ui::cabeNaTela(d.get(), livre);
            d->show();
            QApplication::processEvents();
            EXPECT_LE(d->height(), livre.height() - ui::kMolduraDaJanela) << r.name << " at " << livre.height();
            EXPECT_LE(d->width(), livre.width()) << r.name << " at " << livre.height();
            // What it holds is still there to reach: its buttons inside it or in its scroll area.
            for (auto* b : d->findChildren<QPushButton*>()) {
                if (!b->isVisibleTo(d.get()))
                    continue;
                const bool rolado = d->findChild<QScrollArea*>(QStringLiteral("RolagemDoDialogo")) != nullptr;
                const QRect em = QRect(b->mapTo(d.get(), QPoint(0, 0)), b->size());
                EXPECT_TRUE(rolado || d->rect().contains(em)) << r.name << ": " << b->text().toStdString();
            }
            d->hide();
        }
    }
}
