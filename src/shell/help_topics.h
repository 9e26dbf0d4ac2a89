#pragma once

#include <QString>

#include <vector>

// A place in the help that the contents or the search lead to.
struct HelpTopic {
    QString title;
    QString where;  // the form of a field; "" for a page
    QString place;  // "page.html" or "page.html#anchor"
    QString text;   // what a search finds it by
    int depth = -1; // in the contents, from 0; -1: found by search only
};

// The list of topics that the help's folder holds.
class HelpTopics {
  public:
    // Empty for a folder without such a list.
    explicit HelpTopics(const QString &folder);

    [[nodiscard]] const std::vector<HelpTopic> &all() const { return mTopics; }
    // The topics that contain every word of the text, wherever it stands in a word and whatever its case. Those with
    // all words in their title come first, else in the order of the contents. Nothing for an empty text.
    [[nodiscard]] std::vector<HelpTopic> search(const QString &text) const;

  private:
    std::vector<HelpTopic> mTopics;
};
