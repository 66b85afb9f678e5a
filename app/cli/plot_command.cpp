#include "app/cli/plot_command.h"

#include "drawing/pictures.h"

#include <QImage>
#include <QString>

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace kvelder::cli {

std::optional<std::string> write_pictures(const Model& m, const std::filesystem::path& folder, int width,
                                          int height)
{
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    if (!std::filesystem::is_directory(folder)) {
        return folder.string() + ": no folder can be made there";
    }
    std::array<QImage, std::size(kPictures)> images;
    for (QImage& image : images) {
        image = QImage(width, height, QImage::Format_RGB32);
        image.fill(Qt::white);
    }
    {
        std::array<std::unique_ptr<PlotSurface>, std::size(kPictures)> s;
        for (std::size_t k = 0; k < images.size(); ++k) {
            s[k] = std::make_unique<PlotSurface>(images[k]);
        }
        PlotAll({*s[0], *s[1], *s[2], *s[3], *s[4], *s[5]}, m);
    }
    for (std::size_t k = 0; k < images.size(); ++k) {
        const std::filesystem::path file = folder / (std::string(picture_name(kPictures[k])) + ".png");
        if (!images[k].save(QString::fromStdString(file.string()), "PNG")) {
            return file.string() + ": cannot be written";
        }
    }
    return std::nullopt;
}

} // namespace kvelder::cli
