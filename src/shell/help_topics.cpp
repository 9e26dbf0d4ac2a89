#include "help_topics.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>

namespace {
bool containsAll(const QString &text, const QStringList &words) {
    return std::ranges::all_of(words,
                               [&text](const QString &word) { return text.contains(word, Qt::CaseInsensitive); });
}
} // namespace

HelpTopics::HelpTopics(const QString &folder) {
    QFile file(folder + QStringLiteral("/topics.json"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonArray entries = QJsonDocument::fromJson(file.readAll()).array();
    for (const auto &entry : entries) {
        const QJsonObject topic = entry.toObject();
        mTopics.push_back(
            {topic.value(QStringLiteral("title")).toString(), topic.value(QStringLiteral("where")).toString(),
             topic.value(QStringLiteral("place")).toString(), topic.value(QStringLiteral("text")).toString(),
             topic.value(QStringLiteral("depth")).toInt(-1)});
    }
}

std::vector<HelpTopic> HelpTopics::search(const QString &text) const {
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    std::vector<HelpTopic> hits;
    if (words.isEmpty())
        return hits;
    std::ranges::copy_if(mTopics, std::back_inserter(hits), [&words](const HelpTopic &topic) {
        return containsAll(topic.title + u' ' + topic.where + u' ' + topic.text, words);
    });
    std::stable_partition(hits.begin(), hits.end(),
                          [&words](const HelpTopic &topic) { return containsAll(topic.title, words); });
    return hits;
}
