#pragma once

#include "campaign.h"
#include "dictionary.h"

// Makes files that must be refused out of a sound one.
class FileMutants {
  public:
    FileMutants(const Dictionary &dictionary, QByteArray sound) : mDictionary(dictionary), mSound(std::move(sound)) {}

    struct Mutant {
        QString kind;
        QByteArray content;
        bool mayBeSound = false; // a change that can give another valid file
    };
    // Every second one has a checksum that fits.
    [[nodiscard]] Mutant make(int number, Campaign::Random &random) const;

  private:
    using Maker = QByteArray (FileMutants::*)(Campaign::Random &) const;
    struct Kind {
        const char *name;
        Maker maker;
        bool mayBeSound;
    };
    static const Kind kDamaged[];
    static const Kind kResealed[];

    [[nodiscard]] QByteArray flippedByte(Campaign::Random &random) const;
    [[nodiscard]] QByteArray cutOff(Campaign::Random &random) const;
    [[nodiscard]] QByteArray garbageInside(Campaign::Random &random) const;
    [[nodiscard]] QByteArray lineTwice(Campaign::Random &random) const;
    [[nodiscard]] QByteArray foreign(Campaign::Random &random) const;
    [[nodiscard]] QByteArray wrongValue(Campaign::Random &random) const;
    [[nodiscard]] QByteArray wrongType(Campaign::Random &random) const;
    [[nodiscard]] QByteArray tooManyRecords(Campaign::Random &random) const;
    [[nodiscard]] QByteArray recordTwice(Campaign::Random &random) const;
    [[nodiscard]] QByteArray structureGone(Campaign::Random &random) const;
    [[nodiscard]] QByteArray otherHeader(Campaign::Random &random) const;
    [[nodiscard]] QByteArray deepNesting(Campaign::Random &random) const;
    [[nodiscard]] QByteArray brokenText(Campaign::Random &random) const;
    [[nodiscard]] QByteArray noRecord(Campaign::Random &random) const;
    [[nodiscard]] QByteArray laterParts(Campaign::Random &random) const;
    // Start and length of the value of a random field, and the field.
    struct Place {
        qsizetype at;
        qsizetype length;
        const FieldDefinition *field;
    };
    [[nodiscard]] Place randomValue(Campaign::Random &random) const;
    [[nodiscard]] QByteArray withValue(const Place &place, const QByteArray &value) const;

    const Dictionary &mDictionary;
    QByteArray mSound;
};
