#pragma once

#include <QString>

class Ifield;
class Transformer;
class Translation;

// What a field is, as the component says at this moment.
class HelpFieldText {
  public:
    HelpFieldText(Transformer &transformer, const Translation &translation)
        : mTransformer(transformer), mTranslation(translation) {}

    // Label, help, limits and unit as markup; "" for a field that the component does not know.
    [[nodiscard]] QString Of(const QString &UIID) const;

    // The topic that the field was given, else that of what it shows: a grid has none before a cell is entered.
    [[nodiscard]] qint32 NumberOf(const Ifield &field) const;

    // A link that leads to a topic of the help, for the end of such a text.
    [[nodiscard]] QString Link(qint32 number) const;
    // The topic that a link leads to; 0 for any other link.
    [[nodiscard]] static qint32 TopicOf(const QString &link);

  private:
    [[nodiscard]] QString line(const QString &word, const QString &text) const;

    Transformer &mTransformer;
    const Translation &mTranslation;
};
