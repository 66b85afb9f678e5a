#include "gui/section_forms.h"

#include "drawing/lef_table.h"
#include "gui/captioning.h"
#include "gui/named.h"
#include "gui/picture_box.h"
#include "ui/section_forms.h"

#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kvelder {
namespace {

QDialog* new_form(const char* name, QWidget* parent)
{
    auto* dialog = named<QDialog>(QString::fromLatin1(name), parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

// The OK button at the right of the form's foot; it closes the form.
void add_ok(QDialog* dialog, QBoxLayout* column)
{
    auto* ok = named<QPushButton>("cmdOK", dialog);
    ok->setDefault(true);
    QObject::connect(ok, &QPushButton::clicked, dialog, &QDialog::accept);
    auto* foot = new QHBoxLayout;
    foot->addStretch();
    foot->addWidget(ok);
    column->addLayout(foot);
}

void show_form(QDialog* dialog, const std::vector<Caption>& captions)
{
    apply_captions(*dialog, captions);
    dialog->open();
}

} // namespace

void open_section_properties(const Model& m, QWidget* parent)
{
    QDialog* dialog = new_form(kPropertiesForm, parent);
    auto* column = new QVBoxLayout(dialog);
    auto* frame = named<QGroupBox>("Fra_Iyy_Wyy", dialog);
    auto* grid = new QGridLayout(frame);
    grid->setHorizontalSpacing(16);
    const char* heads[] = {"Lbl_felt_prop", "Lbl_iyy", "Lbl_wyy", "Lbl_azz"};
    for (int c = 0; c < 4; ++c) {
        auto* head = named<QLabel>(QString::fromLatin1(heads[c]), frame);
        head->setAlignment(c == 0 ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(head, 0, c);
    }
    const auto rows = property_rows(m);
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const int r = static_cast<int>(k) + 1;
        const std::pair<const char*, const std::string*> cells[] = {{"Lblfelt_prop", &rows[k].span},
                                                                    {"Lbl_iyy_val", &rows[k].iyy},
                                                                    {"Lbl_wyy_val", &rows[k].wyy},
                                                                    {"Lbl_azz_val", &rows[k].azz}};
        for (int c = 0; c < 4; ++c) {
            auto* label = named<QLabel>(indexed(cells[c].first, k), frame);
            label->setText(qs(*cells[c].second));
            label->setAlignment(c == 0 ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
            label->setMinimumWidth(c == 0 ? 36 : 80);
            grid->addWidget(label, r, c);
        }
    }
    column->addWidget(frame);
    add_ok(dialog, column);
    show_form(dialog, properties_captions(m.language));
}

void open_lef_table(const std::string& language, QWidget* parent)
{
    QDialog* dialog = new_form(kLefTableForm, parent);
    auto* column = new QVBoxLayout(dialog);
    // Both pictures are drawn; the one of the beam's language shows.
    for (const char* lang : {"Eng", "Nor"}) {
        auto* picture = new PictureBox(lang == std::string("Eng") ? "Pic_le_eng" : "Pic_le_nor", dialog);
        picture->setFixedSize(640, 360);
        picture->draw([lang](PlotSurface& surface) { PlotLefTable(surface, lang); });
        picture->setVisible((language == "Eng") == (lang == std::string("Eng")));
        column->addWidget(picture);
    }
    add_ok(dialog, column);
    show_form(dialog, lef_table_captions(language));
}

void open_about(const std::string& language, QWidget* parent)
{
    QDialog* dialog = new_form(kAboutForm, parent);
    auto* column = new QVBoxLayout(dialog);
    column->setContentsMargins(24, 16, 24, 12);
    auto* title = named<QLabel>("lblTitle", dialog);
    title->setStyleSheet(QStringLiteral("color: rgb(0, 85, 152); font-size: 18pt; font-weight: bold"));
    column->addWidget(title);
    column->addWidget(named<QLabel>("lblDescription", dialog));
    column->addWidget(named<QLabel>("lblVersion", dialog));
    column->addSpacing(12);
    add_ok(dialog, column);
    show_form(dialog, about_captions(language));
}

} // namespace kvelder
