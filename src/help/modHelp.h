#pragma once

#include <QList>
#include <QString>

class Services;

// One help topic: its whole text, and that text split at its first ":" into the name shown in
// the topic lists and the description shown beside them.
struct HelpTopic {
    QString text;
    QString name;
    QString description;
};

// The help topics of "Help_Topics.txt": the whole file is one text whose topics are separated
// by "*".
class HelpTopics {
public:
    // Reads the file from the data folder; a missing file gives no topics.
    void LoadHelpTopics(Services& services);
    // Splits the text of a topics file.
    static QList<HelpTopic> Parse(const QString& text);

    const QList<HelpTopic>& topics() const { return topics_; }
    qint16 TopicCount() const { return static_cast<qint16>(topics_.size()); }
    QStringList Names() const;

    // The first topic at or after from whose text contains phrase as one piece, ignoring letter
    // case; -1 when none does.
    int FindPhrase(const QString& phrase, int from) const;

private:
    QList<HelpTopic> topics_;
};

inline const QString kHelpFileName = QStringLiteral("Help_Topics.txt");
