#pragma once

#include <QString>
#include <QStringList>

class MessageBoxes;
class Transformer;

// Runs the lines of a script on the component. A line that fails shows its message, and the replay goes on.
class MappingReplay {
  public:
    MappingReplay(Transformer &transformer, MessageBoxes &boxes) : mTransformer(transformer), mBoxes(boxes) {}
    // Saves the form at the end.
    void run(const QStringList &lines);

  private:
    struct Command;
    static const Command kCommands[];

    void runLine(const QString &line);
    void runCommand(const QString &line, const Command &command);
    void setValue(const QString &line);
    void tell(const QString &text);

    Transformer &mTransformer;
    MessageBoxes &mBoxes;
};
