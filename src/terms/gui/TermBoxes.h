#pragma once

#include <QDateTime>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <optional>

class QCompleter;
class QMimeData;
class QStringListModel;
class QWidget;
class Services;
class UserPreferences;
class modFUT;

// The text boxes of the notes and the planner as the terms reach them. A term dragged from the
// term window and dropped on a box goes in at the box's caret, joined to the text before it;
// while the user types, the terms of the current list that begin like the word being typed are
// offered in a list under the caret (the list as its file holds it now, read again whenever
// another list was chosen or the file changed, whoever changed it): Tab takes the first (or the
// one picked with the arrow keys), Enter the one picked, Esc or typing on closes it. Offering is
// switched on and off by the user and remembered ("Auto Complete Word:", on unless "False").
class TermBoxes : public QObject {
    Q_OBJECT
public:
    TermBoxes(Services& services, UserPreferences& prefs, modFUT& terms, QObject* parent);

    // Makes box (a QLineEdit or QPlainTextEdit) take dropped terms and offer terms.
    void Attach(QWidget* box);

    // Puts term into box at its caret, joined as a dropped term is.
    static void InsertTerm(QWidget* box, const QString& term);
    // What a term dragged from the term window carries.
    static QMimeData* DragData(const QString& term);

    bool AutoComplete() const;
    void SetAutoComplete(bool on);

    // The completer of box, once an offer has been made there (for the tests).
    QCompleter* CompleterOf(QWidget* box) const { return completers_.value(box); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Offer(QWidget* box);
    QCompleter* MakeCompleter(QWidget* box);
    bool TakeOffer(QWidget* box, bool firstIfNonePicked);
    // Reads the current term file into the offers when it is not the one last read, or has
    // changed since.
    void FollowTermFile();

    // The term file the offers were read from, as it was then (no path: none existed).
    struct TermFileStamp {
        QString path;
        QDateTime modified;
        qint64 size = -1;
        bool operator==(const TermFileStamp&) const = default;
    };

    Services& services_;
    UserPreferences& prefs_;
    modFUT& terms_;
    QStringListModel* model_;
    QHash<QWidget*, QCompleter*> completers_;
    std::optional<TermFileStamp> offeredFrom_;
    bool inserting_ = false;
};
