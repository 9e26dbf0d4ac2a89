#pragma once

#include "translation_dictionary.h"

#include <QStringList>

// The translation service. Texts in the code are English; every text is translated at the last moment before it is
// shown, and nothing that goes to the component is ever translated. Language 1 is English: no look-up happens.
class Q_DECL_EXPORT Translation {
  public:
    // gLanguage, 1 to 4; 0 until the language has been set up.
    qint32 gLanguage = 0;

    [[nodiscard]] TranslationDictionary &Dictionary() { return mDictionary; }
    [[nodiscard]] const TranslationDictionary &Dictionary() const { return mDictionary; }

    [[nodiscard]] QString NLSStr(const QString &text) const;
    // Translates each element in place; "Undefined" stays.
    void NLSArray(QStringList &texts) const;
    // The translated text with its placeholders %0:S, %1:S ... (any case) filled by the parts of parameters (joined by
    // "|", each translated first; at most 21). A placeholder without a parameter becomes empty.
    [[nodiscard]] QString NLSFmt(const QString &text, const QString &parameters) const;
    // Placeholders only, nothing translated.
    [[nodiscard]] static QString Fill(const QString &text, const QStringList &parameters);

    // A parameter that is itself a text with placeholders, so that each of its parts is translated: the lines of a
    // list, a number with its unit. Its own parameters are plain texts or pieces of plain texts.
    [[nodiscard]] static QString Piece(const QString &text, const QStringList &parameters = {});
    // Several pieces as one parameter; separator stands between them, untranslated.
    [[nodiscard]] static QString Pieces(const QStringList &pieces, const QString &separator);

  private:
    TranslationDictionary mDictionary;
};
