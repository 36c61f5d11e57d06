// "Icon Tags.dat", a month's icon file and "Template.dat" on any bytes: the readers never crash,
// what they read is well formed, and a file read whole is written back to text that reads the
// same.
#include "FuzzSupport.h"
#include "decorations/modIcons.h"
#include "decorations/modMonthIcons.h"
#include "shell/TextFile.h"
#include "shell/VbError.h"

namespace {

// Reads lines with parse; when the whole file was read, writes it back with text and reads it
// again, which must give the same entries.
template <class Entries, class Parse, class Text>
void RoundTrip(const QStringList& lines, Parse parse, Text text) {
    Entries entries;
    try {
        parse(lines, entries);
    } catch (const VbError& error) {
        fuzz::Check(error.number() == err::TypeMismatch ||
                        error.number() == err::InvalidProcedureCall ||
                        error.number() == err::Overflow,
                    "only a faulty line is refused");
        return;
    }
    Entries again;
    parse(textfile::SplitLines(textfile::Decode(textfile::Encode(text(entries)))), again);
    fuzz::Check(again == entries, "a file saved reads back the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QStringList lines = textfile::SplitLines(
        textfile::Decode(QByteArrayView(reinterpret_cast<const char*>(data), qsizetype(size))));
    RoundTrip<QList<IconTag>>(lines, ParseIconTags, IconTagsText);
    RoundTrip<QList<TemplateIcon>>(lines, ParseTemplateIcons, TemplateIconsText);
    RoundTrip<QList<PlacedIcon>>(
        lines, [](const QStringList& l, QList<PlacedIcon>& icons) { ParseMonthIcons(9, l, icons); },
        MonthIconsText);
    return 0;
}
