#pragma once

#include <QString>

class Transformer;

// The settings that the preferences edit, each within its range.
struct PreferencesValues {
    qint32 CommPortNumber = 1;
    QString Website;
    qint32 TextAlignment = 1;   // of field labels: 0 left, 1 right
    qint32 GeneralDialogs = 1;  // 1: general questions are asked
    qint32 StartupPosition = 0; // 0 centred, 1 maximised, 2 where the window stood last
    qint32 AccessLevel = 0;     // 0 to 3 as in the menu, from the top; 4: the level last used
    qint32 Language = 1;        // 1 English, 2 French, 3 Chinese, 4 Spanish

    // What does not convert or lies outside its range counts as the default.
    [[nodiscard]] static PreferencesValues load(Transformer &transformer);
    // All but the language.
    void save(Transformer &transformer) const;
    void saveLanguage(Transformer &transformer) const;
};
