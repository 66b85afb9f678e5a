#include "report/report_pdf.h"

#include "drawing/path_qstring.h"
#include "drawing/plot_surface.h"
#include "files/path_text.h"

#include <QDateTime>
#include <QLocale>
#include <QPageLayout>
#include <QPdfWriter>
#include <QSaveFile>

namespace kvelder {

ReportStamp report_stamp(const std::filesystem::path& source)
{
    const QDateTime now = QDateTime::currentDateTime();
    return {utf8_text(source), QLocale::system().toString(now.date(), QLocale::ShortFormat).toStdString(),
            now.time().toString(QStringLiteral("hh:mm:ss")).toStdString()};
}

std::optional<std::string> write_report_pdf(const Model& m, const std::filesystem::path& file,
                                            const ReportStamp& stamp, const PrintSession& session)
{
    // Written beside the old file and renamed over it only when whole.
    QSaveFile out(to_qstring(file));
    if (!out.open(QIODevice::WriteOnly)) {
        return utf8_text(file) + ": cannot be written";
    }
    {
        QPdfWriter pdf(&out);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        pdf.setPageMargins(QMarginsF(5, 3.5, 5, 3.5), QPageLayout::Millimeter);
        pdf.setResolution(600);
        pdf.setTitle(QString::fromStdString(m.prosjekt_s));
        pdf.setCreator(QStringLiteral("Kvelder"));
        PlotSurface surface(pdf);
        PrintReport(surface, m, stamp, session);
        surface.EndDoc();
    }
    if (!out.commit()) {
        return utf8_text(file) + ": cannot be written";
    }
    return std::nullopt;
}

} // namespace kvelder
