#include "help_book.h"

#include "run_time_error.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <utility>

namespace {
[[noreturn]] void fail(const QString &text) {
    throw RunTimeError(ErrorNumber::kBadArgument, QStringLiteral("HelpBook"), text);
}

QString document(const QString &head, const QString &title, const QString &body) {
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n%1<title>%2</title>\n"
                          "<link rel=\"stylesheet\" type=\"text/css\" href=\"style.css\">\n</head>\n<body>\n%3</body>\n"
                          "</html>\n")
        .arg(head, title, body);
}
} // namespace

HelpBook::HelpBook(QString folder) : mFolder(std::move(folder)) {
    QDir(mFolder).removeRecursively();
    if (!QDir().mkpath(mFolder))
        fail(QStringLiteral("The folder %1 cannot be made").arg(mFolder));
}

void HelpBook::addPage(const QString &fileName, const QString &title, const QString &body) {
    write(fileName, document(QString(), title, body));
}

void HelpBook::addForward(const QString &fileName, const QString &title, const QString &place, const QString &body) {
    const QString head = QStringLiteral("<meta http-equiv=\"refresh\" content=\"0; url=%1\">\n").arg(place);
    write(fileName, document(head, title, body));
}

void HelpBook::addTopic(const Topic &topic) {
    mTopics.append(QJsonObject{{QStringLiteral("title"), topic.title},
                               {QStringLiteral("where"), topic.where},
                               {QStringLiteral("place"), topic.place},
                               {QStringLiteral("text"), topic.text},
                               {QStringLiteral("depth"), topic.depth}});
}

void HelpBook::copy(const QString &source, const QString &fileName) {
    if (!QFile::copy(source, mFolder + u'/' + fileName))
        fail(QStringLiteral("%1 cannot be copied").arg(source));
}

void HelpBook::close() { write(QStringLiteral("topics.json"), QString::fromUtf8(QJsonDocument(mTopics).toJson())); }

void HelpBook::write(const QString &fileName, const QString &text) const {
    QFile file(mFolder + u'/' + fileName);
    if (file.exists())
        fail(QStringLiteral("The page %1 is made twice").arg(fileName));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        fail(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
}

QString Markup::plain(const QString &html) {
    static const QRegularExpression kTag(QStringLiteral("<[^>]*>"));
    QString text = html;
    text.replace(kTag, QStringLiteral(" "));
    text.replace(QStringLiteral("&lt;"), QStringLiteral("<")).replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    text.replace(QStringLiteral("&quot;"), QStringLiteral("\"")).replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return text.simplified();
}

QString Markup::link(const QString &place, const QString &text) {
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(place, text);
}
