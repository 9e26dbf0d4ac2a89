#include "mru.h"

#include "transformer.h"
#include "value_text.h"

namespace {
constexpr qint32 kMaximum = 10;
constexpr qsizetype kLongName = 31;
const QString kOneGap = QStringLiteral("/.../");
const QString kTwoGaps = QStringLiteral("/.../.../");

QString entryKey(qint32 index) { return QStringLiteral("MRU%1").arg(index); }
} // namespace

clsMRU::clsMRU(const ProcessValues &process) : mProcess(process) {}

qint32 clsMRU::Num() const {
    const QVariant stored = mProcess.objTransformer->GetSetting(QStringLiteral("MRUNum"), 0);
    return qBound(0, ValueText::toIntegerOr(stored, 0), kMaximum);
}

QString clsMRU::GetFileName(qint32 Index) const {
    if (Index < 1 || Index > Num())
        return {};
    return ValueText::of(mProcess.objTransformer->GetSetting(entryKey(Index), QString()));
}

QStringList clsMRU::GetArray() const {
    QStringList names;
    for (qint32 index = 1, count = Num(); index <= count; ++index)
        names << ValueText::of(mProcess.objTransformer->GetSetting(entryKey(index), QString()));
    return names;
}

QString clsMRU::Last() const { return GetFileName(1); }

void clsMRU::Last(const QString &strFileName) { Save(strFileName); }

void clsMRU::Save(const QString &strFileName) {
    QStringList names = GetArray();
    names.removeOne(strFileName);
    names.prepend(strFileName);
    names = names.first(qMin<qsizetype>(names.size(), kMaximum));
    Transformer &transformer = *mProcess.objTransformer;
    transformer.SaveSetting(QStringLiteral("MRUNum"), qint32(names.size()));
    for (qint32 index = 1; index <= names.size(); ++index)
        transformer.SaveSetting(entryKey(index), names[index - 1]);
}

QString clsMRU::GetDisplayName(qint32 Index) const { return Shortened(GetFileName(Index)); }

QString clsMRU::Shortened(const QString &fileName) {
    const QChar separator = u'/';
    QString name = fileName;
    const qsizetype first = name.indexOf(separator, name.startsWith(QStringLiteral("//")) ? 2 : 0);
    qsizetype position = first < 0 ? -1 : name.indexOf(separator, first + 1);
    if (position < 0)
        return name;
    while (position < name.size() && name[position] == separator)
        ++position;
    if (position == name.size())
        return name;

    for (bool firstRound = true; name.size() >= kLongName; firstRound = false) {
        // From separator a to the next one, b, the folder's name gives way.
        const qsizetype a = name.indexOf(separator, position);
        const qsizetype b = a < 0 ? -1 : name.indexOf(separator, a + 1);
        if (b < 0 || name.indexOf(separator, b + 1) < 0)
            break;
        name = firstRound ? name.left(a + 2) + QStringLiteral("..") + name.mid(b)
                          : name.left(a + 1) + QStringLiteral("...") + name.mid(b);
        position = a + 4;
        for (qsizetype twice = name.indexOf(kTwoGaps); twice >= 0; twice = name.indexOf(kTwoGaps)) {
            name.replace(twice, kTwoGaps.size(), kOneGap);
            position = qMax<qsizetype>(0, position - 4);
        }
    }
    return name;
}
