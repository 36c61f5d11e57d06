#include "terms/gui/TermBoxes.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStringListModel>
#include <QTextBlock>

#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/UserPreferences.h"
#include "terms/TermText.h"
#include "terms/modFUT.h"

namespace {
const QString kTermMimeType = QStringLiteral("application/x-orvanta-term");

// The text before and after the caret that decides how a term is joined: the caret's line,
// with a line break standing for the lines before it.
struct CaretText {
    QString before;
    QString after;
};

CaretText AroundCaret(QWidget* box) {
    if (auto* line = qobject_cast<QLineEdit*>(box))
        return {line->text().left(line->cursorPosition()),
                line->text().mid(line->cursorPosition())};
    auto* edit = static_cast<QPlainTextEdit*>(box);
    const QTextCursor cursor = edit->textCursor();
    const QString block = cursor.block().text();
    const int at = cursor.positionInBlock();
    QString before = block.left(at);
    if (at == 0 && cursor.block().previous().isValid())
        before = QStringLiteral("\n");
    return {before, block.mid(at)};
}

// The box a drag or drop event was sent to: the text area of a notes box is its viewport.
QWidget* BoxOf(QObject* watched) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && qobject_cast<QPlainTextEdit*>(widget->parentWidget()))
        return widget->parentWidget();
    return widget;
}
}  // namespace

TermBoxes::TermBoxes(Services& services, UserPreferences& prefs, modFUT& terms, QObject* parent)
    : QObject(parent),
      services_(services),
      prefs_(prefs),
      terms_(terms),
      model_(new QStringListModel(this)) {}

void TermBoxes::Attach(QWidget* box) {
    box->setAcceptDrops(true);
    if (auto* edit = qobject_cast<QPlainTextEdit*>(box)) {
        edit->viewport()->setAcceptDrops(true);
        edit->viewport()->installEventFilter(this);
        connect(edit, &QPlainTextEdit::textChanged, this, [this, edit] {
            if (edit->hasFocus())
                Offer(edit);
        });
    } else if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->installEventFilter(this);
        connect(line, &QLineEdit::textEdited, this, [this, line] { Offer(line); });
    }
    connect(box, &QObject::destroyed, this, [this, box] { completers_.remove(box); });
}

QMimeData* TermBoxes::DragData(const QString& term) {
    auto* data = new QMimeData;
    data->setData(kTermMimeType, term.toUtf8());
    data->setText(term);
    return data;
}

void TermBoxes::InsertTerm(QWidget* box, const QString& term) {
    const CaretText around = AroundCaret(box);
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->insert(TermInsertion(around.before, around.after, term, false));
        return;
    }
    auto* edit = static_cast<QPlainTextEdit*>(box);
    edit->insertPlainText(TermInsertion(around.before, around.after, term, true));
}

bool TermBoxes::AutoComplete() const {
    return prefs_.Value(prefkey::AutoCompleteWord)
               .trimmed()
               .compare(QStringLiteral("False"), Qt::CaseInsensitive) != 0;
}

void TermBoxes::SetAutoComplete(bool on) {
    prefs_.SetValue(prefkey::AutoCompleteWord,
                    on ? QStringLiteral("True") : QStringLiteral("False"));
    services_.Trap("SaveUserPreferences", [this] { prefs_.SaveUserPreferences(services_); });
}

QCompleter* TermBoxes::MakeCompleter(QWidget* box) {
    QCompleter*& completer = completers_[box];
    if (completer)
        return completer;
    completer = new QCompleter(model_, box);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    completer->setWidget(box);
    // Enter and Tab are decided here, before the completer's own handling, so that a key
    // meant for the box (Enter to the next line) is not taken by an offer nobody picked.
    completer->popup()->installEventFilter(this);
    connect(completer, qOverload<const QString&>(&QCompleter::activated), this,
            [this, box](const QString&) { TakeOffer(box, false); });
    return completer;
}

void TermBoxes::Offer(QWidget* box) {
    if (inserting_ || !AutoComplete())
        return;
    const QString word = WordBeforeCaret(AroundCaret(box).before);
    QCompleter* completer = completers_.value(box);
    if (word.size() < AutoStartLetters(prefs_.Value(prefkey::AutoStartPosition))) {
        if (completer)
            completer->popup()->hide();
        return;
    }
    FollowTermFile();
    completer = MakeCompleter(box);
    completer->setCompletionPrefix(word);
    const bool offers = completer->completionCount() > 0 &&
                        completer->currentCompletion().compare(word, Qt::CaseInsensitive) != 0;
    if (!offers) {
        completer->popup()->hide();
        return;
    }
    QRect caret = box->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    caret.setWidth(completer->popup()->sizeHintForColumn(0) +
                   completer->popup()->verticalScrollBar()->sizeHint().width() + 8);
    completer->complete(caret);
}

void TermBoxes::FollowTermFile() {
    QString path;
    TermFileStamp now;
    if (FileExists(services_.AppFolder, terms_.CurrentFile(), &path)) {
        const QFileInfo file(path);
        now = {file.absoluteFilePath(), file.lastModified(), file.size()};
    }
    if (now == offeredFrom_)
        return;
    offeredFrom_ = now;
    // A list that does not exist yet offers nothing; it is not made by typing.
    if (now.path.isEmpty() || !terms_.ReadFrequentlyUsedTerms())
        model_->setStringList({});
    else
        model_->setStringList(terms_.Terms());
}

bool TermBoxes::TakeOffer(QWidget* box, bool firstIfNonePicked) {
    QCompleter* completer = completers_.value(box);
    if (!completer)
        return false;
    QModelIndex index = completer->popup()->currentIndex();
    if (!index.isValid() && firstIfNonePicked)
        index = completer->completionModel()->index(0, 0);
    completer->popup()->hide();
    if (!index.isValid())
        return false;
    const QString term = index.data().toString();
    const QString word = WordBeforeCaret(AroundCaret(box).before);
    inserting_ = true;
    if (auto* line = qobject_cast<QLineEdit*>(box)) {
        line->setSelection(line->cursorPosition() - int(word.size()), int(word.size()));
        line->insert(term);
    } else {
        auto* edit = static_cast<QPlainTextEdit*>(box);
        QTextCursor cursor = edit->textCursor();
        cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, int(word.size()));
        cursor.insertText(term);
        edit->setTextCursor(cursor);
    }
    inserting_ = false;
    return true;
}

bool TermBoxes::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress) {
        for (auto it = completers_.cbegin(); it != completers_.cend(); ++it) {
            if (watched != it.value()->popup() || !it.value()->popup()->isVisible())
                continue;
            auto* key = static_cast<QKeyEvent*>(event);
            const bool tab = key->key() == Qt::Key_Tab;
            if (!tab && key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter)
                return false;
            if (!TakeOffer(it.key(), tab) && !tab)
                QCoreApplication::sendEvent(it.key(), event);
            return true;
        }
        return false;
    }
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event);
    if (!drop->mimeData()->hasFormat(kTermMimeType))
        return QObject::eventFilter(watched, event);
    // The term goes in at the caret, where the user was writing, not where the mouse is.
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (type == QEvent::Drop) {
        QWidget* box = BoxOf(watched);
        box->setFocus(Qt::OtherFocusReason);
        InsertTerm(box, QString::fromUtf8(drop->mimeData()->data(kTermMimeType)));
    }
    return true;
}
