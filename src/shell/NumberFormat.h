#pragma once

#include <QString>
#include <QStringView>

// The number at the start of text, as the classic Val reads it: blanks are skipped, then an
// optional sign, digits and one decimal point are taken up to the first other character; text
// that does not start with a number is 0 ("12.5 km" is 12.5, "$5" is 0).
double Val(QStringView text);

// value in a "#" pattern with decimals places after the point ("#######.00" has 2,
// "##########" none): no leading zeros, so zero's whole part is empty (".00", and "" without
// decimals); the last place rounded half away from zero.
QString FormatHashes(double value, int decimals);

// value with its whole part in groups of three ("#,###,##0.00" for decimals 2, "#,###,##0"
// for none): 1234.5 is "1,234.50", zero is "0.00"; the last place rounded half away from zero.
QString FormatThousands(double value, int decimals);
