// The pages of the whole report: how many, and that every one carries its
// header with its number.

#include "report/print_report.h"
#include "tests/support/beams.h"
#include "ui/edits.h"
#include "ui/load_checks.h"

#include <QBuffer>
#include <QPdfWriter>
#include <gtest/gtest.h>

namespace kvelder::test {
namespace {

// The pages the report of a beam takes, printed into a PDF in memory.
int pages(const Model& m, bool detailed)
{
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    QPdfWriter writer(&pdf);
    writer.setPageSize(QPageSize(QPageSize::A4));
    PlotSurface surface(writer);
    const int count = PrintReport(surface, m, {"beam.kvel", "23.11.2026", "12:00:00"}, {detailed});
    surface.EndDoc();
    return count;
}

// The example beam on `nf` spans of 5 m each, as the window makes it, calculated.
std::unique_ptr<Model> spans(int nf)
{
    auto m = example_beam();
    LoadDialogs dialogs = load_dialogs(*m);
    choose_span_count(*m, nf, dialogs);
    for (int i = 1; i <= nf; ++i) {
        set_span_length(*m, i, 5.0F, dialogs);
    }
    return calculated(std::move(m));
}

TEST(ReportPages, FollowTheSpansAndTheDetailAndFullLoadTablesBreakOnward)
{
    // G and Q1 of two rows each: 87 + 2 x 3.5, then 12 + 2 x 3.5.
    EXPECT_FLOAT_EQ(ReportHeightOfLoads(*spans(2)), 113.0F);
    for (int nf = 1; nf <= 5; ++nf) {
        const auto m = spans(nf);
        const int compressed = nf <= 2 ? 2 : 3;
        EXPECT_EQ(pages(*m, false), compressed) << nf;
        // Five spans' governing loads run onto a page of their own.
        EXPECT_EQ(pages(*m, true), compressed + (nf < 5 ? 1 : 2)) << nf;
    }

    // Every row of every load table: the plots of the loads take a page of their own.
    auto full = spans(5);
    for (LoadGroup* g : {&full->G, &full->Q1, &full->Q2}) {
        *g = LoadGroup{};
        for (int k = 0; k < 10; ++k) {
            const int span = k % 5 + 1;
            if (k < 5) {
                add_uniform(*g, span, 1.0F);
            }
            const float a = k < 5 ? 0.2F : 2.6F;
            add_trapezoid(*g, span, 1.0F, 2.0F, a, a + 2);
            add_point(*g, span, 2.0F, 0.2F + 0.4F * static_cast<float>(k));
            if (k < 6) {
                add_moment(*g, span, 1.0F, 0.3F + 0.5F * static_cast<float>(k));
            }
        }
    }
    full = calculated(std::move(full));
    EXPECT_EQ(pages(*full, false), 4);
    // Its forces along the beam run past the end of a page and go on on the next.
    EXPECT_GE(pages(*full, true), 6);
}

} // namespace
} // namespace kvelder::test
