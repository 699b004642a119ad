#include "CapturesOfAnySize.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <functional>

#include "platform/MediaLoader.h"

namespace vantle {
namespace {

/// Returns a sky, a sun and two hills, in colours that depend on the name.
ImagePointer landscape(const std::string& name, Size size) {
    const int hue = name.empty() ? 0 : static_cast<unsigned char>(name.front()) * 47 % 360;
    QImage picture(static_cast<int>(size.width), static_cast<int>(size.height),
                   QImage::Format_RGBA8888_Premultiplied);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height);
    sky.setColorAt(0, QColor::fromHsv(hue, 130, 235));
    sky.setColorAt(1, QColor::fromHsv((hue + 40) % 360, 70, 250));
    painter.fillRect(picture.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 250, 225));
    const double unit = std::min(size.width, size.height);
    painter.drawEllipse(QPointF(size.width * 0.7, size.height * 0.35), unit * 0.13, unit * 0.13);
    painter.setBrush(QColor::fromHsv((hue + 20) % 360, 150, 160));
    painter.drawEllipse(QPointF(size.width * 0.25, size.height * 1.1), size.width * 0.5,
                        unit * 0.5);
    painter.setBrush(QColor::fromHsv((hue + 10) % 360, 170, 110));
    painter.drawEllipse(QPointF(size.width * 0.8, size.height * 1.15), size.width * 0.5,
                        unit * 0.4);
    painter.end();
    auto image = std::make_shared<Image>();
    image->pixelsWide = picture.width();
    image->pixelsHigh = picture.height();
    image->size = size;
    image->rgba.assign(picture.constBits(), picture.constBits() + picture.sizeInBytes());
    return image;
}

class Pictures final : public MediaLoader {
public:
    Pictures(std::string name, Size pixels, double seconds)
        : name_(std::move(name)), pixels_(pixels), seconds_(seconds) {}

    std::unique_ptr<ImageFile> openImage(const Url&) override {
        return std::make_unique<Picture>(*this);
    }
    std::unique_ptr<RecordingFile> openRecording(const Url&) override {
        return std::make_unique<Film>(*this);
    }

private:
    struct Picture final : ImageFile {
        explicit Picture(const Pictures& of) : all(of) {}
        std::optional<Size> pixelSize() const override { return all.pixels_; }
        Size pointSize() const override { return all.pixels_; }
        ImagePointer draw(Size size) override { return landscape(all.name_, size); }
        const Pictures& all;
    };
    struct Film final : RecordingFile {
        explicit Film(const Pictures& of) : all(of) {}
        double duration() const override { return all.seconds_; }
        ImagePointer frame(double, double longest) override {
            if (!(all.pixels_.width > 0)) return nullptr;
            const double scale =
                std::min(1.0, longest / std::max(all.pixels_.width, all.pixels_.height));
            return landscape(all.name_, {all.pixels_.width * scale, all.pixels_.height * scale});
        }
        std::optional<Size> videoTrackSize() const override { return all.pixels_; }
        const Pictures& all;
    };

    std::string name_;
    Size pixels_;
    double seconds_;
};

}  // namespace

CapturePointer capture(const std::string& name, Size pixels, Date date) {
    const auto made = Capture::create(Url::file("/shots/" + name + ".png"), date);
    Pictures pictures(name, pixels, 0);
    if (pixels.width > 0) made->loadThumbnail(pictures);
    return made;
}

CapturePointer recording(const std::string& name, double seconds, Size pixels, Date date) {
    const auto made = Capture::create(Url::file("/shots/" + name + ".mov"), date);
    Pictures pictures(name, pixels, seconds);
    made->loadThumbnail(pictures);
    return made;
}

}  // namespace vantle
