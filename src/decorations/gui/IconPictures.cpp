#include "decorations/gui/IconPictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QList>
#include <QtEndian>

namespace iconpictures {

namespace {

constexpr int kLargest = 64;

void PutWord(QByteArray& bytes, quint16 value) {
    const quint16 le = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&le), sizeof le);
}

void PutLong(QByteArray& bytes, quint32 value) {
    const quint32 le = qToLittleEndian(value);
    bytes.append(reinterpret_cast<const char*>(&le), sizeof le);
}

QByteArray PngOf(const QImage& image) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

// The picture centred on a transparent square of size x size.
QImage Square(const QImage& image, int size) {
    QImage square(size, size, QImage::Format_ARGB32);
    square.fill(Qt::transparent);
    const QImage scaled = image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                              .convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < scaled.height(); ++y)
        for (int x = 0; x < scaled.width(); ++x)
            square.setPixel(x + (size - scaled.width()) / 2, y + (size - scaled.height()) / 2,
                            scaled.pixel(x, y));
    return square;
}

}  // namespace

QImage ReadPicture(const QString& path) {
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // A drawing without its own size (SVG) is drawn at the largest size; a large photo shrinks.
    if (!size.isValid() || size.width() > kLargest || size.height() > kLargest)
        reader.setScaledSize(size.isValid() ? size.scaled(kLargest, kLargest, Qt::KeepAspectRatio)
                                            : QSize(kLargest, kLargest));
    return reader.read();
}

// The file: a 6-byte header (0, type 1 = icon, count), one 16-byte entry per image (width,
// height, colours, reserved, planes, bits per pixel, size and offset of its data), then the
// PNG data of each image.
QByteArray IcoBytes(const QImage& image) {
    QList<QByteArray> pngs;
    const QList<int> sizes = {16, 32, kLargest};
    for (const int size : sizes)
        pngs.append(PngOf(Square(image, size)));
    QByteArray bytes;
    PutWord(bytes, 0);
    PutWord(bytes, 1);
    PutWord(bytes, quint16(sizes.size()));
    quint32 offset = quint32(6 + 16 * sizes.size());
    for (int i = 0; i < sizes.size(); ++i) {
        bytes.append(char(sizes[i] % 256));
        bytes.append(char(sizes[i] % 256));
        bytes.append(char(0));
        bytes.append(char(0));
        PutWord(bytes, 1);
        PutWord(bytes, 32);
        PutLong(bytes, quint32(pngs[i].size()));
        PutLong(bytes, offset);
        offset += quint32(pngs[i].size());
    }
    for (const QByteArray& png : pngs)
        bytes.append(png);
    return bytes;
}

}  // namespace iconpictures
