#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

// The pictures of the icon library are .ico files. A picture the user adds (PNG, ICO or SVG)
// is read at the size a day cell shows it and stored as an .ico file holding it PNG-compressed
// at the sizes the calendar draws.
namespace iconpictures {

// The picture in the file at path, scaled to fit 64 x 64; a null image when it cannot be read.
QImage ReadPicture(const QString& path);

// An .ico file holding image at 16, 32 and 64 pixels, each entry PNG data.
QByteArray IcoBytes(const QImage& image);

}  // namespace iconpictures
