#include "decorations/modMonthIcons.h"

#include "decorations/DecorationMessages.h"
#include "shell/Files.h"
#include "shell/Prompts.h"
#include "shell/SavePath.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

namespace {

// The two fields of a "key:number" line; error 13 when there is no colon or no number.
std::pair<QString, int> SplitLine(const QString& line) {
    const qsizetype colon = line.lastIndexOf(QLatin1Char(':'));
    if (colon < 0)
        Raise(err::TypeMismatch);
    const int number = ToInt(QStringView(line).mid(colon + 1));
    if (number <= 0)
        Raise(err::TypeMismatch);
    return {line.left(colon).trimmed(), number};
}

}  // namespace

QString MonthIconsFileName(int month) {
    static const QStringList abbreviations = {
        QStringLiteral("Jan"), QStringLiteral("Feb"), QStringLiteral("Mar"), QStringLiteral("Apr"),
        QStringLiteral("May"), QStringLiteral("Jun"), QStringLiteral("Jul"), QStringLiteral("Aug"),
        QStringLiteral("Sep"), QStringLiteral("Oct"), QStringLiteral("Nov"), QStringLiteral("Dec")};
    return abbreviations.at(month - 1) + kMonthIconsSuffix;
}

void ParseMonthIconLine(int month, const QString& line, QList<PlacedIcon>& icons) {
    if (line.trimmed().isEmpty())
        return;
    const auto [key, number] = SplitLine(line);
    const QDate date = QDate::fromString(key, QStringLiteral("MM/dd/yyyy"));
    if (!date.isValid() || date.month() != month)
        Raise(err::TypeMismatch);
    icons.append({date, number});
}

void ParseMonthIcons(int month, const QStringList& lines, QList<PlacedIcon>& icons) {
    icons.clear();
    for (const QString& line : lines)
        ParseMonthIconLine(month, line, icons);
}

namespace {

QStringList MonthIconFields(const PlacedIcon& icon) {
    return {icon.date.toString(QStringLiteral("MM/dd/yyyy")), QString::number(icon.number)};
}

QStringList TemplateIconFields(const TemplateIcon& icon) {
    return {QStringLiteral("%1").arg(icon.day, 2, 10, QLatin1Char('0')),
            QString::number(icon.number)};
}

}  // namespace

QString MonthIconsText(const QList<PlacedIcon>& icons) {
    QString text;
    for (const PlacedIcon& icon : icons)
        text += MonthIconFields(icon).join(QLatin1Char(':')) + kCrLf;
    return text;
}

void ParseTemplateIconLine(const QString& line, QList<TemplateIcon>& icons) {
    if (line.trimmed().isEmpty())
        return;
    const auto [key, number] = SplitLine(line);
    const int day = ToInt(key);
    if (day < 1 || day > 31)
        Raise(err::TypeMismatch);
    icons.append({day, number});
}

void ParseTemplateIcons(const QStringList& lines, QList<TemplateIcon>& icons) {
    icons.clear();
    for (const QString& line : lines)
        ParseTemplateIconLine(line, icons);
}

QString TemplateIconsText(const QList<TemplateIcon>& icons) {
    QString text;
    for (const TemplateIcon& icon : icons)
        text += TemplateIconFields(icon).join(QLatin1Char(':')) + kCrLf;
    return text;
}

const RecordLayout& IconPlacesLayout() {
    static const RecordLayout layout;
    return layout;
}

modMonthIcons::modMonthIcons(Services& services, ChangeFlags& flags)
    : services_(services), flags_(flags), templateFile_(kTemplateFile) {}

void modMonthIcons::ReadAllIcons() {
    ReadTemplate();
    for (int month = 1; month <= 12; ++month)
        ReadMonth(month);
    changedMonth_ = 0;
    templateChanged_ = false;
}

modMonthIcons::MonthTable& modMonthIcons::Month(int month) {
    MonthTable& table = months_.at(month - 1);
    if (!table.read)
        ReadMonth(month);
    return table;
}

void modMonthIcons::ReadMonth(int month) {
    MonthTable& table = months_.at(month - 1);
    table = {};
    table.read = true;
    table.file.SetName(MonthIconsFileName(month));
    ReadDataFile(services_, "ReadMonthIcons", table.file, [&](QByteArrayView line, int) {
        ParseMonthIconLine(month, LineText(line), table.icons);
    });
}

void modMonthIcons::ReadTemplate() {
    template_.clear();
    templateRead_ = true;
    ReadDataFile(services_, "ReadTemplateIcons", templateFile_, [&](QByteArrayView line, int) {
        ParseTemplateIconLine(LineText(line), template_);
    });
}

const QList<PlacedIcon>& modMonthIcons::MonthIcons(int month) {
    return Month(month).icons;
}

const QList<TemplateIcon>& modMonthIcons::Template() {
    if (!templateRead_)
        ReadTemplate();
    return template_;
}

int modMonthIcons::TemplateIconsOn(const QDate& date) {
    int count = 0;
    for (const TemplateIcon& icon : Template())
        count += icon.day == date.day() ? 1 : 0;
    return count;
}

QList<int> modMonthIcons::IconsOn(const QDate& date) {
    QList<int> numbers;
    if (!date.isValid())
        return numbers;
    for (const TemplateIcon& icon : Template())
        if (icon.day == date.day())
            numbers.append(icon.number);
    if (flags_.TemplateMode)
        return numbers;
    for (const PlacedIcon& icon : MonthIcons(date.month()))
        if (icon.date == date)
            numbers.append(icon.number);
    return numbers;
}

void modMonthIcons::MonthChanged(int month) {
    changedMonth_ = month;
    flags_.MonthIconsChanged = true;
    emit iconsChanged();
}

void modMonthIcons::TemplateChanged() {
    templateChanged_ = true;
    flags_.MonthIconsChanged = true;
    emit iconsChanged();
}

void modMonthIcons::PlaceIcon(const QDate& date, int number) {
    if (!date.isValid() || number <= 0)
        return;
    if (flags_.TemplateMode) {
        Template();
        template_.append({date.day(), number});
        return TemplateChanged();
    }
    Month(date.month()).icons.append({date, number});
    MonthChanged(date.month());
}

bool modMonthIcons::RemoveIcon(const QDate& date, int index) {
    const int fromTemplate = TemplateIconsOn(date);
    if (index < 0 || index >= IconsOn(date).size())
        return true;
    if (index < fromTemplate) {
        if (!flags_.TemplateMode)
            return false;
        for (qsizetype i = 0, seen = 0; i < template_.size(); ++i) {
            if (template_[i].day == date.day() && seen++ == index) {
                template_.removeAt(i);
                break;
            }
        }
        TemplateChanged();
        return true;
    }
    QList<PlacedIcon>& icons = Month(date.month()).icons;
    for (qsizetype i = 0, seen = fromTemplate; i < icons.size(); ++i) {
        if (icons[i].date == date && seen++ == index) {
            icons.removeAt(i);
            break;
        }
    }
    MonthChanged(date.month());
    return true;
}

void modMonthIcons::RemoveAllIcons(const QDate& firstOfMonth) {
    if (flags_.TemplateMode) {
        Template();
        template_.clear();
        return TemplateChanged();
    }
    const int month = firstOfMonth.month();
    Month(month).icons.removeIf(
        [&](const PlacedIcon& icon) { return icon.date.year() == firstOfMonth.year(); });
    MonthChanged(month);
}

bool modMonthIcons::SaveMonthIcons(int month) {
    MonthTable& table = Month(month);
    Records records(IconPlacesLayout());
    for (const PlacedIcon& icon : table.icons)
        records.Add(MonthIconFields(icon));
    const SaveResult result = SaveDataFile(services_, "SaveMonthIcons", table.file, records);
    if (result == SaveResult::Refused)
        return false;
    if (result == SaveResult::Merged)
        ReadMonth(month);
    if (changedMonth_ == month) {
        changedMonth_ = 0;
        flags_.MonthIconsChanged = templateChanged_;
    }
    services_.dialogs.MsgBox(kMonthIconsSaved);
    return true;
}

bool modMonthIcons::SaveTemplateIcons() {
    Records records(IconPlacesLayout());
    for (const TemplateIcon& icon : Template())
        records.Add(TemplateIconFields(icon));
    const SaveResult result = SaveDataFile(services_, "SaveTemplateIcons", templateFile_, records);
    if (result == SaveResult::Refused)
        return false;
    if (result == SaveResult::Merged)
        ReadTemplate();
    templateChanged_ = false;
    flags_.MonthIconsChanged = changedMonth_ != 0;
    flags_.TemplateMode = false;
    services_.dialogs.MsgBox(kTemplateSaved);
    emit iconsChanged();
    return true;
}

void modMonthIcons::DiscardChanges() {
    if (changedMonth_ != 0)
        ReadMonth(changedMonth_);
    if (templateChanged_)
        ReadTemplate();
    changedMonth_ = 0;
    templateChanged_ = false;
    flags_.MonthIconsChanged = false;
    emit iconsChanged();
}
