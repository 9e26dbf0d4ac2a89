#include "file_mutants.h"

#include "sealed_text.h"

#include <iterator>

using Campaign::below;
using Campaign::Random;

const FileMutants::Kind FileMutants::kDamaged[] = {
    {"byte changed", &FileMutants::flippedByte, false},
    {"cut off", &FileMutants::cutOff, false},
    {"garbage inside", &FileMutants::garbageInside, false},
    {"line twice", &FileMutants::lineTwice, false},
    {"foreign", &FileMutants::foreign, false},
};

const FileMutants::Kind FileMutants::kResealed[] = {
    {"value out of bounds", &FileMutants::wrongValue, false},
    {"wrong type", &FileMutants::wrongType, false},
    {"too many records", &FileMutants::tooManyRecords, false},
    {"number twice", &FileMutants::recordTwice, false},
    {"records missing", &FileMutants::structureGone, false},
    {"header of another radio", &FileMutants::otherHeader, false},
    {"deep nesting", &FileMutants::deepNesting, false},
    {"broken text", &FileMutants::brokenText, false},
    {"record that is none", &FileMutants::noRecord, false},
    {"later program's parts", &FileMutants::laterParts, false},
    {"byte changed, sealed", &FileMutants::flippedByte, true},
};

FileMutants::Mutant FileMutants::make(int number, Random &random) const {
    const bool sealed = number % 2 == 1;
    const std::size_t kinds = sealed ? std::size(kResealed) : std::size(kDamaged);
    const Kind &kind = (sealed ? kResealed : kDamaged)[std::size_t(number / 2) % kinds];
    QByteArray content = (this->*kind.maker)(random);
    if (sealed)
        content = SealedText::seal(content.first(content.lastIndexOf('\n', -2) + 1));
    return {QString::fromLatin1(kind.name), content, kind.mayBeSound};
}

QByteArray FileMutants::flippedByte(Random &random) const {
    QByteArray text = mSound;
    const qsizetype at = below(random, text.lastIndexOf('\n', -2));
    text[at] = char(text[at] ^ (1 << below(random, 8)));
    return text;
}

QByteArray FileMutants::cutOff(Random &random) const { return mSound.first(below(random, mSound.size())); }

QByteArray FileMutants::garbageInside(Random &random) const {
    QByteArray garbage;
    for (qsizetype i = 1 + below(random, 300); i > 0; --i)
        garbage += char(below(random, 256));
    return QByteArray(mSound).insert(below(random, mSound.size()), garbage);
}

QByteArray FileMutants::lineTwice(Random &random) const {
    const qsizetype start = mSound.lastIndexOf('\n', -1 - below(random, mSound.size() - 2)) + 1;
    const qsizetype end = mSound.indexOf('\n', start) + 1;
    return QByteArray(mSound).insert(end, mSound.mid(start, end - start));
}

QByteArray FileMutants::foreign(Random &random) const {
    static const QByteArray kStarts[] = {
        "",           "\x89PNG\r\n\x1a\n",       "{}",           "{\n\"format\": \"ZB2500 data\",\n",
        "PK\x03\x04", "<?xml version=\"1.0\"?>", "[Settings]\n", "\xFF\xFE{\0"};
    QByteArray text = kStarts[below(random, std::ssize(kStarts))];
    for (qsizetype i = below(random, 3000); i > 0; --i)
        text += char(below(random, 256));
    return text;
}

// Only fields with one line of their own, as the radio's and the first of each record have.
FileMutants::Place FileMutants::randomValue(Random &random) const {
    for (;;) {
        const qsizetype colon = mSound.indexOf("\": ", below(random, mSound.size()));
        const qsizetype start = colon < 0 ? -1 : mSound.lastIndexOf('"', colon - 1) + 1;
        const FieldDefinition *field =
            start <= 0 ? nullptr : mDictionary.find(QString::fromLatin1(mSound.mid(start, colon - start)));
        if (field == nullptr || !field->isStored())
            continue;
        const qsizetype at = colon + 3;
        qsizetype end = at + 1;
        const bool isText = mSound[at] == '"';
        while (isText ? mSound[end] != '"' : QByteArrayView("0123456789.-").contains(mSound[end]))
            ++end;
        return {at, end - at + (isText ? 1 : 0), field};
    }
}

QByteArray FileMutants::withValue(const Place &place, const QByteArray &value) const {
    return QByteArray(mSound).replace(place.at, place.length, value);
}

QByteArray FileMutants::wrongValue(Random &random) const {
    const Place place = randomValue(random);
    static const QByteArray kNumbers[] = {"-1000000000", "2147483648", "1e300", "0.3333333", "-2147483649"};
    if (!place.field->isTextual())
        return withValue(place, kNumbers[below(random, std::ssize(kNumbers))]);
    const QByteArray texts[] = {QByteArray(place.field->length + 1, place.field->mask.isEmpty() ? 'x' : '0'),
                                QByteArray("\u4e2d"),
                                QByteArray("\\u0000"),
                                QByteArray("\xff"),
                                QByteArray("\\x"),
                                QByteArray("\\u12g4")};
    return withValue(place, '"' + texts[below(random, std::ssize(texts))] + '"');
}

QByteArray FileMutants::wrongType(Random &random) const {
    static const QByteArray kOthers[] = {"null", "true", "false", "[]", "{}", "[1]", "01", "1.", "-", "1e", "nul"};
    return withValue(randomValue(random), kOthers[below(random, std::ssize(kOthers))]);
}

QByteArray FileMutants::tooManyRecords(Random &random) const {
    static const QByteArray kTables[] = {"\"Channel\": [",     "\"Network\": [",    "\"ScanGroup\": [",
                                         "\"AudioSource\": [", "\"DigitalPin\": [", "\"CustomerData\": [",
                                         "\"GroupMember\": ["};
    const QByteArray &table = kTables[below(random, std::ssize(kTables))];
    const qsizetype at = mSound.indexOf(table) + table.size();
    return QByteArray(mSound).insert(at, QByteArray("{},").repeated(3000));
}

QByteArray FileMutants::recordTwice(Random & /*random*/) const {
    QByteArray text = mSound;
    return text.replace("{\"ChannelID_q7r\": 2,", "{\"ChannelID_q7r\": 1,");
}

QByteArray FileMutants::structureGone(Random &random) const {
    static const QByteArray kTables[] = {"\"Channel\": [", "\"Network\": [", "\"ScanGroup\": [", "\"Radio\": ["};
    const QByteArray &table = kTables[below(random, std::ssize(kTables))];
    return QByteArray(mSound).replace(table, "\"Lost" + table.sliced(1));
}

QByteArray FileMutants::otherHeader(Random &random) const {
    static const QByteArray kParts[][2] = {{"\"tier\":\"Standard\"", "\"tier\":\"Basic\""},
                                           {"\"tier\":\"Standard\"", "\"tier\":7"},
                                           {"\"formatVersion\":1", "\"formatVersion\":2"},
                                           {"\"formatVersion\":1", "\"formatVersion\":-1"},
                                           {"\"databaseVersion\":\"3.20\"", "\"databaseVersion\":\"9.99\""},
                                           {"\"databaseVersion\": \"3.20\"", "\"databaseVersion\": \"3.15\""},
                                           {"\"header\": {", "\"header\": {{"}};
    const auto &part = kParts[below(random, std::ssize(kParts))];
    return QByteArray(mSound).replace(part[0], part[1]);
}

QByteArray FileMutants::deepNesting(Random &random) const {
    const qsizetype depth = 2000 + below(random, 100000);
    const QByteArray opened = below(random, 2) == 0 ? QByteArray("[") : QByteArray("{\"a\":");
    return QByteArray(mSound).replace("\"Radio\": [", "\"Later\": " + opened.repeated(depth) + ",\n\"Radio\": [");
}

QByteArray FileMutants::brokenText(Random &random) const {
    static const char kMarks[] = {'{', '}', '[', ']', ':', ','};
    const qsizetype tiers = mSound.indexOf("\"tiers\"");
    const qsizetype end = mSound.lastIndexOf('\n', -2) - 3;
    const qsizetype at =
        mSound.indexOf(kMarks[below(random, std::ssize(kMarks))], tiers + below(random, (end - tiers) / 2));
    return QByteArray(mSound).remove(at, 1);
}

QByteArray FileMutants::noRecord(Random &random) const {
    static const QByteArray kOthers[] = {"7,", "null,", "[],", "\"a\","};
    return QByteArray(mSound).replace("{\"ChannelID_q7r\": 1,",
                                      kOthers[below(random, std::ssize(kOthers))] + "{\"ChannelID_q7r\": 1,");
}

// What this program does not know may stand anywhere; a wrong value behind it is found all the same.
QByteArray FileMutants::laterParts(Random &random) const {
    QByteArray text = wrongType(random);
    text.replace("\"tiers\": {", "\"later\": {\"a\": [true, false]},\n\"tiers\": {\n\"Later\": {\"a\": 1.5e3},");
    return text.replace("{\"ChannelID_q7r\"", "{\"L\\u0061ter\": \"\\\"x\\\"\", \"ChannelID_q7r\"");
}
