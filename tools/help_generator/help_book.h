#pragma once

#include <QJsonArray>
#include <QString>

// The folder of pages that is being made. A topic is a place that the contents or the search lead to.
class HelpBook {
  public:
    // The folder is emptied and made; raises a RunTimeError when it cannot be.
    explicit HelpBook(QString folder);

    struct Topic {
        QString title;
        QString where;  // what the title stands in: the form of a field, the heading of a page
        QString place;  // "page.html" or "page.html#anchor"
        QString text;   // what a search finds it by, without markup
        int depth = -1; // in the contents, from 0; -1: found by search only
    };

    // title and body as markup. fileName without folder.
    void addPage(const QString &fileName, const QString &title, const QString &body);
    // A page that leads on to a place at once; body is shown where that is not done.
    void addForward(const QString &fileName, const QString &title, const QString &place, const QString &body);
    void addTopic(const Topic &topic);
    void copy(const QString &source, const QString &fileName);
    // Writes the list of topics: the book is whole.
    void close();

  private:
    void write(const QString &fileName, const QString &text) const;

    QString mFolder;
    QJsonArray mTopics;
};

// Markup helpers.
namespace Markup {
[[nodiscard]] QString plain(const QString &html); // the text of a fragment, blanks folded
[[nodiscard]] QString link(const QString &place, const QString &text);
} // namespace Markup
