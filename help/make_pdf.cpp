// make_pdf: lays a Markdown file out on A4 pages and writes it as a PDF, for
// the manual and the update information that the help menu opens.
//
//     make_pdf INPUT.md OUTPUT.pdf
//
// Exit 0 when the PDF is written, 2 when the input cannot be read or the
// output cannot be written; then no file is left behind.

#include "drawing/headless_platform.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QStringList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <cstdio>

namespace {

constexpr int kFailed = 2;
constexpr double kMarginMm = 20;
constexpr double kFooterMm = 10; // room below the text for the page number

int fail(const QString& line)
{
    std::fprintf(stderr, "make_pdf: %s\n", qUtf8Printable(line));
    return kFailed;
}

// The text of the first heading, for the title of the PDF and its footer.
QString first_heading(const QTextDocument& doc)
{
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        if (b.blockFormat().headingLevel() == 1) {
            return b.text();
        }
    }
    return {};
}

// Room around headings, shaded code blocks and ruled tables: Qt's reading of
// Markdown leaves them bare. Lengths are screen pixels, which the layout scales
// to the page.
void style(QTextDocument& doc)
{
    const auto code = [](const QTextBlock& b) {
        return b.isValid() && b.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
    };
    QTextCursor cursor(&doc);
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        QTextBlockFormat format = b.blockFormat();
        if (const int level = format.headingLevel(); level > 0) {
            format.setTopMargin(level == 1 ? 0 : 16 - 2 * level);
            format.setBottomMargin(level == 1 ? 8 : 4);
        } else if (code(b)) {
            // Each line of a code block is a block of its own.
            format.setBackground(QColor(242, 242, 242));
            format.setLeftMargin(8);
            format.setBottomMargin(code(b.next()) ? 0 : 8);
        } else if (b.textList() != nullptr && b.next().textList() == b.textList()) {
            format.setBottomMargin(2);
        } else {
            format.setBottomMargin(6);
        }
        cursor.setPosition(b.position());
        cursor.setBlockFormat(format);
    }
    for (QTextFrame* frame : doc.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) {
            continue;
        }
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorder(0.5);
        format.setBorderBrush(QColor(150, 150, 150));
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setCellSpacing(0);
        format.setCellPadding(3);
        format.setTopMargin(2);
        format.setBottomMargin(8);
        table->setFormat(format);
        for (int row = 0; row < table->rows(); ++row) {
            for (int column = 0; column < table->columns(); ++column) {
                QTextTableCell cell = table->cellAt(row, column);
                QTextTableCellFormat ruled = cell.format().toTableCellFormat();
                ruled.setBorder(0.5);
                ruled.setBorderBrush(QColor(150, 150, 150));
                ruled.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
                if (row == 0) {
                    ruled.setBackground(QColor(230, 230, 230));
                }
                cell.setFormat(ruled);
            }
        }
    }
}

void write_pages(QTextDocument& doc, QPdfWriter& pdf, const QString& title)
{
    const double px_per_mm = pdf.resolution() / 25.4;
    const QRectF area = pdf.pageLayout().paintRectPixels(pdf.resolution());
    const double footer = kFooterMm * px_per_mm;
    doc.documentLayout()->setPaintDevice(&pdf);
    doc.setDocumentMargin(0);
    doc.setPageSize(QSizeF(area.width(), area.height() - footer));

    QPainter painter(&pdf);
    const int pages = doc.pageCount();
    const double body = area.height() - footer;
    for (int n = 0; n < pages; ++n) {
        if (n > 0) {
            pdf.newPage();
        }
        painter.save();
        painter.translate(0, -n * body);
        // The layout draws whole blocks; the page shows only its own lines.
        const QRectF page(0, n * body, area.width(), body);
        painter.setClipRect(page);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = page;
        context.palette.setColor(QPalette::Text, Qt::black);
        doc.documentLayout()->draw(&painter, context);
        painter.restore();

        // A thin rule, the title on the left and the page number on the right.
        const double rule = area.height() - footer * 0.6;
        painter.setPen(QPen(Qt::gray, 0.2 * px_per_mm));
        painter.drawLine(QPointF(0, rule), QPointF(area.width(), rule));
        painter.setPen(Qt::black);
        painter.setFont(QFont(doc.defaultFont().family(), 8));
        const QRectF line(0, rule + 1.5 * px_per_mm, area.width(), footer * 0.6);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignTop, title);
        painter.drawText(line, Qt::AlignRight | Qt::AlignTop,
                         QStringLiteral("%1 / %2").arg(n + 1).arg(pages));
    }
}

} // namespace

int main(int argc, char** argv)
{
    // A build step draws on no screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    kvelder::choose_headless_platform();
    const QGuiApplication app(argc, argv);
    const QStringList args = QGuiApplication::arguments();
    if (args.size() != 3) {
        return fail(QStringLiteral("usage: make_pdf INPUT.md OUTPUT.pdf"));
    }
    QFile in(args[1]);
    if (!in.open(QIODevice::ReadOnly)) {
        return fail(args[1] + QStringLiteral(": cannot be read (") + in.errorString() + ')');
    }
    const QString markdown = QString::fromUtf8(in.readAll());

    QTextDocument doc;
    doc.setDefaultFont(QFont(QStringLiteral("Liberation Sans"), 10));
    doc.setMarkdown(markdown);
    style(doc);
    const QString title = first_heading(doc);

    // Written beside the old file and renamed over it only when whole.
    QSaveFile out(args[2]);
    if (!out.open(QIODevice::WriteOnly)) {
        return fail(args[2] + QStringLiteral(": cannot be written (") + out.errorString() + ')');
    }
    {
        QPdfWriter pdf(&out);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(kMarginMm, kMarginMm, kMarginMm, kMarginMm * 0.75),
                           QPageLayout::Millimeter);
        pdf.setResolution(300);
        pdf.setTitle(title);
        pdf.setCreator(QStringLiteral("Kvelder"));
        write_pages(doc, pdf, title);
    }
    if (!out.commit()) {
        return fail(args[2] + QStringLiteral(": cannot be written (") + out.errorString() + ')');
    }
    return 0;
}
