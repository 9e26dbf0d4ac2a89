#include "mapping_script_reader.h"

#include "message_style.h"
#include "string_utilities.h"
#include "translation.h"
#include "window_services.h"

#include <QFile>
#include <QFileInfo>
#include <QScopedValueRollback>

#include <array>

namespace {
const QString kPurpose = QStringLiteral("' Purpose:");
constexpr int kCommentMark = 2;

QString unquoted(const QString &name) { return name.startsWith(u'"') ? name.mid(1).chopped(1) : name; }
} // namespace

QString MappingScriptReader::located(const QString &fileName) const {
    const QString beside = mFolder + u'/' + fileName;
    return QFileInfo(fileName).isRelative() && !mFolder.isEmpty() && QFileInfo::exists(beside) ? beside : fileName;
}

bool MappingScriptReader::read(const QString &fileName, bool initialState) {
    if (mVisited.contains(fileName)) {
        tell(QStringLiteral("The initial state file contains several references to '%0:S'"), fileName);
        return true;
    }
    mVisited.insert(fileName);
    const QString path = located(unquoted(fileName));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        tell(QStringLiteral("Initial State file %0:S not found"), unquoted(fileName));
        return false;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).remove(u'\r').split(u'\n');
    file.close();
    const QScopedValueRollback folder(mFolder, QFileInfo(path).path());
    return readLines(lines, initialState);
}

bool MappingScriptReader::readLines(const QStringList &lines, bool initialState) {
    Reading reading{initialState};
    for (const QString &line : lines) {
        if (TrimBlanks(line).isEmpty() || switchSection(TrimBlanks(line), reading.section))
            continue;
        if (!take(line, reading))
            return false;
    }
    return true;
}

// True where the line is nothing but a head. The first line of the purpose is a head with a comment behind it.
bool MappingScriptReader::switchSection(const QString &line, Section &section) {
    struct Head {
        QString key;
        Section section;
    };
    static const std::array kHeads{Head{QStringLiteral("Initial State:"), Section::kInitialState},
                                   Head{QStringLiteral("UI Fields:"), Section::kUIFields},
                                   Head{QStringLiteral("Database Fields:"), Section::kDatabaseFields},
                                   Head{QStringLiteral("' Date:"), Section::kNone}, Head{kPurpose, Section::kPurpose}};
    const QString key = line.left(line.indexOf(u':') + 1);
    for (const Head &head : kHeads) {
        if (head.key != key)
            continue;
        section = head.section;
        return section != Section::kPurpose;
    }
    return false;
}

bool MappingScriptReader::take(const QString &line, const Reading &reading) {
    const bool own = !reading.initialState;
    switch (reading.section) {
    case Section::kPurpose:
        if (own)
            takePurpose(line);
        break;
    case Section::kInitialState:
        if (own)
            mScript.initialStateFile = TrimBlanks(line);
        return read(TrimBlanks(line), true);
    case Section::kUIFields:
        mScript.allFields << line;
        if (own)
            mScript.uiFields << line;
        break;
    case Section::kDatabaseFields:
        if (own)
            mScript.databaseFields << line;
        break;
    case Section::kNone:
        break;
    }
    return true;
}

void MappingScriptReader::takePurpose(const QString &line) {
    const bool first = TrimBlanks(line).startsWith(kPurpose);
    mScript.comments << TrimBlanks(first ? TrimBlanks(line).mid(kPurpose.size()) : line.mid(kCommentMark));
}

void MappingScriptReader::tell(const QString &text, const QString &fileName) {
    mBoxes.MsgBox(Translation::Fill(mTranslation.NLSStr(text), {fileName}), MessageStyle::kOkOnly, QString());
}
