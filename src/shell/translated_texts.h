#pragma once

#include <QString>

#include <functional>
#include <vector>

class Translation;

// The fixed texts of a window: each keeps its English source, so that a change of language translates from English
// again.
class TranslatedTexts {
  public:
    explicit TranslatedTexts(const Translation &translation);
    // Sets the text now and again at each Translate(). The setter's target must live as long as this object.
    void Add(const QString &source, std::function<void(const QString &)> setter);
    void Translate();

  private:
    struct Entry {
        QString source;
        std::function<void(const QString &)> setter;
    };
    const Translation &mTranslation;
    std::vector<Entry> mEntries;
};
