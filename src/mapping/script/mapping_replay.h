#pragma once

#include <QString>
#include <QStringList>

class MessageBoxes;
class Transformer;
class Translation;

// Runs the lines of a script on the component. A line that fails shows its message, and the replay goes on.
class MappingReplay {
  public:
    MappingReplay(Transformer &transformer, MessageBoxes &boxes, const Translation &translation)
        : mTransformer(transformer), mBoxes(boxes), mTranslation(translation) {}
    // Saves the form at the end. False: a line failed or its value was refused.
    bool run(const QStringList &lines);

  private:
    struct Command;
    static const Command kCommands[];

    bool runLine(const QString &line);
    bool runCommand(const QString &line, const Command &command);
    bool setValue(const QString &line);
    void tell(const QString &text, const QStringList &parameters);

    Transformer &mTransformer;
    MessageBoxes &mBoxes;
    const Translation &mTranslation;
};
