#include "help/modHelp.h"

#include "shell/Files.h"
#include "shell/Services.h"
#include "shell/TextFile.h"

void HelpTopics::LoadHelpTopics(Services& services) {
    services.Trap("LoadHelpTopics", [&] {
        topics_.clear();
        QString path;
        if (!FileExists(services.AppFolder, kHelpFileName, &path))
            return;
        ClearAttributes(path);
        topics_ = Parse(textfile::ReadAll(path));
    });
}

QList<HelpTopic> HelpTopics::Parse(const QString& text) {
    QList<HelpTopic> topics;
    qsizetype star = text.indexOf(QLatin1Char('*'));
    while (star >= 0) {
        const qsizetype next = text.indexOf(QLatin1Char('*'), star + 1);
        HelpTopic topic;
        topic.text = text.mid(star + 1, next < 0 ? -1 : next - star - 1);
        const qsizetype colon = topic.text.indexOf(QLatin1Char(':'));
        topic.name = colon < 0 ? topic.text : topic.text.left(colon);
        topic.description = colon < 0 ? QString() : topic.text.mid(colon + 1);
        // A "*" at the very end (or followed only by a line break) starts no topic.
        if (!topic.text.trimmed().isEmpty())
            topics.append(topic);
        star = next;
    }
    return topics;
}

QStringList HelpTopics::Names() const {
    QStringList names;
    for (const HelpTopic& topic : topics_)
        names.append(topic.name);
    return names;
}

int HelpTopics::FindPhrase(const QString& phrase, int from) const {
    for (int i = std::max(from, 0); i < topics_.size(); ++i) {
        if (topics_[i].text.contains(phrase, Qt::CaseInsensitive))
            return i;
    }
    return -1;
}
