#pragma once

#include "mapping_script.h"

#include <QSet>

class MessageBoxes;
class Translation;

// Reads scripts, and through them the initial states that they name, to any depth. Messages are plain boxes.
class MappingScriptReader {
  public:
    // script is filled; all outlive it.
    MappingScriptReader(MappingScript &script, MessageBoxes &boxes, const Translation &translation)
        : mScript(script), mBoxes(boxes), mTranslation(translation) {}

    // initialState: only the fields are taken, into allFields. False if a file cannot be opened; a file that was
    // visited already is told and passed over.
    bool read(const QString &fileName, bool initialState);
    // Every file may be read again.
    void forgetVisited() { mVisited.clear(); }

  private:
    enum class Section { kNone, kPurpose, kInitialState, kUIFields, kDatabaseFields };
    struct Reading {
        bool initialState;
        Section section = Section::kNone;
    };
    bool readLines(const QStringList &lines, bool initialState);
    static bool switchSection(const QString &line, Section &section);
    bool take(const QString &line, const Reading &reading);
    void takePurpose(const QString &line);
    void tell(const QString &text, const QString &fileName);
    [[nodiscard]] QString located(const QString &fileName) const;

    MappingScript &mScript;
    MessageBoxes &mBoxes;
    const Translation &mTranslation;
    QSet<QString> mVisited; // names as they are written
    QString mFolder;        // of the script being read
};
