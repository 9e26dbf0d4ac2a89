#pragma once

#include <QHash>
#include <QString>

#include <map>

// The dictionary KX4600.mld: UTF-8 text. A line "[n]" opens the section of language n; every other line is the English
// text, a tab, and its translation, with \n, \t and \\ escaped. Empty lines and lines without a tab are passed over.
class Q_DECL_EXPORT TranslationDictionary {
  public:
    // KX4600.mld in the program's folder, else in ../share/kx4600 beside it.
    [[nodiscard]] static QString StandardFile();

    // A missing or unreadable file leaves the dictionary empty; it counts as open all the same.
    void Load(const QString &fileName);
    // For tests and for tables that do not come from a file.
    void LoadText(const QString &text);

    [[nodiscard]] bool IsOpen() const { return mOpen; }
    // The translation into language (2 and up), or text itself where there is none. A name with a number behind it
    // ("Channel 12") may have the one row "Channel %1" for all numbers.
    [[nodiscard]] QString Translate(int language, const QString &text) const;

  private:
    bool mOpen = false;
    std::map<int, QHash<QString, QString>> mTables;
};
