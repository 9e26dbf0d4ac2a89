#include "translated_texts.h"

#include "translation.h"

TranslatedTexts::TranslatedTexts(const Translation &translation) : mTranslation(translation) {}

void TranslatedTexts::Add(const QString &source, std::function<void(const QString &)> setter) {
    setter(mTranslation.NLSStr(source));
    mEntries.push_back({source, std::move(setter)});
}

void TranslatedTexts::Translate() {
    for (const Entry &entry : mEntries)
        entry.setter(mTranslation.NLSStr(entry.source));
}
