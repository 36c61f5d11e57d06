// Terms reaching the notes and the planner: dropped at the caret with the right joiner, offered
// while typing, and put in or kept by F2 and F3.
#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>

#include "MainWindowFixture.h"
#include "notes_planner/gui/NotesPlannerMenus.h"
#include "notes_planner/gui/PlannerPageView.h"
#include "notes_planner/gui/frmNotes.h"
#include "notes_planner/gui/frmPlanner.h"
#include "terms/gui/TermBoxes.h"
#include "terms/gui/TermMenus.h"
#include "terms/gui/frmFUT.h"
#include "terms/modFUT.h"

namespace {
const QByteArray kTerms = "Acme Corporation\r\nAccounts payable review\r\nQuarterly budget meeting";

// The planner's 07:00 line or the notes text, holding text with the caret at caret.
QWidget* EditorBox(MainWindowFixture& f, bool notes, const QString& text, int caret) {
    if (notes) {
        auto* edit = f.window.notesPlanner->OpenNotes()->Control<QPlainTextEdit>("txtNotes");
        edit->setPlainText(text);
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(caret);
        edit->setTextCursor(cursor);
        return edit;
    }
    QLineEdit* line = f.window.notesPlanner->OpenPlanner()->page().Box(1);
    line->setText(text);
    line->setCursorPosition(caret);
    line->setFocus();
    return line;
}

// The terms on offer in box after typing typed into it.
QStringList Offered(MainWindowFixture& f, QWidget* box, const QString& typed) {
    if (auto* line = qobject_cast<QLineEdit*>(box))
        line->clear();
    else
        static_cast<QPlainTextEdit*>(box)->clear();
    box->setFocus();
    QTest::keyClicks(box, typed);
    QCompleter* completer = f.window.terms->boxes().CompleterOf(box);
    QStringList shown;
    if (completer && completer->popup()->isVisible())
        for (int row = 0; row < completer->completionCount(); ++row)
            shown.append(completer->completionModel()->index(row, 0).data().toString());
    return shown;
}

QString TextOf(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box))
        return line->text();
    return static_cast<QPlainTextEdit*>(box)->toPlainText();
}
}  // namespace

class TermsInEditorsTest : public QObject {
    Q_OBJECT

private slots:
    void droppedTermJoinsTheTextAtTheCaret_data() {
        QTest::addColumn<bool>("notes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("caret");
        QTest::addColumn<QString>("result");
        QTest::newRow("planner, after a word") << false << "Meet" << 4 << "Meet Acme Corporation";
        QTest::newRow("planner, after a blank") << false << "Meet " << 5 << "Meet Acme Corporation";
        QTest::newRow("planner, empty line") << false << "" << 0 << "Acme Corporation";
        QTest::newRow("planner, inside a word")
            << false << "MeetBob" << 4 << "Meet Acme Corporation Bob";
        QTest::newRow("notes, end of a line") << true << "Call" << 4 << "Call\nAcme Corporation";
        QTest::newRow("notes, inside a line")
            << true << "Call Bob" << 4 << "Call Acme Corporation Bob";
        QTest::newRow("notes, start of a line") << true << "Call\n"
                                                << 5 << "Call\nAcme Corporation";
    }
    void droppedTermJoinsTheTextAtTheCaret() {
        QFETCH(bool, notes);
        QFETCH(QString, text);
        QFETCH(int, caret);
        QFETCH(QString, result);
        MainWindowFixture f;
        f.Start();
        QWidget* box = EditorBox(f, notes, text, caret);
        QWidget* target = notes ? static_cast<QPlainTextEdit*>(box)->viewport() : box;
        std::unique_ptr<QMimeData> data(TermBoxes::DragData(QStringLiteral("Acme Corporation")));
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, data.get(), Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
        QCOMPARE(TextOf(box), result);
        // The drop is an edit like typing: the editor asks before closing without saving.
        QVERIFY(notes ? f.env.state->changes.NotesChanged : f.env.state->changes.PlannerChanged);
    }

    void typingOffersTermsOfTheCurrentList_data() {
        QTest::addColumn<bool>("notes");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<bool>("autoComplete");
        QTest::addColumn<QStringList>("offered");
        QTest::addColumn<QString>("afterTab");  // the text once Tab takes the first offer
        const QStringList ac{"Acme Corporation", "Accounts payable review"};
        QTest::newRow("planner, two letters")
            << false << "Meet ac" << true << ac << "Meet Acme Corporation";
        QTest::newRow("notes, two letters")
            << true << "Meet ac" << true << ac << "Meet Acme Corporation";
        QTest::newRow("one letter is too few") << false << "Meet a" << true << QStringList{} << "";
        QTest::newRow("no term begins so") << false << "Meet zz" << true << QStringList{} << "";
        QTest::newRow("switched off") << false << "Meet ac" << false << QStringList{} << "";
    }
    void typingOffersTermsOfTheCurrentList() {
        QFETCH(bool, notes);
        QFETCH(QString, typed);
        QFETCH(bool, autoComplete);
        QFETCH(QStringList, offered);
        QFETCH(QString, afterTab);
        MainWindowFixture f;
        f.env.write(kDefaultTermFile, kTerms);
        if (!autoComplete)
            f.env.write("UserPreferences.txt", "Auto Complete Word:False\r\n");
        f.Start();
        QWidget* box = EditorBox(f, notes, {}, 0);
        QCOMPARE(Offered(f, box, typed), offered);
        if (offered.isEmpty())
            return;
        QCompleter* completer = f.window.terms->boxes().CompleterOf(box);
        QTest::keyClick(completer->popup(), Qt::Key_Tab);
        QCOMPARE(TextOf(box), afterTab);
        QVERIFY(!completer->popup()->isVisible());
    }

    // The offers are the current term file as it is now: read without the term window, read
    // again once the file changed or another file was chosen.
    void offersFollowTheTermFile() {
        MainWindowFixture f;
        f.env.write(kDefaultTermFile, "Acme Corporation");
        f.env.write("Sales.fut", "Acorn\r\nAce");
        f.Start();
        QWidget* box = EditorBox(f, false, {}, 0);
        QCOMPARE(Offered(f, box, "ac"), QStringList{"Acme Corporation"});
        f.env.write(kDefaultTermFile, "Acme Corporation\r\nAccounts");
        QCOMPARE(Offered(f, box, "ac"), (QStringList{"Acme Corporation", "Accounts"}));
        f.env.state->terms.SetCurrentFile("Sales.fut");
        QCOMPARE(Offered(f, box, "ac"), (QStringList{"Acorn", "Ace"}));
        // A list not made yet offers nothing, and typing does not make it.
        f.env.state->terms.SetCurrentFile("New.fut");
        QCOMPARE(Offered(f, box, "ac"), QStringList{});
        QVERIFY(!f.env.exists("New.fut"));
    }

    void f2PutsInThePickedTermAndF3KeepsTheWord() {
        MainWindowFixture f;
        f.env.write(kDefaultTermFile, kTerms);
        f.Start();
        f.menu("mnuFileOpenFUT")->trigger();
        frmFUT* window = f.window.terms->termWindow();
        window->Control<QListWidget>("lstFUT")->setCurrentRow(2);
        auto* box = static_cast<QLineEdit*>(EditorBox(f, false, "Call Zed", 8));
        QTest::keyClick(box, Qt::Key_F2);
        QCOMPARE(box->text(), "Call Zed Quarterly budget meeting");
        box->setText("Call Zed");
        QTest::keyClick(box, Qt::Key_F3);
        auto* editor = f.frame().ChildWindow("frmEditFUT");
        QVERIFY(editor);
        QCOMPARE(FindControl<QLineEdit>(editor, "txtTerm")->text(), "Zed");
        QTest::mouseClick(FindControl<QWidget>(editor, "cmdSave"), Qt::LeftButton);
        QCOMPARE(f.env.read(kDefaultTermFile), kTerms + "\r\nZed");
    }
};

ORVANTA_TEST_MAIN(TermsInEditorsTest)
#include "tst_terms_in_editors.moc"
