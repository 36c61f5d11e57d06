#include "notes_planner/gui/UnsavedTracker.h"

#include <QTimer>

#include "shell/DateFormats.h"
#include "shell/Dialogs.h"

QString RestoreQuestion(EditorKind kind, const QDate& date) {
    const bool notes = kind == EditorKind::Notes;
    return QStringLiteral("Orvanta closed before ") +
           (notes ? QStringLiteral("the notes") : QStringLiteral("the planner page")) +
           QStringLiteral(" of ") + datefmt::LongDate(date) +
           (notes ? QStringLiteral(" were") : QStringLiteral(" was")) +
           QStringLiteral(" saved. The unsaved text was kept. Do you want to restore it?");
}

QString RestoreTitle(EditorKind kind) {
    return kind == EditorKind::Notes ? QStringLiteral("Unsaved Notes Found")
                                     : QStringLiteral("Unsaved Planner Found");
}

UnsavedTracker::UnsavedTracker(UnsavedWork& unsaved, EditorKind kind, bool& changedFlag,
                               std::function<UnsavedEdit()> snapshot, QObject* parent)
    : QObject(parent),
      unsaved_(unsaved),
      kind_(kind),
      changed_(changedFlag),
      snapshot_(std::move(snapshot)),
      timer_(new QTimer(this)) {
    timer_->setSingleShot(true);
    timer_->setInterval(kKeepDelayMs);
    connect(timer_, &QTimer::timeout, this, &UnsavedTracker::KeepNow);
    changed_ = false;
}

void UnsavedTracker::EditorClosing() {
    // The program's closing questions clear the flag of changes given up; whatever is still
    // flagged now was neither saved nor given up.
    if (changed_)
        unsaved_.Keep(kind_, snapshot_());
    else if (kept_)
        unsaved_.Forget(kind_);
    changed_ = false;
}

void UnsavedTracker::MarkChanged() {
    changed_ = true;
    // Counted from the first change not yet kept, so that steady typing is kept every few
    // seconds too.
    if (!timer_->isActive())
        timer_->start();
}

void UnsavedTracker::MarkClean() {
    changed_ = false;
    timer_->stop();
    if (kept_)
        unsaved_.Forget(kind_);
    kept_ = false;
}

void UnsavedTracker::KeepNow() {
    timer_->stop();
    if (!changed_)
        return;
    unsaved_.Keep(kind_, snapshot_());
    kept_ = true;
}

bool UnsavedTracker::AskBeforeClosing(Dialogs& dialogs, const QString& question,
                                      const QString& title, const std::function<bool()>& save) {
    if (!changed_)
        return true;
    switch (dialogs.MsgBox(question, vb::YesNoCancel | vb::Question, title)) {
        case vb::Yes:
            return save();
        case vb::No:
            MarkClean();
            return true;
        default:
            return false;
    }
}

bool UnsavedTracker::OfferLeftover(Dialogs& dialogs, const QDate& date, const QString& externalFile,
                                   UnsavedEdit& edit, bool ask) {
    const std::optional<UnsavedEdit> leftover = unsaved_.Leftover(kind_);
    if (!leftover || leftover->date != date || leftover->externalFile != externalFile)
        return false;
    if (ask && dialogs.MsgBox(RestoreQuestion(kind_, date), kQuestionStyle, RestoreTitle(kind_)) !=
                   vb::Yes) {
        unsaved_.Forget(kind_);
        return false;
    }
    edit = *leftover;
    // The copy is this editor's now: saving or giving up the text removes it.
    kept_ = true;
    return true;
}
