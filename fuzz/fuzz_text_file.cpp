// The text-file layer on any bytes: decoding and encoding are exact inverses where encoding
// succeeds, and lines split, joined and split again come out the same.
#include <cstring>

#include "FuzzSupport.h"
#include "shell/TextFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString text = textfile::Decode(bytes);
    try {
        fuzz::Check(textfile::Encode(text) == bytes, "decoded bytes encode back to themselves");
    } catch (const VbError&) {
    }
    const QStringList lines = textfile::SplitLines(text);
    QStringList byteLines;
    textfile::ForEachLine(bytes,
                          [&](QByteArrayView line) { byteLines.append(textfile::Decode(line)); });
    fuzz::Check(byteLines == lines, "lines split as bytes are the lines split as text");
    for (const QString& line : lines) {
        fuzz::Check(!line.contains(QLatin1Char('\r')) && !line.contains(QLatin1Char('\n')),
                    "a split line holds no line break");
    }
    // A last line that is empty is lost by design: a final line end starts no line.
    if (lines.isEmpty() || !lines.last().isEmpty())
        fuzz::Check(textfile::SplitLines(textfile::JoinLines(lines)) == lines,
                    "joined lines split into the same lines");
    // Any UTF-16 text, lone surrogates included, either encodes or is refused naming a
    // character.
    if (size >= 2) {
        QString utf16(static_cast<qsizetype>(size / 2), Qt::Uninitialized);
        std::memcpy(utf16.data(), data, size / 2 * 2);
        try {
            textfile::Encode(utf16);
        } catch (const VbError&) {
        }
    }
    return 0;
}
