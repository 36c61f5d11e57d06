#include "FakeDialogs.h"

namespace {

QString Visible(const QString& text) {
    QString shown = text;
    return shown.replace(QStringLiteral("\r"), QStringLiteral("\\r"))
        .replace(QStringLiteral("\n"), QStringLiteral("\\n"));
}

QString Describe(const FakeDialogs::Box& box) {
    static const char* const kinds[] = {"MsgBox", "InputBox", "OpenFile", "SaveFile", "Color"};
    return QStringLiteral("%1(text=\"%2\", style=%3, title=\"%4\", default=\"%5\")")
        .arg(QString::fromLatin1(kinds[static_cast<int>(box.kind)]), Visible(box.text))
        .arg(box.style)
        .arg(box.title, Visible(box.defaultText));
}

// The answer a box gets when nobody scripted it: the safest button.
int DefaultAnswer(int style) {
    switch (vb::ButtonsOf(style)) {
        case vb::YesNo:
            return vb::No;
        case vb::OKOnly:
            return vb::OK;
        default:
            return vb::Cancel;
    }
}

}  // namespace

FakeDialogs& FakeDialogs::ExpectMsgBox(const QString& text, int style, const QString& title,
                                       int answer) {
    Box box;
    box.text = text;
    box.style = style;
    box.title = title;
    box.answer = answer;
    expected_.append(box);
    return *this;
}

FakeDialogs& FakeDialogs::ExpectInputBox(const QString& prompt, const QString& title,
                                         const QString& defaultText, const QString& answer) {
    Box box;
    box.kind = Kind::Input;
    box.text = prompt;
    box.title = title;
    box.defaultText = defaultText;
    box.textAnswer = answer;
    expected_.append(box);
    return *this;
}

FakeDialogs& FakeDialogs::ExpectOpenFile(const QString& answer) {
    Box box;
    box.kind = Kind::OpenFile;
    box.textAnswer = answer;
    expected_.append(box);
    return *this;
}

FakeDialogs& FakeDialogs::ExpectSaveFile(const QString& answer) {
    Box box;
    box.kind = Kind::SaveFile;
    box.textAnswer = answer;
    expected_.append(box);
    return *this;
}

FakeDialogs& FakeDialogs::ExpectColor(std::optional<quint32> answer) {
    Box box;
    box.kind = Kind::Color;
    box.colorAnswer = answer;
    expected_.append(box);
    return *this;
}

QString FakeDialogs::Problems() const {
    QStringList all = problems_;
    for (const Box& box : expected_)
        all.append(QStringLiteral("expected but never shown: ") + Describe(box));
    return all.join(QLatin1Char('\n'));
}

void FakeDialogs::Reset() {
    expected_.clear();
    problems_.clear();
    shown_.clear();
}

std::optional<FakeDialogs::Box> FakeDialogs::Take(const Box& actual) {
    shown_.append(actual.title + QStringLiteral(" | ") + actual.text);
    if (expected_.isEmpty()) {
        problems_.append(QStringLiteral("unexpected: ") + Describe(actual));
        return std::nullopt;
    }
    const Box expected = expected_.takeFirst();
    const bool filePicker = actual.kind == Kind::OpenFile || actual.kind == Kind::SaveFile ||
                            actual.kind == Kind::Color;
    const bool same =
        expected.kind == actual.kind &&
        (filePicker ||
         (expected.text == actual.text && expected.style == actual.style &&
          expected.title == actual.title && expected.defaultText == actual.defaultText));
    if (!same) {
        problems_.append(QStringLiteral("expected: ") + Describe(expected) +
                         QStringLiteral("\n     shown: ") + Describe(actual));
    }
    return expected;
}

int FakeDialogs::MsgBox(const QString& text, int style, const QString& title) {
    Box actual;
    actual.text = text;
    actual.style = style;
    actual.title = title;
    const auto box = Take(actual);
    return box ? box->answer : DefaultAnswer(style);
}

QString FakeDialogs::InputBox(const QString& prompt, const QString& title,
                              const QString& defaultText) {
    Box actual;
    actual.kind = Kind::Input;
    actual.text = prompt;
    actual.title = title;
    actual.defaultText = defaultText;
    const auto box = Take(actual);
    return box ? box->textAnswer : QString();
}

QString FakeDialogs::OpenFileName(const QString& caption, const QString&, const QString&) {
    Box actual;
    actual.kind = Kind::OpenFile;
    actual.text = caption;
    const auto box = Take(actual);
    return box ? box->textAnswer : QString();
}

QString FakeDialogs::SaveFileName(const QString& caption, const QString&, const QString&) {
    Box actual;
    actual.kind = Kind::SaveFile;
    actual.text = caption;
    const auto box = Take(actual);
    return box ? box->textAnswer : QString();
}

std::optional<quint32> FakeDialogs::PickColor(quint32, const QString& title) {
    Box actual;
    actual.kind = Kind::Color;
    actual.title = title;
    const auto box = Take(actual);
    return box ? box->colorAnswer : std::nullopt;
}
