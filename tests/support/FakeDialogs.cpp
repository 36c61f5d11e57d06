#include "FakeDialogs.h"

#include <QTest>

namespace {

// The running test function with its data row, such as "save(empty)"; empty outside any test.
QString RunningTest() {
    const char* function = QTest::currentTestFunction();
    if (!function)
        return {};
    const char* row = QTest::currentDataTag();
    return row && *row ? QStringLiteral("%1(%2)").arg(QLatin1String(function), QLatin1String(row))
                       : QString::fromLatin1(function);
}

QString Visible(QString text) {
    return text.replace(QStringLiteral("\r"), QStringLiteral("\\r"))
        .replace(QStringLiteral("\n"), QStringLiteral("\\n"));
}

QString Describe(const FakeDialogs::Box& box) {
    static const char* const kinds[] = {"MsgBox",   "InputBox", "OpenFile",
                                        "SaveFile", "Color",    "Folder"};
    return QStringLiteral("%1(text=\"%2\", style=%3, title=\"%4\", default=\"%5\")")
        .arg(QString::fromLatin1(kinds[static_cast<int>(box.kind)]), Visible(box.text))
        .arg(box.style)
        .arg(box.title, Visible(box.defaultText));
}

// The answer a box gets when nobody scripted it: the safest button.
int DefaultAnswer(int style) {
    const int buttons = vb::ButtonsOf(style);
    return buttons == vb::YesNo ? vb::No : buttons == vb::OKOnly ? vb::OK : vb::Cancel;
}

}  // namespace

FakeDialogs::~FakeDialogs() {
    if (Ok())
        return;
    const QString report = QStringLiteral("boxes other than the test expected:\n") + TakeProblems();
    if (!QTest::currentTestFunction())
        qFatal("%s", qPrintable(report));  // no test is running that could fail instead
    else if (QTest::currentTestFailed())
        qWarning("%s", qPrintable(report));  // the first failure stays the reported one
    else
        QTest::qFail(qPrintable(report), __FILE__, __LINE__);
}

FakeDialogs& FakeDialogs::Expect(Box box) {
    expected_.append({std::move(box), RunningTest()});
    return *this;
}

FakeDialogs& FakeDialogs::ExpectMsgBox(const QString& text, int style, const QString& title,
                                       int answer) {
    return Expect({Kind::Message, text, style, title, {}, answer, {}, {}});
}

FakeDialogs& FakeDialogs::ExpectInputBox(const QString& prompt, const QString& title,
                                         const QString& defaultText, const QString& answer) {
    return Expect({Kind::Input, prompt, vb::OKOnly, title, defaultText, vb::OK, answer, {}});
}

FakeDialogs& FakeDialogs::ExpectOpenFile(const QString& answer) {
    return Expect({Kind::OpenFile, {}, vb::OKOnly, {}, {}, vb::OK, answer, {}});
}

FakeDialogs& FakeDialogs::ExpectSaveFile(const QString& answer) {
    return Expect({Kind::SaveFile, {}, vb::OKOnly, {}, {}, vb::OK, answer, {}});
}

FakeDialogs& FakeDialogs::ExpectFolder(const QString& answer) {
    return Expect({Kind::Folder, {}, vb::OKOnly, {}, {}, vb::OK, answer, {}});
}

FakeDialogs& FakeDialogs::ExpectColor(std::optional<quint32> answer) {
    return Expect({Kind::Color, {}, vb::OKOnly, {}, {}, vb::OK, {}, answer});
}

QString FakeDialogs::Problems() const {
    // An environment kept across test functions may report a problem in a later one; it then
    // names the test function it came from.
    const QString now = RunningTest();
    QStringList all;
    const auto add = [&](const QString& text, const QString& test) {
        if (test == now)
            all.append(text);
        else
            all.append(text + QStringLiteral("\n     in ") +
                       (test.isEmpty() ? QStringLiteral("no test function") : test));
    };
    for (const Problem& problem : problems_)
        add(problem.text, problem.test);
    for (const Queued& queued : expected_)
        add(QStringLiteral("expected but never shown: ") + Describe(queued.box), queued.test);
    return all.join(QLatin1Char('\n'));
}

QString FakeDialogs::TakeProblems() {
    const QString problems = Problems();
    expected_.clear();
    problems_.clear();
    return problems;
}

void FakeDialogs::Reset() {
    expected_.clear();
    problems_.clear();
    shown_.clear();
}

std::optional<FakeDialogs::Box> FakeDialogs::Take(const Box& actual) {
    shown_.append(actual.title + QStringLiteral(" | ") + actual.text);
    if (expected_.isEmpty()) {
        problems_.append({QStringLiteral("unexpected: ") + Describe(actual), RunningTest()});
        return std::nullopt;
    }
    const Box expected = expected_.takeFirst().box;
    // Pickers are matched by their kind alone; boxes by their text, style, title and default.
    const bool picker = actual.kind != Kind::Message && actual.kind != Kind::Input;
    const bool same =
        expected.kind == actual.kind &&
        (picker || (expected.text == actual.text && expected.style == actual.style &&
                    expected.title == actual.title && expected.defaultText == actual.defaultText));
    if (!same) {
        problems_.append({QStringLiteral("expected: ") + Describe(expected) +
                              QStringLiteral("\n     shown: ") + Describe(actual),
                          RunningTest()});
    }
    return expected;
}

int FakeDialogs::MsgBox(const QString& text, int style, const QString& title) {
    const auto box = Take({Kind::Message, text, style, title, {}, vb::OK, {}, {}});
    return box ? box->answer : DefaultAnswer(style);
}

QString FakeDialogs::InputBox(const QString& prompt, const QString& title,
                              const QString& defaultText) {
    const auto box = Take({Kind::Input, prompt, vb::OKOnly, title, defaultText, vb::OK, {}, {}});
    return box ? box->textAnswer : QString();
}

QString FakeDialogs::OpenFileName(const QString& caption, const QString&, const QString&) {
    const auto box = Take({Kind::OpenFile, caption, vb::OKOnly, {}, {}, vb::OK, {}, {}});
    return box ? box->textAnswer : QString();
}

QString FakeDialogs::SaveFileName(const QString& caption, const QString&, const QString&) {
    const auto box = Take({Kind::SaveFile, caption, vb::OKOnly, {}, {}, vb::OK, {}, {}});
    return box ? box->textAnswer : QString();
}

QString FakeDialogs::FolderName(const QString& caption, const QString&) {
    const auto box = Take({Kind::Folder, caption, vb::OKOnly, {}, {}, vb::OK, {}, {}});
    return box ? box->textAnswer : QString();
}

std::optional<quint32> FakeDialogs::PickColor(quint32, const QString& title) {
    const auto box = Take({Kind::Color, {}, vb::OKOnly, title, {}, vb::OK, {}, {}});
    return box ? box->colorAnswer : std::nullopt;
}
