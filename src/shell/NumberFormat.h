#pragma once

#include <QString>
#include <QStringView>
#include <optional>

// An amount or a mileage figure as people write it, or nothing when the text is no number:
// blanks around it, an optional sign and an optional leading currency sign in either order
// ("-$5.00", "$ -5.00", "€12"), then digits, in groups of three split by commas if wanted
// ("1,234.50"), and a decimal point with decimals. Anything more ("12.5 km", "1,23", "1.2.3",
// "5$") makes the text no number, so that it is never counted as another number; so does a
// blank text.
std::optional<double> ParseAmount(QStringView text);

// value in a "#" pattern with decimals places after the point ("#######.00" has 2,
// "##########" none): no leading zeros, so zero's whole part is empty (".00", and "" without
// decimals); the last place rounded half away from zero.
QString FormatHashes(double value, int decimals);

// value with its whole part in groups of three ("#,###,##0.00" for decimals 2, "#,###,##0"
// for none): 1234.5 is "1,234.50", zero is "0.00"; the last place rounded half away from zero.
QString FormatThousands(double value, int decimals);
