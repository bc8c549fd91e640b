// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtPicture.h"

#include "PropertyDictionary.h"
#include "UprightImage.h"

#include <QIODevice>
#include <QImageReader>

#include <algorithm>
#include <mutex>

namespace chronomender {

namespace {

struct PluginFormat {
    FileFormatType format;
    const char *name;
};
constexpr PluginFormat kPluginFormats[]{{FileFormatPng, "png"},
                                        {FileFormatGif, "gif"},
                                        {FileFormatWebp, "webp"},
                                        {FileFormatTiff, "tiff"}};

/// The file for the plugins. They map a QFile into memory, and would die with a file that shrinks.
class PictureDevice final : public QIODevice {
public:
    PictureDevice(const PictureFile &file, const PicturePatience &patience)
        : m_file(file), m_patience(patience) {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    qint64 size() const override { return static_cast<qint64>(m_file.length()); }

protected:
    qint64 readData(char *data, qint64 most) override {
        if (m_patience.isOver() || pos() < 0 || most < 0)
            return -1;
        return static_cast<qint64>(
            m_file.read({data, static_cast<std::size_t>(most)}, static_cast<std::uint64_t>(pos())));
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const PictureFile &m_file;
    const PicturePatience &m_patience;
};

void boundPluginMemory() {
    static std::once_flag once;
    std::call_once(once, [] { QImageReader::setAllocationLimit(int(kMostPictureBytes >> 20U)); });
}

} // namespace

UprightPicture qtPicture(PictureFile &file, FileFormatType format, const PictureWish &wish) {
    if (wish.choice == PictureChoice::EmbeddedOnly)
        return failed(PictureFailure::NoPicture);
    const auto *plugin = std::ranges::find(kPluginFormats, format, &PluginFormat::format);
    if (plugin == std::end(kPluginFormats))
        return failed(PictureFailure::DamagedOrUnknown);
    boundPluginMemory();
    PictureDevice device(file, wish.patience);
    QImageReader reader(&device, plugin->name);
    reader.setAutoTransform(false);
    const QSize size = reader.size();
    if (pixelsOf(size.width(), size.height()) > kMostDecodedPixels)
        return failed(PictureFailure::TooLarge);
    // Twice the wanted size, as the plugins scale more coarsely than we do.
    if (size.isValid())
        reader.setScaledSize(sizeWithSide(size, wish.side * 2));
    const QImage image = reader.read();
    if (image.isNull())
        return failed(wish.patience.failureOr(PictureFailure::DamagedOrUnknown));
    const QImage scaled = inScreenColours(scaledToSide(image, wish.side), image.colorSpace());
    const auto properties = readPropertyDictionary(file.path());
    return pictureOr(turnedUpright(scaled, properties ? properties->orientation : 1), false,
                     PictureFailure::DamagedOrUnknown);
}

} // namespace chronomender
