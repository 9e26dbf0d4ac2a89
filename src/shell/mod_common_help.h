#pragma once

#include <QString>
#include <QVariant>

class clsHelp;
class MessageBoxes;
class QWidget;
class Translation;

// What CallHelp is asked for.
enum class HelpCommand {
    kContents,
    kSearch,
    kTopic, // topic: the number, or a page's name
};

// Chooses help files and topics.
class modCommonHelp {
  public:
    // folder: where help files are looked for. All outlive it.
    modCommonHelp(const Translation &translation, MessageBoxes &boxes, clsHelp &help, QString folder);

    // The program's folder; in a development run the common folder of the tree.
    [[nodiscard]] static QString HelpFolder();
    // The help file of a radio model with its folder; compiled: ".chm", else ".hlp". The name is translated, so that a
    // language can name its own file.
    [[nodiscard]] QString HelpFile(const QString &radioModel, bool compiled) const;
    // Opens the help. A file that no radio of the family has, or that is not there, and a topic that it does not hold
    // are told. True if something was opened. form: what the help is called from.
    bool CallHelp(const QString &file, HelpCommand command, const QVariant &topic, QWidget *form);

  private:
    [[nodiscard]] bool isKnown(const QString &file) const;
    bool fail(const QString &text);

    const Translation &mTranslation;
    MessageBoxes &mBoxes;
    clsHelp &mHelp;
    QString mFolder;
};
