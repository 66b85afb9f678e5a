#include "app/cli/pictures.h"

#include "drawing/headless_platform.h"
#include "drawing/path_qstring.h"
#include "drawing/pictures.h"
#include "files/path_text.h"
#include "report/report_pdf.h"

#include <QGuiApplication>
#include <QImage>
#include <QSize>
#include <QString>

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace kvelder::cli {
namespace {

// Qt draws only inside an application object; the tool makes one, off any
// screen, for the command that draws, unless a caller has one already.
class PictureApplication {
public:
    PictureApplication()
    {
        if (QCoreApplication::instance() == nullptr) {
            choose_headless_platform();
            m_app = std::make_unique<QGuiApplication>(m_argc, m_argv.data());
        }
    }

private:
    char m_name[12] = "kvelder-cli";
    std::array<char*, 2> m_argv{m_name, nullptr};
    int m_argc = 1;
    std::unique_ptr<QGuiApplication> m_app;
};

} // namespace

bool has_pictures()
{
    return true;
}

std::optional<std::string> write_pictures(const Model& m, const std::filesystem::path& folder, int width,
                                          int height)
{
    const PictureApplication app;
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (!std::filesystem::is_directory(folder)) {
        return utf8_text(folder) + ": no folder can be made there";
    }
    std::array<QSize, std::size(kPictures)> sizes;
    sizes.fill(QSize(width, height));
    const PictureImages images = draw_pictures(m, sizes);
    for (std::size_t k = 0; k < images.size(); ++k) {
        const std::filesystem::path file =
            folder / path_from_utf8(std::string(picture_name(kPictures[k])) + ".png");
        if (!images[k].save(to_qstring(file), "PNG")) {
            return utf8_text(file) + ": cannot be written";
        }
    }
    return std::nullopt;
}

std::optional<std::string> write_report(const Model& m, const std::filesystem::path& file,
                                        const std::filesystem::path& source, bool detailed)
{
    const PictureApplication app;
    return write_report_pdf(m, file, report_stamp(source), PrintSession{detailed});
}

} // namespace kvelder::cli
